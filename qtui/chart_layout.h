#pragma once
// Where everything of a chart goes, as plain data: the bands of the title,
// footnote and axis titles, the plot area, the value scale and its ticks,
// the category ticks and labels, and each row's point or bar. The chart
// widget only draws what this lays out.

#include <QPointF>
#include <QRectF>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "shell/chart.h"

namespace orv::qt {

// A value axis from lo to hi in steps of 1, 2, 2.5 or 5 times a power of
// ten, always holding zero so that the rise and fall of the values is
// measured from a true base line.
struct ValueScale {
  double lo = 0;
  double hi = 1;
  double step = 0.2;
  int decimals = 1;
};

// About `wanted` steps over the values from lo to hi.
ValueScale MakeScale(double lo, double hi, int wanted);
// A tick's value with the scale's decimals.
QString TickText(double v, const ValueScale& s);

// How the category labels stand: side by side in the tick font where each
// fits its slot, otherwise upright in a face small enough for one slot each.
struct CategoryFace {
  bool upright = false;
  int pixelSize = 0;                            // the upright face's size; 0 keeps the tick font
  double depth = 0;                             // room the labels take below the axis
  double thickness = 0;                         // an upright label's extent across its slot
  double descentBelowInk = 0;                   // from the baseline up to the digits' foot
  std::function<double(const QString&)> width;  // a label's length in the face
};

// The heights of the chart's four kinds of text, the width of a tick label
// (value or category) as the tick font sets it, and the face of the category
// labels for the width of one slot.
struct ChartMetrics {
  double titleHeight = 0;
  double axisHeight = 0;
  double tickHeight = 0;
  double noteHeight = 0;
  std::function<double(const QString&)> tickWidth;
  std::function<CategoryFace(const std::vector<QString>& labels, double slot)> categoryFace;
};

struct ChartLayout {
  // A tick of the value axis with its grid line across the plot.
  struct ValueTick {
    double value = 0;
    double y = 0;
    bool zero = false;  // the base line, drawn darker
    QString text;
    QRectF labelBox;  // the label stands right-aligned in it
  };
  // A row on the category axis: its tick, if the chart has ticks, and its
  // label. An upright label reads from the bottom up and ends at the axis;
  // its box is the room it covers.
  struct Category {
    bool tick = false;
    double tickX = 0;
    double tickTop = 0;
    double tickBottom = 0;
    QRectF labelBox;  // side by side, the label stands centred at its top
    QString label;
  };

  static constexpr double kPad = 10;
  static constexpr double kTick = 4;

  QRectF frame;         // the whole widget
  QRectF titleBand;     // empty without a title
  QRectF footnoteBand;  // empty without a footnote
  QRectF area;          // inside the padding, less the title and footnote
  // Whether there is room for a plot at all; when not, only the title and
  // footnote are shown and nothing below is laid out.
  bool fits = false;
  QRectF plot;
  ValueScale scale;
  double slot = 0;  // the width of one row
  std::vector<ValueTick> valueTicks;
  std::vector<Category> categories;
  CategoryFace face;
  QRectF categoryTitleBand;  // empty without a title
  // The value title runs upwards, centred in a band about this point.
  QPointF valueTitleCentre;
  QRectF valueTitleBand;  // relative to the centre, before turning
  // Each row's value as a point (none for a row without one) for a line, or
  // a bar from the base line.
  bool line = false;
  std::vector<std::optional<QPointF>> points;
  std::vector<std::optional<QRectF>> bars;
  double markerRadius = 0;
};

ChartLayout LayoutChart(const ChartContent& content, const QRectF& frame, const ChartMetrics& metrics);

}  // namespace orv::qt
