#pragma once
// Option buttons and check boxes: both show the model's value only. A click
// tells the runtime, which decides the new state and sends it back.

#include <QAbstractButton>

#include "qtui/adapters/adapters.h"
#include "qtui/qt_view.h"

namespace orv::qt {

class CheckableAdapter : public ControlAdapter {
 public:
  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* button = static_cast<QAbstractButton*>(shown);
    if (SyncCommon(c, button, what)) return;
    if (what == Prop::Text) button->setText(Q(c.Caption()));
    if (what == Prop::Value) button->setChecked(c.Value());
  }

 protected:
  static QObject* Wire(QAbstractButton* button, Control& c, QtView& view) {
    Control* target = &c;
    QObject::connect(button, &QAbstractButton::clicked, &view, [&view, target] { view.Clicked(*target); });
    return button;
  }
};

}  // namespace orv::qt
