// Frames: a titled group box that holds the controls naming it as their
// container; clickable like a label.

#include <QGroupBox>

#include "qtui/adapters/adapters.h"

namespace orv::qt {

namespace {

class Frame : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    auto* frame = new QGroupBox(context.parent);
    ClickOnRelease(context.view, frame);
    context.containers[c.name()] = frame;
    return frame;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* frame = static_cast<QGroupBox*>(shown);
    if (SyncCommon(c, frame, what)) return;
    if (what == Prop::Text) frame->setTitle(Q(c.Caption()));
  }
};

}  // namespace

const ControlAdapter& FrameAdapter() {
  static const Frame adapter;
  return adapter;
}

}  // namespace orv::qt
