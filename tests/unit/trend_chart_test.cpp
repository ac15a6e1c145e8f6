// The chart model's reading of a data table, and the trend chart screens on
// small databases that the real data must not be: too few rows, rows out of
// order.

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "screen_run.h"
#include "shell/chart.h"
#include "shell/form.h"

namespace orv {
namespace {

std::vector<std::string> Described(const Chart& chart) {
  std::vector<std::string> out;
  for (const ChartPoint& p : chart.content().points) out.push_back(Describe(p));
  return out;
}

TEST(ChartData, LabelsFromTheTextColumnValuesFromTheNextWithGapsKept) {
  Chart chart;
  int changes = 0;
  chart.onChange = [&] { ++changes; };
  // Column 0 empty throughout, as the trend screens hand it over.
  const std::vector<std::vector<Variant>> rows = {{Variant(), " 1", 31.0},
                                                  {Variant(), " 2", Variant(Null{})},
                                                  {Variant(), " 3", Variant()},
                                                  {Variant(), " 4", -48.5}};
  chart.SetChartData(rows);
  EXPECT_EQ(Described(chart), (std::vector<std::string>{"[ 1] 31", "[ 2] none", "[ 3] none", "[ 4] -48.5"}));
  chart.SetChartData(rows);
  EXPECT_EQ(changes, 1) << "the same data again is no change";
  // Without a text column the first used column gives the values.
  chart.SetChartData({{Variant(), 5.0, 7.0}, {Variant(), 6.0}});
  EXPECT_EQ(Described(chart), (std::vector<std::string>{"[] 5", "[] 6"}));
  chart.SetChartData({});
  EXPECT_TRUE(chart.content().points.empty());
}

// One table whose rows carry the given atomic numbers, in stored order.
std::string ChartTable(const std::string& table, const std::string& field, int from, int to, int step = 1) {
  std::string sql = "CREATE TABLE " + table + " (Element TEXT, " + field + " REAL, AtomicNumber INTEGER);";
  for (int n = from; n != to + step; n += step) {
    sql += "INSERT INTO " + table + " VALUES ('E" + std::to_string(n) + "', " + std::to_string(n * 10) + ", " +
           std::to_string(n) + ");";
  }
  return sql;
}

TEST(TrendCharts, ReadAFixedCountOfRowsInStoredOrder) {
  // 93 rows for the integer counter, 95 for the float counter.
  for (const auto& [screen, table, field, rows] :
       {std::tuple{"frmPTable2", "AtomicRadii", "AtomicRadii", 93},
        std::tuple{"frmPTable3", "Electronegativities", "Electronegativity", 95}}) {
    SCOPED_TRACE(screen);
    test::ScreenRun shortRun(ChartTable(table, field, 1, rows - 1));
    EXPECT_EQ(shortRun.Show(screen), nullptr);
    EXPECT_EQ(shortRun.program.EndWords(), "No current record.");
    EXPECT_EQ(shortRun.messages.fatal, "No current record.");

    // Stored backwards with extra rows: the first `rows` are taken as stored.
    test::ScreenRun longRun(ChartTable(table, field, 100, 1, -1));
    Form& f = longRun.Open(screen);
    const auto& content = f.ctl("MSChart1").chart().content();
    ASSERT_EQ(content.points.size(), static_cast<std::size_t>(rows));
    EXPECT_EQ(Describe(content.points.front()), "[ 100] 1000");
    const int last = 101 - rows;
    EXPECT_EQ(Describe(content.points.back()), "[ " + std::to_string(last) + "] " + std::to_string(last * 10));
    EXPECT_EQ(content.type, ChartType::Line2d);
    EXPECT_EQ(content.categoryTicks, TickStyle::Centre);
    EXPECT_TRUE(content.labelAtTick);
  }
}

}  // namespace
}  // namespace orv
