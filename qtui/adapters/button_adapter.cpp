// Command buttons: a push button whose click goes to the runtime; the
// screen's default button is the one Enter presses.

#include <QPushButton>

#include "qtui/adapters/adapters.h"
#include "qtui/qt_view.h"

namespace orv::qt {

namespace {

class Button : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    auto* button = new QPushButton(context.parent);
    button->setAutoDefault(false);
    QtView& view = context.view;
    Control* target = &c;
    QObject::connect(button, &QPushButton::clicked, &view, [&view, target] { view.Clicked(*target); });
    return button;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* button = static_cast<QPushButton*>(shown);
    if (SyncCommon(c, button, what)) return;
    if (what == Prop::Text) button->setText(Q(c.Caption()));
    if (what == Prop::Role) button->setDefault(c.IsDefault());
  }
};

}  // namespace

const ControlAdapter& ButtonAdapter() {
  static const Button adapter;
  return adapter;
}

}  // namespace orv::qt
