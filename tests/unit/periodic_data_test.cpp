// The element data screen on small databases that the real data is not:
// absent values in every kind of field, a missing database.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <string>
#include <vector>

#include "app/registry.h"
#include "data/store.h"
#include "shell/form.h"
#include "shell/program.h"
#include "shell/screens/module1.h"
#include "tables/frmPeriodic.h"

namespace orv {
namespace {

namespace fs = std::filesystem;

struct TempDir {
  TempDir() {
    std::string pattern = (fs::temp_directory_path() / "orvanta-periodic-XXXXXX").string();
    path = mkdtemp(pattern.data()) ? pattern : throw std::runtime_error("mkdtemp failed");
  }
  ~TempDir() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  fs::path path;
};

struct Box {
  std::string text;
  Icon icon;
  std::string title;
};
class Messages : public MessageService {
 public:
  void Show(std::string_view text, Icon icon, std::string_view title) override {
    boxes.push_back({std::string(text), icon, std::string(title)});
  }
  void ShowFatal(std::string_view words) override { fatal = std::string(words); }
  std::vector<Box> boxes;
  std::string fatal;
};
class NoPrinter : public PrintService {
 public:
  void PrintImage(Form&) override {}
};
class NoLauncher : public LaunchService {
 public:
  void LaunchCalculator() override {}
};

// Rows of GeneralInfo: number, symbol, name, weight, state, charge,
// configuration, group, density, freezing and boiling point.
constexpr const char* kRows =
    "INSERT INTO GeneralInfo VALUES (1, 'Xa', 'Absentium', 2.49, 'Solid', '+1', '1s1', 'Test', NULL, NULL, 12.5);"
    "INSERT INTO GeneralInfo VALUES (1, 'Xb', 'Halfium', 2.5, 'Gas', '', NULL, 'Test', 0.5, -3, NULL);"
    "INSERT INTO GeneralInfo VALUES (3, 'Xc', 'Groupless', 7.2, 'Liquid', '+2', '1s2 2s1', NULL, 1, 2, 3);";

// A fresh program with a small GeneralInfo beside it, or with no database.
struct DataRun {
  explicit DataRun(bool withDatabase) {
    if (withDatabase) {
      sqlite3* db = nullptr;
      EXPECT_EQ(sqlite3_open((dir.path / "OrvantaData.db").string().c_str(), &db), SQLITE_OK);
      const std::string sql =
          "CREATE TABLE GeneralInfo (AtomicNumber INTEGER, Symbol TEXT, ElementName TEXT, AtomicWeight REAL, "
          "State TEXT, Charge TEXT, Configuration TEXT, GroupName TEXT, Density REAL, FreezingPoint REAL, "
          "BoilingPoint REAL);" +
          std::string(kRows);
      EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
      sqlite3_close(db);
    }
    program.Start();
    messages.boxes.clear();  // the missing database's message at start-up
  }
  // Chooses the symbol as the table's buttons do and opens the data screen.
  Form& Open(const std::string& symbol) {
    Periodic(program).SelectedSymbol = symbol;
    program.UserAction([&] { program.Show("frmPeriodicData"); });
    Form* f = program.Find("frmPeriodicData");
    EXPECT_NE(f, nullptr);
    return *f;
  }
  std::vector<std::string> Boxes(const Form& f) const {
    std::vector<std::string> out;
    for (int i = 1; i <= 14; ++i) out.push_back(f.ctl("Text" + std::to_string(i)).Text());
    return out;
  }
  bool RecordsetOpen() { return data::CurrentRecordset(Store(program)).IsOpen(); }

  TempDir dir;
  Messages messages;
  NoPrinter printer;
  NoLauncher launcher;
  Program program{AllScreens(), {&messages, &printer, &launcher, nullptr}, dir.path.string()};
};

TEST(PeriodicData, AbsentValuesInTestedFieldsLeaveTheirBoxesEmptyWithoutMessage) {
  DataRun run(true);
  Form& f = run.Open("Xa");
  EXPECT_TRUE(run.messages.boxes.empty());
  // No density, no freezing point; 2.49 rounds down to 2 for one neutron.
  EXPECT_EQ(run.Boxes(f), (std::vector<std::string>{"Absentium", "Xa", "1", "2.49", "Solid", "+1", "1s1", "Test", "1",
                                                    "1", "1", "", "", "12.5"}));
  EXPECT_FALSE(run.RecordsetOpen());
  EXPECT_TRUE(f.Visible());
}

TEST(PeriodicData, AnEmptyTextIsSkippedLikeAnAbsentValueAndAHalfRoundsUp) {
  DataRun run(true);
  Form& f = run.Open("Xb");
  EXPECT_TRUE(run.messages.boxes.empty());
  // 2.5 goes up to 3: two neutrons beside one proton.
  EXPECT_EQ(run.Boxes(f), (std::vector<std::string>{"Halfium", "Xb", "1", "2.5", "Gas", "", "", "Test", "1", "1", "2",
                                                    "0.5", "-3", ""}));
}

TEST(PeriodicData, AnAbsentValueInAnUntestedFieldEndsTheFillingThere) {
  DataRun run(true);
  Form& f = run.Open("Xc");
  ASSERT_EQ(run.messages.boxes.size(), 1u);
  EXPECT_EQ(run.messages.boxes[0].text, "Invalid use of Null");
  EXPECT_EQ(run.messages.boxes[0].icon, Icon::Information);
  EXPECT_EQ(run.messages.boxes[0].title, "Periodic Data");
  // Filled up to the group name, nothing after; the record set stays open.
  EXPECT_EQ(run.Boxes(f), (std::vector<std::string>{"Groupless", "Xc", "3", "7.2", "Liquid", "+2", "1s2 2s1", "", "",
                                                    "", "", "", "", ""}));
  EXPECT_TRUE(run.RecordsetOpen());
  EXPECT_TRUE(f.Visible());
  EXPECT_FALSE(run.program.Ended());
}

TEST(PeriodicData, WithoutTheDatabaseOneMessageAndEmptyBoxes) {
  DataRun run(false);
  Form& f = run.Open("H");
  ASSERT_EQ(run.messages.boxes.size(), 1u);
  EXPECT_EQ(run.messages.boxes[0].text, "Object variable or With block variable not set");
  EXPECT_EQ(run.messages.boxes[0].icon, Icon::Information);
  EXPECT_EQ(run.messages.boxes[0].title, "Periodic Data");
  EXPECT_EQ(run.Boxes(f), std::vector<std::string>(14, ""));
  EXPECT_TRUE(f.Visible());
  EXPECT_EQ(Store(run.program).gSql, "SELECT * FROM GeneralInfo WHERE Symbol = 'H'");
}

}  // namespace
}  // namespace orv
