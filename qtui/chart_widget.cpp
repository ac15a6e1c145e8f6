#include "qtui/chart_widget.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "qtui/chart_layout.h"

namespace orv::qt {

namespace {

const QColor kFrame(160, 168, 180);
const QColor kInk(40, 44, 52);
const QColor kGrid(226, 230, 236);
const QColor kAxis(90, 96, 106);
const QColor kSeries(31, 97, 170);
const QColor kSeriesFill(31, 97, 170, 60);

// The chart's four kinds of text, from the widget's font.
struct ChartFonts {
  explicit ChartFonts(const QFont& base) : title(base), axis(base), tick(base), note(base) {
    title.setBold(true);
    title.setPointSizeF(base.pointSizeF() * 1.3);
    axis.setBold(true);
    tick.setPointSizeF(base.pointSizeF() * 0.85);
    note.setItalic(true);
    note.setPointSizeF(base.pointSizeF() * 0.9);
  }
  ChartMetrics Metrics() const {
    const QFontMetricsF tickFm(tick);
    return {QFontMetricsF(title).height(),
            QFontMetricsF(axis).height(),
            tickFm.height(),
            QFontMetricsF(note).height(),
            [tickFm](const QString& s) { return tickFm.horizontalAdvance(s); },
            [this](const std::vector<QString>& labels, double slot) { return CategoryFaceFor(labels, slot); }};
  }

  // The tick face side by side when each label fits its slot, otherwise
  // upright, shrunk until the digits' height fits the slot with a pixel to
  // spare (never below a face of 6 pixels).
  CategoryFace CategoryFaceFor(const std::vector<QString>& labels, double slot) const {
    auto widthIn = [](const QFont& f) {
      const QFontMetricsF fm(f);
      return [fm](const QString& s) { return fm.horizontalAdvance(s); };
    };
    auto widest = [&](const QFont& f) {
      double w = 0;
      for (const QString& label : labels) w = std::max(w, widthIn(f)(label));
      return w;
    };
    CategoryFace face;
    if (widest(tick) + 4 <= slot) {
      face.depth = QFontMetricsF(tick).height();
      face.width = widthIn(tick);
      return face;
    }
    face.upright = true;
    QFont f = tick;
    for (double px = QFontInfo(tick).pixelSize();; px -= 0.5) {
      f.setPixelSize(static_cast<int>(std::lround(px)));
      const QRectF ink = QFontMetricsF(f).tightBoundingRect(QStringLiteral("0123456789"));
      if (ink.height() + 1 <= slot || px <= 6) {
        face.thickness = ink.height();
        face.descentBelowInk = ink.bottom();  // at or just below the baseline
        break;
      }
    }
    face.pixelSize = f.pixelSize();
    face.depth = widest(f);
    face.width = widthIn(f);
    return face;
  }

  // The face the category labels are drawn in.
  QFont CategoryFont(const CategoryFace& face) const {
    QFont f = tick;
    if (face.pixelSize > 0) f.setPixelSize(face.pixelSize);
    return f;
  }

