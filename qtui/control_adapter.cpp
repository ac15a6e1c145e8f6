#include "qtui/control_adapter.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFontDatabase>
#include <QMenuBar>
#include <QPalette>
#include <QWidget>

#include "qtui/adapters/adapters.h"
#include "qtui/qt_view.h"

namespace orv::qt {

QMenuBar* BuildContext::MenuBar() {
  if (menuBar_ == nullptr) menuBar_ = new QMenuBar(window);
  return menuBar_;
}

const ControlAdapter& AdapterFor(Kind kind) {
  // No default: a new kind without an adapter does not compile.
  switch (kind) {
    case Kind::TextBox: return TextBoxAdapter();
    case Kind::Label: return LabelAdapter();
    case Kind::Button: return ButtonAdapter();
    case Kind::Option: return OptionAdapter();
    case Kind::CheckBox: return CheckBoxAdapter();
    case Kind::Frame: return FrameAdapter();
    case Kind::ListBox: return ListBoxAdapter();
    case Kind::Menu: return MenuAdapter();
    case Kind::Image: return ImageAdapter();
    case Kind::RichText: return RichTextAdapter();
    case Kind::Picture: return PictureAdapter();
    case Kind::Chart: return ChartAdapter();
    case Kind::Tree: return TreeAdapter();
  }
  return LabelAdapter();  // not reached
}

void SyncAll(const ControlAdapter& adapter, const Control& c, QObject* shown) {
  for (Prop p : {Prop::Enabled, Prop::Visible, Prop::ToolTip, Prop::Colors, Prop::Text, Prop::Value, Prop::Role,
                 Prop::List, Prop::ListIndex, Prop::Selection, Prop::Content}) {
    adapter.Sync(c, shown, p);
  }
}

void ControlAdapter::Sync(const Control& c, QObject* shown, Prop what) const {
  if (auto* w = qobject_cast<QWidget*>(shown)) SyncCommon(c, w, what);
}

bool ControlAdapter::SyncCommon(const Control& c, QWidget* w, Prop what) {
  switch (what) {
    case Prop::Enabled: w->setEnabled(c.Enabled()); return true;
    case Prop::Visible: w->setVisible(c.Visible()); return true;
    case Prop::ToolTip: w->setToolTip(Q(c.ToolTip())); return true;
    case Prop::Colors: break;
    default: return false;
  }
  // Colours the screen set: a button's face and caption, a label's ground
  // and text. A control without any keeps the style's palette.
  if (c.BackColor() != kNoColor || c.ForeColor() != kNoColor) {
    const bool button = qobject_cast<QAbstractButton*>(w) != nullptr;
    QPalette palette;  // only the roles set here; the rest as inherited
    if (c.BackColor() != kNoColor) {
      palette.setColor(button ? QPalette::Button : QPalette::Window, QColor::fromRgb(QRgb(c.BackColor())));
      w->setAutoFillBackground(!button);
    }
    if (c.ForeColor() != kNoColor) {
      palette.setColor(button ? QPalette::ButtonText : QPalette::WindowText, QColor::fromRgb(QRgb(c.ForeColor())));
    }
    w->setPalette(palette);
  } else if (w->testAttribute(Qt::WA_SetPalette)) {
    w->setPalette(QPalette());
    w->setAutoFillBackground(false);
  }
  return true;
}

namespace {

class ReleaseClick : public QObject {
 public:
  ReleaseClick(QtView& view, QObject* parent) : QObject(parent), view_(view) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::MouseButtonRelease || view_.program() == nullptr) return false;
    Control* control = view_.ControlOf(watched);
    if (control == nullptr) return false;
    view_.Clicked(*control);
    return true;  // the click is the label's, not its frame's too
  }

 private:
  QtView& view_;
};

}  // namespace

void ClickOnRelease(QtView& view, QWidget* w) { w->installEventFilter(new ReleaseClick(view, w)); }

QFont FontFor(const Control& c, const QFont& base) {
  QFont f = (c.flags() & kFixedPitch) != 0 ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : base;
  if ((c.flags() & kBold) != 0) f.setBold(true);
  if ((c.flags() & kLarge) != 0) f.setPointSizeF(f.pointSizeF() * 1.6);
  if ((c.flags() & kSmall) != 0) f.setPointSizeF(f.pointSizeF() * 0.85);
  return f;
}

Qt::Alignment AlignFor(const Control& c) {
  if ((c.flags() & kCenter) != 0) return Qt::AlignCenter;
  if ((c.flags() & kRightAlign) != 0) return Qt::AlignRight | Qt::AlignVCenter;
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace orv::qt
