#include "qtui/emblem.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace orv::qt {

namespace {

// The three orbits, each turned 60 degrees further.
void PaintOrbits(QPainter& p, QPointF c, double r) {
  QPen orbit(QColor(30, 90, 160), std::max(1.5, r / 40));
  p.setPen(orbit);
  p.setBrush(Qt::NoBrush);
  for (int k = 0; k < 3; ++k) {
    p.save();
    p.translate(c);
    p.rotate(60.0 * k);
    p.drawEllipse(QPointF(0, 0), r * 0.92, r * 0.34);
    p.restore();
  }
}

// One electron on each orbit.
void PaintElectrons(QPainter& p, QPointF c, double r) {
  p.setBrush(QColor(40, 120, 200));
  for (int k = 0; k < 3; ++k) {
    const double a = (60.0 * k + 25.0) * 3.14159265358979 / 180.0;
    p.save();
    p.translate(c);
    p.rotate(60.0 * k);
    p.drawEllipse(QPointF(r * 0.92 * std::cos(a), r * 0.34 * std::sin(a)), r * 0.055, r * 0.055);
    p.restore();
  }
}

}  // namespace

void Emblem::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QPointF c(width() / 2.0, height() / 2.0);
  const double r = std::min(width(), height()) / 2.0 - 4;
  QRadialGradient glow(c, r);
  glow.setColorAt(0, QColor(225, 238, 252));
  glow.setColorAt(1, QColor(225, 238, 252, 0));
  p.setPen(Qt::NoPen);
  p.setBrush(glow);
  p.drawEllipse(c, r, r);
  PaintOrbits(p, c, r);
  QRadialGradient nucleus(c - QPointF(r * 0.05, r * 0.05), r * 0.2);
  nucleus.setColorAt(0, QColor(255, 190, 120));
  nucleus.setColorAt(1, QColor(200, 70, 30));
  p.setPen(Qt::NoPen);
  p.setBrush(nucleus);
  p.drawEllipse(c, r * 0.16, r * 0.16);
  PaintElectrons(p, c, r);
}

}  // namespace orv::qt
