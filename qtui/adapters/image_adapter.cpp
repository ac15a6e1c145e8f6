// Images: the program's emblem, clickable like a label.

#include "qtui/adapters/adapters.h"
#include "qtui/emblem.h"

namespace orv::qt {

namespace {

class Image : public ControlAdapter {
 public:
  QObject* Create(Control&, BuildContext& context) const override {
    auto* image = new Emblem(context.parent);
    ClickOnRelease(context.view, image);
    return image;
  }
};

}  // namespace

const ControlAdapter& ImageAdapter() {
  static const Image adapter;
  return adapter;
}

}  // namespace orv::qt
