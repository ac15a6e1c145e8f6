#include "qtui/chart_layout.h"

#include <algorithm>
#include <cmath>

namespace orv::qt {

namespace {

std::optional<double> ValueOf(const ChartPoint& p) {
  if (p.value.IsNumber()) return p.value.Number();
  return std::nullopt;
}

QString Label(const ChartPoint& p) { return QString::fromStdString(p.label).trimmed(); }

// The title on top and the footnote at the bottom take their bands off the
// area.
void LayoutTexts(const ChartContent& content, const ChartMetrics& m, ChartLayout& l) {
  l.area = l.frame.adjusted(ChartLayout::kPad, ChartLayout::kPad, -ChartLayout::kPad, -ChartLayout::kPad);
  if (!content.title.empty()) {
    l.titleBand = QRectF(l.area.left(), l.area.top(), l.area.width(), m.titleHeight);
    l.area.setTop(l.titleBand.bottom() + 8);
  }
  if (!content.footnote.empty()) {
    l.footnoteBand = QRectF(l.area.left(), l.area.bottom() - m.noteHeight, l.area.width(), m.noteHeight);
    l.area.setBottom(l.footnoteBand.top() - 6);
  }
}

// The value scale, from the values that are there, with a tick every 45
// pixels or so.
ValueScale ScaleFor(const ChartContent& content, const ChartMetrics& m, const QRectF& area) {
  std::optional<double> lo, hi;
  for (const ChartPoint& pt : content.points) {
    if (auto v = ValueOf(pt)) {
      lo = lo ? std::min(*lo, *v) : *v;
      hi = hi ? std::max(*hi, *v) : *v;
    }
  }
  const double plotGuess = std::max(40.0, area.height() - 3 * m.tickHeight - m.axisHeight);
  const int wanted = std::clamp(static_cast<int>(plotGuess / 45), 2, 10);
  return MakeScale(lo.value_or(0), hi.value_or(1), wanted);
}

// The plot area leaves room for the value axis title and tick labels on the
// left, the category labels (as deep as their face needs) and title below.
QRectF PlotArea(const ChartContent& content, const ChartMetrics& m, const QRectF& area, double tickWidth) {
  QRectF plot = area;
  plot.setLeft(area.left() + (content.valueTitle.empty() ? 0 : m.axisHeight + 8) + tickWidth + ChartLayout::kTick + 6);
  plot.setRight(area.right() - 8);
  plot.setTop(area.top() + m.tickHeight / 2);
  return plot;
}

void SetPlotBottom(const ChartContent& content, const ChartMetrics& m, ChartLayout& l) {
  l.plot.setBottom(l.area.bottom() - (content.categoryTitle.empty() ? 0 : m.axisHeight + 4) - l.face.depth -
                   ChartLayout::kTick - 6);
}

// Side by side in the tick font where the widest label fits its slot.
CategoryFace FaceFor(const ChartContent& content, const ChartMetrics& m, double slot) {
  std::vector<QString> labels;
  for (const ChartPoint& pt : content.points) labels.push_back(Label(pt));
  if (m.categoryFace) return m.categoryFace(labels, slot);
  CategoryFace face;
  face.depth = m.tickHeight;
  face.width = m.tickWidth;
  return face;
}

double YOf(const ChartLayout& l, double v) {
  return l.plot.bottom() - (v - l.scale.lo) / (l.scale.hi - l.scale.lo) * l.plot.height();
}

// With labels at the ticks a category's tick and its value stand at the
// middle of its slot.
double XOf(const ChartLayout& l, std::size_t i) { return l.plot.left() + (static_cast<double>(i) + 0.5) * l.slot; }

void LayoutValueTicks(const ChartMetrics& m, double tickWidth, ChartLayout& l) {
  const int tickCount = static_cast<int>(std::lround((l.scale.hi - l.scale.lo) / l.scale.step));
  for (int k = 0; k <= tickCount; ++k) {
    ChartLayout::ValueTick t;
    t.value = l.scale.lo + k * l.scale.step;
    t.y = YOf(l, t.value);
    t.zero = std::abs(t.value) < l.scale.step * 1e-9;
    t.text = TickText(t.value, l.scale);
    t.labelBox =
        QRectF(l.plot.left() - ChartLayout::kTick - 4 - tickWidth, t.y - m.tickHeight / 2, tickWidth, m.tickHeight);
    l.valueTicks.push_back(t);
  }
}

// Category ticks, and a label at every one.
void LayoutCategories(const ChartContent& content, const ChartMetrics& m, ChartLayout& l) {
  const TickStyle style = content.categoryTicks;
  const double tickUp = style == TickStyle::Centre || style == TickStyle::Inside ? ChartLayout::kTick : 0;
  const double tickDown = style == TickStyle::Centre || style == TickStyle::Outside ? ChartLayout::kTick : 0;
  const double top = l.plot.bottom() + ChartLayout::kTick + 4;
  for (std::size_t i = 0; i < content.points.size(); ++i) {
    ChartLayout::Category c;
    c.tick = style != TickStyle::None;
    c.tickX = content.labelAtTick ? XOf(l, i) : l.plot.left() + static_cast<double>(i) * l.slot;
    c.tickTop = l.plot.bottom() - tickUp;
    c.tickBottom = l.plot.bottom() + tickDown;
    c.label = Label(content.points[i]);
    const double length = l.face.width(c.label);
    c.labelBox = l.face.upright ? QRectF(XOf(l, i) - l.face.thickness / 2, top, l.face.thickness, length)
                                : QRectF(XOf(l, i) - length / 2, top, length, m.tickHeight);
    l.categories.push_back(c);
  }
}

void LayoutAxisTitles(const ChartContent& content, const ChartMetrics& m, ChartLayout& l) {
  if (!content.categoryTitle.empty()) {
    l.categoryTitleBand = QRectF(l.plot.left(), l.area.bottom() - m.axisHeight, l.plot.width(), m.axisHeight);
  }
  if (!content.valueTitle.empty()) {
    l.valueTitleCentre = QPointF(l.area.left() + m.axisHeight / 2, l.plot.center().y());
    l.valueTitleBand = QRectF(-l.plot.height() / 2, -m.axisHeight / 2, l.plot.height(), m.axisHeight);
  }
}

// Each row's point, and its bar from the base line (zero, or the edge of the
// scale nearest to it).
void LayoutValues(const ChartContent& content, ChartLayout& l) {
  l.line = content.type == ChartType::Line2d || content.type == ChartType::Line3d;
  l.markerRadius = std::clamp(l.slot * 0.28, 1.5, 3.0);
  const double base = YOf(l, std::clamp(0.0, l.scale.lo, l.scale.hi));
  const double w = l.slot * 0.7;
  for (std::size_t i = 0; i < content.points.size(); ++i) {
    const auto v = ValueOf(content.points[i]);
    if (!v) {
      l.points.emplace_back();
      l.bars.emplace_back();
      continue;
    }
    const QPointF at(XOf(l, i), YOf(l, *v));
    l.points.emplace_back(at);
    l.bars.emplace_back(QRectF(QPointF(at.x() - w / 2, std::min(base, at.y())), QSizeF(w, std::abs(base - at.y()))));
  }
}

}  // namespace

ValueScale MakeScale(double lo, double hi, int wanted) {
  lo = std::min(lo, 0.0);
  hi = std::max(hi, 0.0);
  if (hi - lo <= 0) hi = lo + 1;
  const double raw = (hi - lo) / std::max(wanted, 1);
  const double magnitude = std::pow(10.0, std::floor(std::log10(raw)));
  double step = magnitude;
  for (double m : {1.0, 2.0, 2.5, 5.0, 10.0}) {
    if (raw <= m * magnitude * (1 + 1e-9)) {
      step = m * magnitude;
      break;
    }
  }
  ValueScale s;
  s.step = step;
  s.lo = std::floor(lo / step + 1e-9) * step;
  s.hi = std::ceil(hi / step - 1e-9) * step;
  // Enough decimals to tell the ticks apart (2.5 steps need one more).
  const double digits = -std::floor(std::log10(step) + 1e-9);
  s.decimals = std::max(0, static_cast<int>(digits) + (std::fmod(step / magnitude, 1.0) > 1e-9 ? 1 : 0));
  return s;
}

QString TickText(double v, const ValueScale& s) {
  if (std::abs(v) < s.step * 1e-9) v = 0;
  return QString::number(v, 'f', s.decimals);
}

ChartLayout LayoutChart(const ChartContent& content, const QRectF& frame, const ChartMetrics& metrics) {
  ChartLayout l;
  l.frame = frame;
  LayoutTexts(content, metrics, l);
  l.scale = ScaleFor(content, metrics, l.area);
  double tickWidth = 0;
  const int tickCount = static_cast<int>(std::lround((l.scale.hi - l.scale.lo) / l.scale.step));
  for (int k = 0; k <= tickCount; ++k) {
    tickWidth = std::max(tickWidth, metrics.tickWidth(TickText(l.scale.lo + k * l.scale.step, l.scale)));
  }
  l.plot = PlotArea(content, metrics, l.area, tickWidth);
  const std::size_t n = content.points.size();
  l.slot = n > 0 ? l.plot.width() / static_cast<double>(n) : l.plot.width();
  l.face = FaceFor(content, metrics, l.slot);
  SetPlotBottom(content, metrics, l);
  l.fits = l.plot.width() >= 10 && l.plot.height() >= 10;
  if (!l.fits) return l;
  LayoutValueTicks(metrics, tickWidth, l);
  LayoutCategories(content, metrics, l);
  LayoutAxisTitles(content, metrics, l);
  LayoutValues(content, l);
  return l;
}

}  // namespace orv::qt
