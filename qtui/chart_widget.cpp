#include "qtui/chart_widget.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "qtui/chart_layout.h"
#include "qtui/theme.h"

namespace orv::qt {

namespace {

// The data's own colours; the frame, grid, axes and words follow the palette
// (ChartInk).
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

void DrawTitles(QPainter& p, const ChartContent& content, const ChartLayout& l, const ChartFonts& fonts,
                const ChartInk& ink) {
  if (!content.title.empty()) {
    p.setFont(fonts.title);
    p.setPen(ink.text);
    p.drawText(l.titleBand, Qt::AlignCenter, QString::fromStdString(content.title));
  }
  if (!content.footnote.empty()) {
    p.setFont(fonts.note);
    p.setPen(ink.muted);
    p.drawText(l.footnoteBand, Qt::AlignCenter, QString::fromStdString(content.footnote));
  }
}

// Grid lines, value ticks and their labels, then the two axes.
void DrawValueAxis(QPainter& p, const ChartLayout& l, const ChartFonts& fonts, const ChartInk& ink) {
  p.setFont(fonts.tick);
  for (const ChartLayout::ValueTick& t : l.valueTicks) {
    p.setPen(QPen(t.zero ? ink.muted : ink.grid, 1.0));
    p.drawLine(QPointF(l.plot.left(), t.y), QPointF(l.plot.right(), t.y));
    p.setPen(QPen(ink.muted, 1));
    p.drawLine(QPointF(l.plot.left() - ChartLayout::kTick, t.y), QPointF(l.plot.left(), t.y));
    p.setPen(ink.text);
    p.drawText(t.labelBox, Qt::AlignRight | Qt::AlignVCenter, t.text);
  }
  p.setPen(QPen(ink.muted, 1.2));
  p.drawLine(l.plot.bottomLeft(), l.plot.topLeft());
  p.drawLine(l.plot.bottomLeft(), l.plot.bottomRight());
}

// Category ticks, and every label: upright ones read from the bottom up and
// end at the axis. Returns the labels as drawn.
std::vector<ChartWidget::CategoryLabel> DrawCategoryAxis(QPainter& p, const ChartLayout& l, const ChartFonts& fonts,
                                                         const ChartInk& ink) {
  std::vector<ChartWidget::CategoryLabel> drawn;
  const QFont face = fonts.CategoryFont(l.face);
  p.setFont(face);
  for (const ChartLayout::Category& c : l.categories) {
    if (c.tick) {
      p.setPen(QPen(ink.muted, 1));
      p.drawLine(QPointF(c.tickX, c.tickTop), QPointF(c.tickX, c.tickBottom));
    }
    p.setPen(ink.text);
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

void DrawAxisTitles(QPainter& p, const ChartContent& content, const ChartLayout& l, const ChartFonts& fonts,
                    const ChartInk& ink) {
  p.setFont(fonts.axis);
  p.setPen(ink.text);
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
void DrawLine(QPainter& p, const ChartLayout& l, const ChartInk& ink) {
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
  p.setBrush(ink.ground);
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
  const ChartInk ink = ChartInkFor(palette());
  p.fillRect(rect(), ink.ground);
  p.setPen(QPen(ink.frame, 1));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));

  const ChartFonts fonts(font());
  const ChartLayout l = LayoutChart(content_, QRectF(rect()), fonts.Metrics());
  DrawTitles(p, content_, l, fonts, ink);
  labels_.clear();
  if (!l.fits) return;
  DrawValueAxis(p, l, fonts, ink);
  labels_ = DrawCategoryAxis(p, l, fonts, ink);
  DrawAxisTitles(p, content_, l, fonts, ink);
  p.save();
  p.setClipRect(l.plot.adjusted(-4, -4, 4, 4));
  if (l.line) {
    DrawLine(p, l, ink);
  } else {
    DrawBars(p, l);
  }
  p.restore();
}

}  // namespace orv::qt
