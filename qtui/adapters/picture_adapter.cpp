// Picture boxes: the widget paints a copy of the model's display list.

#include "qtui/adapters/adapters.h"
#include "qtui/picture_widget.h"
#include "shell/picture.h"

namespace orv::qt {

namespace {

class Picture : public ControlAdapter {
 public:
  QObject* Create(Control&, BuildContext& context) const override { return new PictureWidget(context.parent); }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* picture = static_cast<PictureWidget*>(shown);
    if (SyncCommon(c, picture, what)) return;
    if (what == Prop::Content) picture->Show(c.picture());
  }
};

}  // namespace

const ControlAdapter& PictureAdapter() {
  static const Picture adapter;
  return adapter;
}

}  // namespace orv::qt
