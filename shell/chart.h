#pragma once
// The model of a chart control: the data table it was handed, reduced to one
// labelled value per row, with the titles and settings that decide how a view
// draws it. No toolkit code lives here.

#include <functional>
#include <string>
#include <vector>

#include "shell/variant.h"

namespace orv {

// Chart types, numbered as the chart control numbers them. A view draws every
// type flat: the line types as a line, the others as bars.
enum class ChartType : int {
  Bar3d = 0,
  Bar2d = 1,
  Line3d = 2,
  Line2d = 3,
};

// "3d bar", "2d bar", "3d line", "2d line", or the number for another type.
std::string ChartTypeName(ChartType type);

// Tick marks of an axis, numbered as the chart control numbers them.
enum class TickStyle : int {
  None = 0,
  Centre = 1,  // across the axis line
  Inside = 2,
  Outside = 3,
};

// One row of the data: its label and its value, which may be Empty or Null
// (no value: a line leaves a gap there) or a number.
struct ChartPoint {
  std::string label;
  Variant value;

  bool operator==(const ChartPoint&) const = default;
};

// "[label] value", the label exactly as it stands between the brackets and
// the value in the number-to-text form of a 64-bit float, or "none" for a
// row without a value.
std::string Describe(const ChartPoint& point);

// Everything a view needs to draw the chart, copied whole.
struct ChartContent {
  ChartType type = ChartType::Bar3d;
  std::string title;
  std::string footnote;
  std::string categoryTitle;  // the axis along the rows
  std::string valueTitle;     // the axis of the values
  TickStyle categoryTicks = TickStyle::Outside;
  bool labelAtTick = false;  // category labels stand at the ticks, not between
  std::vector<ChartPoint> points;

  bool operator==(const ChartContent&) const = default;
};

class Chart {
 public:
  // Takes a whole table of values, a row per data point. Columns that are
  // empty in every row are left out; the first column holding a text gives
  // the rows' labels and the column after it their values. Without a text
  // column the rows have no labels and the first column left gives the values.
  void SetChartData(const std::vector<std::vector<Variant>>& table);

  void SetChartType(ChartType type);
  void SetTitle(std::string text);
  void SetFootnote(std::string text);
  void SetCategoryTitle(std::string text);
  void SetValueTitle(std::string text);
  void SetCategoryTicks(TickStyle style);
  void SetLabelAtTick(bool on);

  const ChartContent& content() const { return content_; }

  // Told after every change of what the chart shows.
  std::function<void()> onChange;

 private:
  template <class T>
  void Set(T& field, T value);

  ChartContent content_;
};

}  // namespace orv
