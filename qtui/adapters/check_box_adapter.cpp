// Check boxes: the runtime turns the value over on a click.

#include <QCheckBox>

#include "qtui/adapters/check_adapters.h"

namespace orv::qt {

namespace {

// A check box that leaves its state to the model.
class ModelCheck : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

class CheckBox : public CheckableAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    return Wire(new ModelCheck(context.parent), c, context.view);
  }
};

}  // namespace

const ControlAdapter& CheckBoxAdapter() {
  static const CheckBox adapter;
  return adapter;
}

}  // namespace orv::qt
