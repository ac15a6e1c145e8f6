// The chart model's reading of a data table, and the trend chart screens on
// small databases that the real data must not be: too few rows, rows out of
// order.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include "app/registry.h"
#include "shell/chart.h"
#include "shell/form.h"
#include "shell/program.h"

namespace orv {
namespace {

namespace fs = std::filesystem;

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
  chart.SetChartData({{Variant(), " 1", 31.0},
                      {Variant(), " 2", Variant(Null{})},
                      {Variant(), " 3", Variant()},
                      {Variant(), " 4", -48.5}});
  EXPECT_EQ(Described(chart), (std::vector<std::string>{"[ 1] 31", "[ 2] none", "[ 3] none", "[ 4] -48.5"}));
  EXPECT_EQ(changes, 1);
  chart.SetChartData({{Variant(), " 1", 31.0},
                      {Variant(), " 2", Variant(Null{})},
                      {Variant(), " 3", Variant()},
                      {Variant(), " 4", -48.5}});
  EXPECT_EQ(changes, 1) << "the same data again is no change";

  // Without a text column the first used column gives the values.
  chart.SetChartData({{Variant(), 5.0, 7.0}, {Variant(), 6.0}});
  EXPECT_EQ(Described(chart), (std::vector<std::string>{"[] 5", "[] 6"}));
  chart.SetChartData({});
  EXPECT_TRUE(chart.content().points.empty());
}

struct TempDir {
  TempDir() {
    std::string pattern = (fs::temp_directory_path() / "orvanta-charts-XXXXXX").string();
    path = mkdtemp(pattern.data()) ? pattern : throw std::runtime_error("mkdtemp failed");
  }
  ~TempDir() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  fs::path path;
};

class QuietMessages : public MessageService {
 public:
  void Show(std::string_view, Icon, std::string_view) override {}
  void ShowFatal(std::string_view words) override { fatal = std::string(words); }
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

// A database beside a fresh program with one table of `rows` rows, whose
// atomic numbers are given in stored order.
struct ChartRun {
  ChartRun(const std::string& table, const std::string& field, const std::vector<int>& numbers) {
    sqlite3* db = nullptr;
    EXPECT_EQ(sqlite3_open((dir.path / "OrvantaData.db").string().c_str(), &db), SQLITE_OK);
    std::string sql = "CREATE TABLE " + table + " (Element TEXT, " + field + " REAL, AtomicNumber INTEGER);";
    for (int n : numbers) {
      sql += "INSERT INTO " + table + " VALUES ('E" + std::to_string(n) + "', " + std::to_string(n * 10) + ", " +
             std::to_string(n) + ");";
    }
    EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
    sqlite3_close(db);
    program.Start();
  }
  const Chart* Open(const std::string& screen) {
    program.UserAction([&] { program.Show(screen); });
    Form* f = program.Find(screen);
    return f != nullptr ? &f->ctl("MSChart1").chart() : nullptr;
  }

  TempDir dir;
  QuietMessages messages;
  NoPrinter printer;
  NoLauncher launcher;
  Program program{AllScreens(), {&messages, &printer, &launcher, nullptr}, dir.path.string()};
};

std::vector<int> Numbers(int from, int to) {
  std::vector<int> out;
  for (int n = from; n <= to; ++n) out.push_back(n);
  return out;
}

TEST(TrendCharts, OneRowShortOfTheFixedCountEndsTheProgramUntrapped) {
  // 93 rows for the integer counter, 95 for the float counter.
  for (const auto& [screen, table, field, rows] :
       {std::tuple{"frmPTable2", "AtomicRadii", "AtomicRadii", 93},
        std::tuple{"frmPTable3", "Electronegativities", "Electronegativity", 95}}) {
    SCOPED_TRACE(screen);
    ChartRun shortRun(table, field, Numbers(1, rows - 1));
    EXPECT_EQ(shortRun.Open(screen), nullptr);
    EXPECT_TRUE(shortRun.program.Ended());
    EXPECT_EQ(shortRun.program.EndWords(), "No current record.");
    EXPECT_EQ(shortRun.messages.fatal, "No current record.");

    ChartRun exactRun(table, field, Numbers(1, rows));
    const Chart* chart = exactRun.Open(screen);
    ASSERT_NE(chart, nullptr);
    EXPECT_FALSE(exactRun.program.Ended());
    ASSERT_EQ(chart->content().points.size(), static_cast<std::size_t>(rows));
    EXPECT_EQ(Describe(chart->content().points.back()), "[ " + std::to_string(rows) + "] " + std::to_string(rows * 10));
  }
}

TEST(TrendCharts, RowsStandInStoredOrderAndRowsPastTheCountAreIgnored) {
  std::vector<int> numbers = Numbers(1, 100);
  std::reverse(numbers.begin(), numbers.end());
  ChartRun run("AtomicRadii", "AtomicRadii", numbers);
  const Chart* chart = run.Open("frmPTable2");
  ASSERT_NE(chart, nullptr);
  const auto& points = chart->content().points;
  ASSERT_EQ(points.size(), 93u);
  EXPECT_EQ(Describe(points.front()), "[ 100] 1000");
  EXPECT_EQ(Describe(points.back()), "[ 8] 80");
  EXPECT_EQ(chart->content().type, ChartType::Line2d);
  EXPECT_EQ(chart->content().categoryTicks, TickStyle::Centre);
  EXPECT_TRUE(chart->content().labelAtTick);
}

}  // namespace
}  // namespace orv
