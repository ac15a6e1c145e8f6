// Option buttons: the runtime clears the other options of the container.

#include <QRadioButton>

#include "qtui/adapters/check_adapters.h"

namespace orv::qt {

namespace {

// A radio button that leaves its state to the model.
class ModelRadio : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void nextCheckState() override {}
};

class Option : public CheckableAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    auto* radio = new ModelRadio(context.parent);
    radio->setAutoExclusive(false);
    return Wire(radio, c, context.view);
  }
};

}  // namespace

const ControlAdapter& OptionAdapter() {
  static const Option adapter;
  return adapter;
}

}  // namespace orv::qt
