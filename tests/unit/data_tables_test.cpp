// The padded rows of the table screens, and how a table screen fails on a
// table that is empty or holds a field with no value.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

#include "app/registry.h"
#include "data/store.h"
#include "shell/program.h"
#include "tables/padded_row.h"

namespace orv {
namespace {

namespace fs = std::filesystem;

struct TempDir {
  TempDir() {
    std::string pattern = (fs::temp_directory_path() / "orvanta-tables-XXXXXX").string();
    path = mkdtemp(pattern.data()) ? pattern : throw std::runtime_error("mkdtemp failed");
  }
  ~TempDir() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  fs::path path;
};

// A database of the given tables, under the name the program looks for.
std::string MakeDatabase(const TempDir& dir, const std::string& sql) {
  const std::string file = (dir.path / std::string(data::kDatabaseFileName)).string();
  sqlite3* db = nullptr;
  EXPECT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
  sqlite3_close(db);
  return file;
}

std::string Raised(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.words();
  }
  return "nothing raised";
}

TEST(PaddedRow, FormatsCutsAndPadsEachColumn) {
  TempDir dir;
  const std::string file = MakeDatabase(dir,
                                        "CREATE TABLE T (Name TEXT, Code TEXT, Value REAL, Note TEXT);"
                                        "INSERT INTO T VALUES ('Praseodymium', '42', 100, 'Beta');"
                                        "INSERT INTO T VALUES ('Ne', 'Alpha', 0.5, NULL);");
  auto db = data::Database::Open(file);
  auto rs = db->OpenRecordset("SELECT * FROM T");
  const PaddedColumn columns[] = {
      {"Name", "0000000000", "0000000000", "  "},
      {"Code", "000000", "0000", " "},
      {"Value", "0000", "Standard", "|"},
  };
  rs->MoveFirst();
  // A long name is cut; a text that reads as a number is zero-filled by the
  // pattern; 100.00 loses what lies beyond the width, keeping its point.
  EXPECT_EQ(PaddedRow(*rs, columns), "Praseodymi  0042   100.|");
  rs->MoveNext();
  // Words pass the number pattern unchanged; short columns are padded.
  EXPECT_EQ(PaddedRow(*rs, columns), "Ne          Alpha  0.50|");
  // A field with no value can't be taken as text.
  const PaddedColumn note[] = {{"Note", "000000", "Standard"}};
  EXPECT_EQ(Raised([&] { PaddedRow(*rs, note); }), "Invalid use of Null");
}

TEST(PaddedRow, LeftJustifyCountsCharactersNotBytes) {
  EXPECT_EQ(LeftJustify("Ångström", 5), "Ångst");
  EXPECT_EQ(LeftJustify("µ", 3), "µ  ");
  EXPECT_EQ(LeftJustify("", 2), "  ");
}

class QuietMessages : public MessageService {
 public:
  void Show(std::string_view, Icon, std::string_view) override { ++shown; }
  void ShowFatal(std::string_view) override {}
  int shown = 0;
};
class NoPrinter : public PrintService {
 public:
  void PrintImage(Form&) override {}
};
class NoCalculator : public LaunchService {
 public:
  void LaunchCalculator() override {}
};

// Shows a table screen over a database of the given tables; returns the words
// the program ended on, or the rows of its list when it did not end.
std::string ShowTable(const std::string& sql, const std::string& screen) {
  TempDir dir;
  MakeDatabase(dir, sql);
  QuietMessages messages;
  NoPrinter printer;
  NoCalculator launcher;
  Program program(AllScreens(), {&messages, &printer, &launcher, nullptr}, dir.path.string());
  program.Start();
  EXPECT_EQ(messages.shown, 0) << "the database did not open";
  program.UserAction([&] { program.Show(screen); });
  if (program.Ended()) return "ended: " + program.EndWords();
  std::string rows;
  for (const std::string& row : program.Find(screen)->ctl("List1").Items()) rows += row + "\n";
  return rows;
}

TEST(TableScreen, EndsTheProgramOnAnEmptyTableOrAFieldWithNoValue) {
  EXPECT_EQ(ShowTable("CREATE TABLE Bonds (Bond TEXT, Energy REAL, Length REAL);", "frmBonds"),
            "ended: No current record.");
  EXPECT_EQ(ShowTable("CREATE TABLE Bonds (Bond TEXT, Energy REAL, Length REAL);"
                      "INSERT INTO Bonds VALUES ('H-H', 436, 74);"
                      "INSERT INTO Bonds VALUES ('C-C', NULL, 154);",
                      "frmBonds"),
            "ended: Invalid use of Null");
  EXPECT_EQ(ShowTable("CREATE TABLE Other (X TEXT);", "frmBonds").rfind("ended: ", 0), 0u);
}

TEST(TableScreen, ListsRowsInStoredOrder) {
  EXPECT_EQ(ShowTable("CREATE TABLE Character (Difference REAL, Ionic REAL, Covalent REAL);"
                      "INSERT INTO Character VALUES (3.3, 100, 0);"
                      "INSERT INTO Character VALUES (0, 0, 100);",
                      "frmCharacter"),
            "3.30       100.       0.00\n"
            "0.00       0.00       100.\n");
}

}  // namespace
}  // namespace orv