  QFont title, axis, tick, note;
};

void DrawTitles(QPainter& p, const ChartContent& content, const ChartLayout& l, const ChartFonts& fonts) {
  if (!content.title.empty()) {
    p.setFont(fonts.title);
    p.setPen(kInk);
    p.drawText(l.titleBand, Qt::AlignCenter, QString::fromStdString(content.title));
  }
  if (!content.footnote.empty()) {
    p.setFont(fonts.note);
    p.setPen(kAxis);
    p.drawText(l.footnoteBand, Qt::AlignCenter, QString::fromStdString(content.footnote));
  }
}

// Grid lines, value ticks and their labels, then the two axes.
void DrawValueAxis(QPainter& p, const ChartLayout& l, const ChartFonts& fonts) {
  p.setFont(fonts.tick);
  for (const ChartLayout::ValueTick& t : l.valueTicks) {
    p.setPen(QPen(t.zero ? kAxis : kGrid, 1.0));
    p.drawLine(QPointF(l.plot.left(), t.y), QPointF(l.plot.right(), t.y));
    p.setPen(QPen(kAxis, 1));
    p.drawLine(QPointF(l.plot.left() - ChartLayout::kTick, t.y), QPointF(l.plot.left(), t.y));
    p.setPen(kInk);
    p.drawText(t.labelBox, Qt::AlignRight | Qt::AlignVCenter, t.text);
  }
  p.setPen(QPen(kAxis, 1.2));
  p.drawLine(l.plot.bottomLeft(), l.plot.topLeft());
  p.drawLine(l.plot.bottomLeft(), l.plot.bottomRight());
}

// Category ticks, and every label: upright ones read from the bottom up and
// end at the axis. Returns the labels as drawn.
std::vector<ChartWidget::CategoryLabel> DrawCategoryAxis(QPainter& p, const ChartLayout& l, const ChartFonts& fonts) {
  std::vector<ChartWidget::CategoryLabel> drawn;
  const QFont face = fonts.CategoryFont(l.face);
  p.setFont(face);
  for (const ChartLayout::Category& c : l.categories) {
    if (c.tick) {
      p.setPen(QPen(kAxis, 1));
      p.drawLine(QPointF(c.tickX, c.tickTop), QPointF(c.tickX, c.tickBottom));
    }
    p.setPen(kInk);
    if (l.face.upright) {
      p.save();
      p.translate(c.labelBox.left() + l.face.thickness, c.labelBox.bottom());
      p.rotate(-90);
      p.drawText(QPointF(0, -l.face.descentBelowInk), c.label);
      p.restore();
    } else {
      p.drawText(c.labelBox, Qt::AlignHCenter | Qt::AlignTop, c.label);
    }
    drawn.push_back({c.label, c.labelBox, l.face.upright, face});
  }
  return drawn;
}

void DrawAxisTitles(QPainter& p, const ChartContent& content, const ChartLayout& l, const ChartFonts& fonts) {
  p.setFont(fonts.axis);
  p.setPen(kInk);
  if (!content.categoryTitle.empty()) {
    p.drawText(l.categoryTitleBand, Qt::AlignCenter, QString::fromStdString(content.categoryTitle));
  }
  if (!content.valueTitle.empty()) {
    p.save();
    p.translate(l.valueTitleCentre);
    p.rotate(-90);
    p.drawText(l.valueTitleBand, Qt::AlignCenter, QString::fromStdString(content.valueTitle));
    p.restore();
  }
}

// The values: a line broken where a row has none, with a ring at each value.
void DrawLine(QPainter& p, const ChartLayout& l) {
  QPainterPath path;
  bool drawing = false;
  for (const auto& at : l.points) {
    if (!at) {
      drawing = false;
    } else if (drawing) {
      path.lineTo(*at);
    } else {
      path.moveTo(*at);
      drawing = true;
    }
  }
  p.setPen(QPen(kSeries, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(Qt::NoBrush);
  p.drawPath(path);
  p.setPen(QPen(kSeries, 1));
  p.setBrush(Qt::white);
  for (const auto& at : l.points) {
    if (at) p.drawEllipse(*at, l.markerRadius, l.markerRadius);
  }
}

void DrawBars(QPainter& p, const ChartLayout& l) {
  p.setPen(QPen(kSeries, 1));
  p.setBrush(kSeriesFill);
  for (const auto& bar : l.bars) {
    if (bar) p.drawRect(*bar);
  }
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
  p.fillRect(rect(), Qt::white);
  p.setPen(QPen(kFrame, 1));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));

  const ChartFonts fonts(font());
  const ChartLayout l = LayoutChart(content_, QRectF(rect()), fonts.Metrics());
  DrawTitles(p, content_, l, fonts);
  labels_.clear();
  if (!l.fits) return;
  DrawValueAxis(p, l, fonts);
  labels_ = DrawCategoryAxis(p, l, fonts);
  DrawAxisTitles(p, content_, l, fonts);
  p.save();
  p.setClipRect(l.plot.adjusted(-4, -4, 4, 4));
  if (l.line) {
    DrawLine(p, l);
  } else {
    DrawBars(p, l);
  }
  p.restore();
}

}  // namespace orv::qt
