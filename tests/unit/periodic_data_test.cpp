// The element data screen on small databases that the real data is not:
// absent values in every kind of field, a missing database.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/store.h"
#include "screen_run.h"
#include "shell/form.h"
#include "tables/frmPeriodic.h"

namespace orv {
namespace {

// Columns: number, symbol, name, weight, state, charge, configuration, group,
// density, freezing and boiling point.
constexpr const char* kGeneralInfo =
    "CREATE TABLE GeneralInfo (AtomicNumber INTEGER, Symbol TEXT, ElementName TEXT, AtomicWeight REAL, "
    "State TEXT, Charge TEXT, Configuration TEXT, GroupName TEXT, Density REAL, FreezingPoint REAL, "
    "BoilingPoint REAL);"
    "INSERT INTO GeneralInfo VALUES (1, 'Xa', 'Absentium', 2.49, 'Solid', '+1', '1s1', 'Test', NULL, NULL, 12.5);"
    "INSERT INTO GeneralInfo VALUES (1, 'Xb', 'Halfium', 2.5, 'Gas', '', NULL, 'Test', 0.5, -3, NULL);"
    "INSERT INTO GeneralInfo VALUES (3, 'Xc', 'Groupless', 7.2, 'Liquid', '+2', '1s2 2s1', NULL, 1, 2, 3);";

TEST(PeriodicData, FillsTheBoxesUntilAFieldFails) {
  const struct {
    const char* symbol;
    const char* boxes;  // Text1 to Text14, joined by '|'
    const char* message;
    bool recordsetOpen;
  } cases[] = {
      // Tested fields with no value stay empty; 2.49 rounds down to 2.
      {"Xa", "Absentium|Xa|1|2.49|Solid|+1|1s1|Test|1|1|1|||12.5", "", false},
      // An empty text is skipped like a missing one; 2.5 rounds up to 3.
      {"Xb", "Halfium|Xb|1|2.5|Gas|||Test|1|1|2|0.5|-3|", "", false},
      // A Null in an untested field ends the filling and leaves the set open.
      {"Xc", "Groupless|Xc|3|7.2|Liquid|+2|1s2 2s1|||||||", "Invalid use of Null", true},
      // No database beside the program.
      {"H", "|||||||||||||", "Object variable or With block variable not set", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.symbol);
    const bool database = std::string(c.symbol) != "H";
    test::ScreenRun run(database ? kGeneralInfo : "");
    Periodic(run.program).SelectedSymbol = c.symbol;
    Form& f = run.Open("frmPeriodicData");
    const test::Boxes boxes = *c.message ? test::Boxes{{c.message, Icon::Information, "Periodic Data"}} : test::Boxes{};
    EXPECT_EQ(run.messages.boxes, boxes);
    std::string shown = f.ctl("Text1").Text();
    for (int i = 2; i <= 14; ++i) shown += "|" + f.ctl("Text" + std::to_string(i)).Text();
    EXPECT_EQ(shown, c.boxes);
    EXPECT_TRUE(f.Visible());
    EXPECT_FALSE(run.program.Ended());
    EXPECT_EQ(Store(run.program).gSql, "SELECT * FROM GeneralInfo WHERE Symbol = '" + std::string(c.symbol) + "'");
    if (database) {
      EXPECT_EQ(data::CurrentRecordset(Store(run.program)).IsOpen(), c.recordsetOpen);
    }
  }
}

}  // namespace
}  // namespace orv
