// The padded rows of the table screens, and how a table screen fails on a
// table that is empty or holds a field with no value.

#include <gtest/gtest.h>

#include <string>

#include "data/padded_row.h"
#include "data/store.h"
#include "screen_run.h"

namespace orv {
namespace {

TEST(PaddedRow, FormatsCutsAndPadsEachColumn) {
  test::ScratchDir dir;
  auto db = data::Database::Open(test::MakeDatabase(dir / "OrvantaData.db",
                                                    "CREATE TABLE T (Name TEXT, Code TEXT, Value REAL, Note TEXT);"
                                                    "INSERT INTO T VALUES ('Praseodymium', '42', 100, 'Beta');"
                                                    "INSERT INTO T VALUES ('Ne', 'Alpha', 0.5, NULL);"));
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
  const PaddedColumn note[] = {{"Note", "000000", "Standard"}};
  EXPECT_EQ(test::Raised([&] { PaddedRow(*rs, note); }), "Invalid use of Null");  // a field with no value
  // Widths count characters, not bytes.
  EXPECT_EQ(LeftJustify("Ångström", 5), "Ångst");
  EXPECT_EQ(LeftJustify("µ", 3), "µ  ");
  EXPECT_EQ(LeftJustify("", 2), "  ");
}

TEST(TableScreen, ListsRowsInStoredOrderOrEndsOnAMissingRowOrValue) {
  const std::string bonds = "CREATE TABLE Bonds (Bond TEXT, Energy REAL, Length REAL);";
  const struct {
    std::string sql, screen, shown;
  } cases[] = {
      {bonds, "frmBonds", "ended: No current record."},
      {bonds + "INSERT INTO Bonds VALUES ('H-H', 436, 74); INSERT INTO Bonds VALUES ('C-C', NULL, 154);", "frmBonds",
       "ended: Invalid use of Null"},
      {"CREATE TABLE Character (Difference REAL, Ionic REAL, Covalent REAL);"
       "INSERT INTO Character VALUES (3.3, 100, 0); INSERT INTO Character VALUES (0, 0, 100);",
       "frmCharacter", "3.30       100.       0.00\n0.00       0.00       100.\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.sql);
    test::ScreenRun run(c.sql);
    EXPECT_EQ(run.startupBoxes, 0u) << "the database did not open";
    Form* f = run.Show(c.screen);
    std::string shown = run.program.Ended() ? "ended: " + run.program.EndWords() : "";
    if (shown.empty() && f != nullptr) {
      for (const std::string& row : f->ctl("List1").Items()) shown += row + "\n";
    }
    EXPECT_EQ(shown, c.shown);
  }
  // A missing table ends the program too.
  test::ScreenRun noTable("CREATE TABLE Other (X TEXT);");
  noTable.Show("frmBonds");
  EXPECT_TRUE(noTable.program.Ended());
}

}  // namespace
}  // namespace orv
