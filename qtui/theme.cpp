#include "qtui/theme.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QWidget>

#include "shell/look.h"

namespace orv::qt {

namespace {

// A little above the least readable contrast, so that text drawn with
// antialiasing still reaches it at the cores of its strokes.
constexpr double kDimmedText = 5.0;

// The gray a screen stands on when the palette's own ground is darker.
constexpr int kGray = 0xC0C0C0;

// The room a line edit leaves for its text.
int TextRoom(const QLineEdit& edit) {
  QStyleOptionFrame option;
  option.initFrom(&edit);
  option.rect = edit.rect();
  option.lineWidth = edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit) : 0;
  const QRect room = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
  const QMargins margins = edit.textMargins();
  // QLineEdit keeps two pixels each side of its text besides its margins.
  return room.width() - margins.left() - margins.right() - 4;
}

// Whether the control's text is cut where it stands.
bool TextCut(const QWidget& widget, const QString& text) {
  if (text.isEmpty()) return false;
  const QFontMetrics metrics(widget.font());
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
    return metrics.horizontalAdvance(text) > TextRoom(*edit);
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->wordWrap() || text.contains('\n')) return false;
    const int room = label->contentsRect().width() - 2 * label->margin() - 2 * label->indent();
    return metrics.horizontalAdvance(text) > room;
  }
  return false;
}

void SetDisabledInk(QWidget& widget, QPalette::ColorRole ground, QPalette::ColorRole ink) {
  QPalette palette = widget.palette();
  const int back = ToRgb(palette.color(QPalette::Disabled, ground));
  const int wanted = ToRgb(palette.color(QPalette::Active, ink));
  if (look::Contrast(ToRgb(palette.color(QPalette::Disabled, ink)), back) >= kDimmedText) return;
  const QColor readable = ToQColor(look::ReadableInk(wanted, back, kDimmedText));
  palette.setColor(QPalette::Disabled, ink, readable);
  widget.setPalette(palette);
}

}  // namespace

QColor ToQColor(int rgb) { return QColor::fromRgb(QRgb(static_cast<unsigned>(rgb) | 0xFF000000u)); }
int ToRgb(const QColor& color) { return static_cast<int>(color.rgb() & 0xFFFFFFu); }

void MakeReadable(QWidget& widget, const Control& control) {
  // Only a control the screen disabled needs its dimmed text corrected; it
  // keeps the correction when enabled again, where it is not drawn.
  if (qobject_cast<QLineEdit*>(&widget) != nullptr) {
    if (!control.Enabled()) SetDisabledInk(widget, QPalette::Base, QPalette::Text);
  } else if (qobject_cast<QLabel*>(&widget) != nullptr) {
    if (!control.Enabled()) SetDisabledInk(widget, QPalette::Window, QPalette::WindowText);
  } else if (qobject_cast<QAbstractButton*>(&widget) != nullptr && control.BackColor() != kNoColor &&
             control.ForeColor() == kNoColor) {
    QPalette palette = widget.palette();
    const QColor caption = ToQColor(look::CaptionOn(control.BackColor()));
    if (palette.color(QPalette::Active, QPalette::ButtonText) != caption ||
        !palette.isBrushSet(QPalette::Active, QPalette::ButtonText)) {
      palette.setColor(QPalette::ButtonText, caption);
      widget.setPalette(palette);
    }
  }
  // The whole of a cut answer in its tool tip; a tool tip the screen gave
  // stays as it is.
  if (control.ToolTip().empty()) {
    const QString text = QString::fromStdString(control.Text());
    const QString tip = TextCut(widget, text) ? text : QString();
    if (widget.toolTip() != tip) widget.setToolTip(tip);
  }
}

void ApplyFormGround(QWidget& window, const Form& form) {
  if ((form.style() & kFormGrayGround) == 0) return;
  QPalette palette = window.palette();
  const int ground = ToRgb(palette.color(QPalette::Active, QPalette::Window));
  if (look::Luminance(ground) >= look::Luminance(kGray)) return;
  // A dark palette: the form's gray, with text that reads on it. Buttons
  // keep the palette's own face and caption.
  const QColor gray = ToQColor(kGray);
  const QColor text = ToQColor(look::CaptionOn(kGray));
  for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    palette.setColor(group, QPalette::Window, gray);
    palette.setColor(group, QPalette::WindowText, text);
  }
  window.setPalette(palette);
}

ChartInk ChartInkFor(const QPalette& palette) {
  const int ground = ToRgb(palette.color(QPalette::Active, QPalette::Base));
  const int text = look::ReadableInk(ToRgb(palette.color(QPalette::Active, QPalette::Text)), ground);
  ChartInk ink;
  ink.ground = ToQColor(ground);
  ink.text = ToQColor(text);
  ink.muted = ToQColor(look::ReadableInk(look::Mix(ground, text, 0.6), ground));
  ink.frame = ToQColor(look::Mix(ground, text, 0.35));
  ink.grid = ToQColor(look::Mix(ground, text, 0.12));
  return ink;
}

}  // namespace orv::qt
