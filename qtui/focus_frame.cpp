#include "qtui/focus_frame.h"

#include <QApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOption>

namespace orv::qt {

namespace {

// How far the ring stands out from the control's edge, and how thick it is:
// half of it over the control's own border, half outside.
constexpr int kOutside = 2;
constexpr int kThickness = 4;

QRegion Ring(const QRect& outer) {
  return QRegion(outer).subtracted(QRegion(outer.adjusted(kThickness, kThickness, -kThickness, -kThickness)));
}

// The style of the focus frames alone: the ring's size, its shape as the
// frame's mask, and its colour, the highlight of the focused control's
// palette with a thin line of its base colour inside for contrast.
class RingStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    if (metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin) return kOutside;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_FocusFrame_AboveWidget) return 1;
    if (hint == SH_FocusFrame_Mask && option != nullptr) {
      if (auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(data)) mask->region = Ring(option->rect);
      return 1;
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element != CE_FocusFrame) {
      QProxyStyle::drawControl(element, option, painter, widget);
      return;
    }
    const auto* frame = qobject_cast<const QFocusFrame*>(widget);
    const QWidget* focused = frame != nullptr ? frame->widget() : nullptr;
    const QPalette palette = focused != nullptr ? focused->palette() : option->palette;
    painter->save();
    painter->setClipRegion(Ring(option->rect));
    painter->fillRect(option->rect, palette.color(QPalette::Active, QPalette::Highlight));
    painter->setPen(QPen(palette.color(QPalette::Active, QPalette::HighlightedText), 1));
    painter->drawRect(option->rect.adjusted(kThickness - 1, kThickness - 1, -kThickness, -kThickness));
    painter->restore();
  }
};

RingStyle& TheRingStyle() {
  static RingStyle* style = [] {
    auto* s = new RingStyle;
    s->setParent(qApp);  // goes with the application
    return s;
  }();
  return *style;
}

// Moves the ring to the window's focus: on every change of the focus and
// when the window comes forward.
class RingKeeper : public QObject {
 public:
  RingKeeper(QWidget* window, QFocusFrame* ring) : QObject(window), window_(window), ring_(ring) {
    window->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
      if (now != nullptr && now->window() == window_) Follow(now);
    });
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show) Follow(window_->focusWidget());
    return false;
  }

 private:
  void Follow(QWidget* focus) {
    if (ring_.isNull()) return;
    // The window itself (a splash taking keys) has no ring.
    ring_->setWidget(focus != nullptr && focus != window_ ? focus : nullptr);
  }

  QWidget* window_;
  QPointer<QFocusFrame> ring_;
};

}  // namespace

void ShowKeyboardFocus(QWidget* window) {
  auto* ring = new QFocusFrame(window);
  ring->setStyle(&TheRingStyle());
  ring->hide();
  new RingKeeper(window, ring);
}

}  // namespace orv::qt
