#include "qtui/picture_widget.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace orv::qt {

namespace {

QColor ToQColor(Color c) { return QColor((c >> 16) & 0xFF, (c >> 8) & 0xFF, c & 0xFF); }

// Whether `later` hides all of `earlier`: the same centre, and either a
// filled disc at least as large, or an outline of the same size. Such items
// are left out when painting, so that painting a dot or a ring out in the
// background colour leaves no antialiased fringe of it behind.
bool Hides(const PictureItem& later, const PictureItem& earlier) {
  if (later.x != earlier.x || later.y != earlier.y) return false;
  if (later.filled) return earlier.radius <= later.radius;
  return !earlier.filled && earlier.radius == later.radius;
}

}  // namespace

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void PictureWidget::Show(const Picture& picture) {
  const auto& model = picture.Items();
  const bool grown = picture.Clears() == clears_ && model.size() >= items_.size() &&
                     std::equal(items_.begin(), items_.end(), model.begin());
  if (grown) {
    items_.insert(items_.end(), model.begin() + static_cast<std::ptrdiff_t>(items_.size()), model.end());
  } else {
    items_ = model;
  }
  clears_ = picture.Clears();
  scale_ = picture.scale();
  back_ = picture.BackColor();
  update();
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter p(this);
  p.fillRect(rect(), ToQColor(back_));
  if (scale_.width == 0 || scale_.height == 0) return;
  p.setRenderHint(QPainter::Antialiasing);
  const double sx = width() / static_cast<double>(scale_.width);
  const double sy = height() / static_cast<double>(scale_.height);
  // Outlines are one pixel wide on a surface of the program's usual size
  // and grow with it.
  const double pen = std::max(1.0, width() / 244.0);

  // Items hidden by a later one are skipped; the scan runs from the end so
  // that only the items still in sight are compared.
  std::vector<const PictureItem*> shown;
  for (auto it = items_.rbegin(); it != items_.rend(); ++it) {
    const bool hidden =
        std::any_of(shown.begin(), shown.end(), [&](const PictureItem* later) { return Hides(*later, *it); });
    if (!hidden) shown.push_back(&*it);
  }
  for (auto it = shown.rbegin(); it != shown.rend(); ++it) {
    const PictureItem& item = **it;
    const QPointF centre((item.x - scale_.left) * sx, (item.y - scale_.top) * sy);
    const double r = std::abs(item.radius * sx);
    p.setPen(QPen(ToQColor(item.line), pen));
    p.setBrush(item.filled ? QBrush(ToQColor(item.fill)) : QBrush(Qt::NoBrush));
    p.drawEllipse(centre, r, r);
  }
}

}  // namespace orv::qt
