#include "qtui/window_size.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "shell/look.h"

namespace orv::qt {

namespace {

const char* kScaleProperty = "orvScale";

QRect ToQRect(const Rect& r) { return {r.x, r.y, r.w, r.h}; }

QScreen* ScreenOf(const QWidget& window) {
  QScreen* screen = window.screen();
  return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

// The room the window manager's frame takes: the title bar above, a border
// on the other sides. Known once a window is shown; before, the style's
// title bar height is the best guess.
QMargins FrameOf(const QWidget& window) {
  const QRect frame = window.frameGeometry();
  const QRect inner = window.geometry();
  if (window.isVisible() && frame != inner) {
    return {inner.left() - frame.left(), inner.top() - frame.top(), frame.right() - inner.right(),
            frame.bottom() - inner.bottom()};
  }
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
  return {4, title + 4, 4, 4};
}

// How much larger the desktop font draws than the design font: the same
// words measured in both, plain, bold (captions) and large bold (headings,
// 1.6 times the size), since the fonts' hinting makes each grow a little
// differently.
double MeasureDesktopFontScale() {
  static const QString kWords = QStringLiteral("The Quick Brown Fox Jumps Over The Lazy Dog 0123456789.,");
  struct Variant {
    bool bold;
    double size;
  };
  double scale = 1.0;
  for (const Variant v : {Variant{false, 1.0}, Variant{true, 1.0}, Variant{true, 1.6}}) {
    QFont design(QStringLiteral("DejaVu Sans"));
    design.setPixelSize(static_cast<int>(std::lround(look::kDesignFontPixels * v.size)));
    design.setBold(v.bold);
    QFont desktop = QApplication::font();
    desktop.setPointSizeF(desktop.pointSizeF() * v.size);
    desktop.setBold(v.bold);
    const QFontMetricsF d(design), f(desktop);
    scale = std::max(scale,
                     look::FontScale(f.horizontalAdvance(kWords), d.horizontalAdvance(kWords), f.height(), d.height()));
  }
  return scale;
}

// The measurement depends only on the application font and the screen's
// resolution, so every window after the first reuses it until either
// changes.
double DesktopFontScale() {
  struct Measured {
    QFont font;
    qreal dpi = 0;
    double scale = 1.0;
  };
  static std::optional<Measured> last;
  const QFont font = QApplication::font();
  const QScreen* screen = QGuiApplication::primaryScreen();
  const qreal dpi = screen != nullptr ? screen->logicalDotsPerInchY() : 0;
  if (!last || last->font != font || last->dpi != dpi) last = Measured{font, dpi, MeasureDesktopFontScale()};
  return last->scale;
}

// The fonts of a widget and of everything in it, read all at once, since a
// widget that takes its parent's font would otherwise shrink twice.
std::vector<std::pair<QWidget*, QFont>> FontsOf(QWidget& root) {
  std::vector<std::pair<QWidget*, QFont>> fonts{{&root, root.font()}};
  for (QWidget* w : root.findChildren<QWidget*>()) fonts.emplace_back(w, w->font());
  return fonts;
}

// Gives each widget its font multiplied by `factor`.
void ShrinkFonts(const std::vector<std::pair<QWidget*, QFont>>& fonts, double factor) {
  for (auto [w, f] : fonts) {
    if (f.pointSizeF() > 0) {
      f.setPointSizeF(f.pointSizeF() * factor);
    } else {
      f.setPixelSize(std::max(1, static_cast<int>(std::lround(f.pixelSize() * factor))));
    }
    w->setFont(f);
  }
}

// A menu bar's entries keep their spacing in pixels whatever the font, so
// its font shrinks a step further until every entry stands in the width.
void FitMenuBar(QMenuBar& menu, double shrink, int width) {
  const auto fonts = FontsOf(menu);
  double factor = shrink;
  for (; factor > 0.5 * shrink; factor *= 0.95) {
    ShrinkFonts(fonts, factor);
    if (menu.sizeHint().width() <= width) return;
  }
  ShrinkFonts(fonts, factor);
}

}  // namespace

void ScaleToFont(const Form& form, QWidget& window, QWidget& content,
                 const std::map<const Control*, QPointer<QObject>>& shown) {
  double scale = 1.0;
  if (QScreen* screen = ScreenOf(window)) {
    const double wanted = DesktopFontScale();
    // A window larger than the screen at the font's scale grows only as far
    // as the screen allows, and on a screen too small for the design it
    // shrinks; its fonts then shrink alike, so that no caption is cut.
    const QMargins frame = FrameOf(window);
    auto* menu = window.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
    const int menuHeight = menu != nullptr ? menu->sizeHint().height() : 0;
    const QRect area = screen->availableGeometry();
    scale = look::FittingScale(form.width(), form.height(), wanted, area.width() - frame.left() - frame.right(),
                               area.height() - frame.top() - frame.bottom() - menuHeight);
    const double shrink = look::FontShrink(scale, wanted);
    if (shrink < 1.0) {
      ShrinkFonts(FontsOf(content), shrink);
      if (menu != nullptr) FitMenuBar(*menu, shrink, look::Scaled(form.width(), scale));
    }
  }
  window.setProperty(kScaleProperty, scale);
  content.setFixedSize(look::Scaled(form.width(), scale), look::Scaled(form.height(), scale));
  for (const auto& [control, object] : shown) {
    if (auto* widget = qobject_cast<QWidget*>(object.data())) {
      widget->setGeometry(ToQRect(look::Scaled(control->rect(), scale)));
    }
  }
}

QRect DesignGeometry(const Control& control, const QWidget& widget) {
  const QVariant scale = widget.window()->property(kScaleProperty);
  return ToQRect(look::Scaled(control.rect(), scale.isValid() ? scale.toDouble() : 1.0));
}

void PlaceOnScreen(QWidget& window, QPoint wanted) {
  QScreen* screen = ScreenOf(window);
  if (screen == nullptr) {
    window.move(wanted);
    return;
  }
  const QMargins frame = FrameOf(window);
  const QRect area = screen->availableGeometry();
  const QSize size = window.size().grownBy(frame);
  // A top-level window's position is that of its frame.
  const Rect placed = look::PlaceWithin({wanted.x(), wanted.y(), size.width(), size.height()},
                                        {area.x(), area.y(), area.width(), area.height()});
  window.move(placed.x, placed.y);
}

}  // namespace orv::qt
