#include "shell/chart.h"

#include <algorithm>
#include <optional>

#include "shell/numbers.h"

namespace orv {

std::string ChartTypeName(ChartType type) {
  switch (type) {
    case ChartType::Bar3d: return "3d bar";
    case ChartType::Bar2d: return "2d bar";
    case ChartType::Line3d: return "3d line";
    case ChartType::Line2d: return "2d line";
  }
  return std::to_string(static_cast<int>(type));
}

std::string Describe(const ChartPoint& point) {
  const bool none = point.value.IsEmpty() || point.value.IsNull();
  return "[" + point.label + "] " + (none ? std::string("none") : Str(point.value));
}

void Chart::SetChartData(const std::vector<std::vector<Variant>>& table) {
  std::size_t columns = 0;
  for (const auto& row : table) columns = std::max(columns, row.size());
  auto cell = [&](std::size_t r, std::size_t c) -> const Variant* {
    return c < table[r].size() ? &table[r][c] : nullptr;
  };
  auto columnUsed = [&](std::size_t c) {
    for (std::size_t r = 0; r < table.size(); ++r) {
      if (const Variant* v = cell(r, c); v != nullptr && !v->IsEmpty()) return true;
    }
    return false;
  };
  auto columnHasText = [&](std::size_t c) {
    for (std::size_t r = 0; r < table.size(); ++r) {
      if (const Variant* v = cell(r, c); v != nullptr && v->IsText()) return true;
    }
    return false;
  };

  std::optional<std::size_t> labels;
  std::optional<std::size_t> values;
  for (std::size_t c = 0; c < columns && !labels; ++c) {
    if (columnUsed(c) && columnHasText(c)) labels = c;
  }
  if (labels) {
    if (*labels + 1 < columns) values = *labels + 1;
  } else {
    for (std::size_t c = 0; c < columns && !values; ++c) {
      if (columnUsed(c)) values = c;
    }
  }

  std::vector<ChartPoint> points;
  points.reserve(table.size());
  for (std::size_t r = 0; r < table.size(); ++r) {
    ChartPoint p;
    if (labels) p.label = Str(*cell(r, *labels));
    if (values) {
      if (const Variant* v = cell(r, *values)) p.value = *v;
    }
    points.push_back(std::move(p));
  }
  Set(content_.points, std::move(points));
}

template <class T>
void Chart::Set(T& field, T value) {
  if (field == value) return;
  field = std::move(value);
  if (onChange) onChange();
}

void Chart::SetChartType(ChartType type) { Set(content_.type, type); }
void Chart::SetTitle(std::string text) { Set(content_.title, std::move(text)); }
void Chart::SetFootnote(std::string text) { Set(content_.footnote, std::move(text)); }
void Chart::SetCategoryTitle(std::string text) { Set(content_.categoryTitle, std::move(text)); }
void Chart::SetValueTitle(std::string text) { Set(content_.valueTitle, std::move(text)); }
void Chart::SetCategoryTicks(TickStyle style) { Set(content_.categoryTicks, style); }
void Chart::SetLabelAtTick(bool on) { Set(content_.labelAtTick, on); }

}  // namespace orv
