#include "qtui/chart_widget.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "qtui/theme.h"

namespace orv::qt {

namespace {

// The data's own colours; the frame, grid, axes and words follow the palette.
const QColor kSeries(31, 97, 170);
const QColor kSeriesFill(31, 97, 170, 60);

std::optional<double> ValueOf(const ChartPoint& p) {
  if (p.value.IsNumber()) return p.value.Number();
  return std::nullopt;
}

// A value axis from lo to hi in steps of 1, 2 or 5 times a power of ten,
// always holding zero so that the rise and fall of the values is measured
// from a true base line.
struct ValueScale {
  double lo = 0;
  double hi = 1;
  double step = 0.2;
  int decimals = 1;
};

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

}  // namespace

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void ChartWidget::Show(const Chart& chart) {
  if (content_ == chart.content()) return;
  content_ = chart.content();
  update();
}

void ChartWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  const ChartInk ink = ChartInkFor(palette());
  const QColor& kFrame = ink.frame;
  const QColor& kInk = ink.text;
  const QColor& kGrid = ink.grid;
  const QColor& kAxis = ink.muted;
  p.fillRect(rect(), ink.ground);
  p.setPen(QPen(kFrame, 1));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));

  const QFont base = font();
  QFont titleFont = base;
  titleFont.setBold(true);
  titleFont.setPointSizeF(base.pointSizeF() * 1.3);
  QFont axisFont = base;
  axisFont.setBold(true);
  QFont tickFont = base;
  tickFont.setPointSizeF(base.pointSizeF() * 0.85);
  QFont noteFont = base;
  noteFont.setItalic(true);
  noteFont.setPointSizeF(base.pointSizeF() * 0.9);
  const QFontMetricsF titleFm(titleFont), axisFm(axisFont), tickFm(tickFont), noteFm(noteFont);

  const double pad = 10;
  QRectF area = QRectF(rect()).adjusted(pad, pad, -pad, -pad);

  // Title on top, footnote at the bottom.
  if (!content_.title.empty()) {
    p.setFont(titleFont);
    p.setPen(kInk);
    const QRectF band(area.left(), area.top(), area.width(), titleFm.height());
    p.drawText(band, Qt::AlignCenter, QString::fromStdString(content_.title));
    area.setTop(band.bottom() + 8);
  }
  if (!content_.footnote.empty()) {
    p.setFont(noteFont);
    p.setPen(kAxis);
    const QRectF band(area.left(), area.bottom() - noteFm.height(), area.width(), noteFm.height());
    p.drawText(band, Qt::AlignCenter, QString::fromStdString(content_.footnote));
    area.setBottom(band.top() - 6);
  }

  // The value scale, from the values that are there.
  const auto& points = content_.points;
  std::optional<double> lo, hi;
  for (const ChartPoint& pt : points) {
    if (auto v = ValueOf(pt)) {
      lo = lo ? std::min(*lo, *v) : *v;
      hi = hi ? std::max(*hi, *v) : *v;
    }
  }
  const double plotGuess = std::max(40.0, area.height() - 3 * tickFm.height() - axisFm.height());
  const int wanted = std::clamp(static_cast<int>(plotGuess / 45), 2, 10);
  const ValueScale scale = MakeScale(lo.value_or(0), hi.value_or(1), wanted);
  const int tickCount = static_cast<int>(std::lround((scale.hi - scale.lo) / scale.step));
  double tickWidth = 0;
  for (int k = 0; k <= tickCount; ++k) {
    tickWidth = std::max(tickWidth, tickFm.horizontalAdvance(TickText(scale.lo + k * scale.step, scale)));
  }

  // The plot area leaves room for the value axis title and tick labels on
  // the left, the category tick labels and title below.
  const double tick = 4;
  QRectF plot = area;
  plot.setLeft(area.left() + (content_.valueTitle.empty() ? 0 : axisFm.height() + 8) + tickWidth + tick + 6);
  plot.setRight(area.right() - 8);
  plot.setTop(area.top() + tickFm.height() / 2);
  plot.setBottom(area.bottom() - (content_.categoryTitle.empty() ? 0 : axisFm.height() + 4) - tickFm.height() - tick -
                 6);
  if (plot.width() < 10 || plot.height() < 10) return;

  auto yOf = [&](double v) { return plot.bottom() - (v - scale.lo) / (scale.hi - scale.lo) * plot.height(); };
  const std::size_t n = points.size();
  const double slot = n > 0 ? plot.width() / static_cast<double>(n) : plot.width();
  // With labels at the ticks a category's tick and its value stand at the
  // middle of its slot.
  auto xOf = [&](std::size_t i) { return plot.left() + (static_cast<double>(i) + 0.5) * slot; };

  // Grid lines and value tick labels.
  p.setFont(tickFont);
  for (int k = 0; k <= tickCount; ++k) {
    const double v = scale.lo + k * scale.step;
    const double y = yOf(v);
    const bool zero = std::abs(v) < scale.step * 1e-9;
    p.setPen(QPen(zero ? kAxis : kGrid, 1.0));
    p.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    p.setPen(QPen(kAxis, 1));
    p.drawLine(QPointF(plot.left() - tick, y), QPointF(plot.left(), y));
    p.setPen(kInk);
    const QRectF box(plot.left() - tick - 4 - tickWidth, y - tickFm.height() / 2, tickWidth, tickFm.height());
    p.drawText(box, Qt::AlignRight | Qt::AlignVCenter, TickText(v, scale));
  }

  // The axes.
  p.setPen(QPen(kAxis, 1.2));
  p.drawLine(plot.bottomLeft(), plot.topLeft());
  p.drawLine(plot.bottomLeft(), plot.bottomRight());

  // Category ticks, and labels as often as they fit side by side.
  double labelWidth = 0;
  for (const ChartPoint& pt : points) {
    labelWidth = std::max(labelWidth, tickFm.horizontalAdvance(QString::fromStdString(pt.label).trimmed()));
  }
  std::size_t every = 1;
  for (std::size_t m : {1, 2, 5, 10, 20, 50, 100, 200, 500, 1000}) {
    every = m;
    if (slot * static_cast<double>(m) >= labelWidth + 8) break;
  }
  const double tickUp =
      content_.categoryTicks == TickStyle::Centre || content_.categoryTicks == TickStyle::Inside ? tick : 0;
  const double tickDown =
      content_.categoryTicks == TickStyle::Centre || content_.categoryTicks == TickStyle::Outside ? tick : 0;
  for (std::size_t i = 0; i < n; ++i) {
    const double x = content_.labelAtTick ? xOf(i) : plot.left() + static_cast<double>(i) * slot;
    const bool labelled = (i + 1) % every == 0;
    if (content_.categoryTicks != TickStyle::None) {
      p.setPen(QPen(kAxis, 1));
      const double longer = labelled && every > 1 ? 2 : 0;
      p.drawLine(QPointF(x, plot.bottom() - tickUp), QPointF(x, plot.bottom() + tickDown + longer));
    }
    if (labelled) {
      p.setPen(kInk);
      const QRectF box(xOf(i) - slot * static_cast<double>(every) / 2 - 20, plot.bottom() + tick + 4,
                       slot * static_cast<double>(every) + 40, tickFm.height());
      p.drawText(box, Qt::AlignHCenter | Qt::AlignTop, QString::fromStdString(points[i].label).trimmed());
    }
  }

  // Axis titles.
  p.setFont(axisFont);
  p.setPen(kInk);
  if (!content_.categoryTitle.empty()) {
    const QRectF band(plot.left(), area.bottom() - axisFm.height(), plot.width(), axisFm.height());
    p.drawText(band, Qt::AlignCenter, QString::fromStdString(content_.categoryTitle));
  }
  if (!content_.valueTitle.empty()) {
    p.save();
    p.translate(area.left() + axisFm.height() / 2, plot.center().y());
    p.rotate(-90);
    const QRectF band(-plot.height() / 2, -axisFm.height() / 2, plot.height(), axisFm.height());
    p.drawText(band, Qt::AlignCenter, QString::fromStdString(content_.valueTitle));
    p.restore();
  }

  // The values: a line broken where a row has none, or bars.
  p.save();
  p.setClipRect(plot.adjusted(-4, -4, 4, 4));
  const bool line = content_.type == ChartType::Line2d || content_.type == ChartType::Line3d;
  if (line) {
    QPainterPath path;
    bool drawing = false;
    for (std::size_t i = 0; i < n; ++i) {
      const auto v = ValueOf(points[i]);
      if (!v) {
        drawing = false;
        continue;
      }
      const QPointF at(xOf(i), yOf(*v));
      if (drawing) {
        path.lineTo(at);
      } else {
        path.moveTo(at);
        drawing = true;
      }
    }
    p.setPen(QPen(kSeries, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.setPen(QPen(kSeries, 1));
    p.setBrush(ink.ground);
    const double r = std::clamp(slot * 0.28, 1.5, 3.0);
    for (std::size_t i = 0; i < n; ++i) {
      if (const auto v = ValueOf(points[i])) p.drawEllipse(QPointF(xOf(i), yOf(*v)), r, r);
    }
  } else {
    p.setPen(QPen(kSeries, 1));
    p.setBrush(kSeriesFill);
    const double base = yOf(std::clamp(0.0, scale.lo, scale.hi));
    for (std::size_t i = 0; i < n; ++i) {
      const auto v = ValueOf(points[i]);
      if (!v) continue;
      const double w = slot * 0.7;
      p.drawRect(QRectF(QPointF(xOf(i) - w / 2, std::min(base, yOf(*v))), QSizeF(w, std::abs(base - yOf(*v)))));
    }
  }
  p.restore();
}

}  // namespace orv::qt
