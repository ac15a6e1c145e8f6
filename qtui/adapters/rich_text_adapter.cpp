// Rich text boxes: keys come through the runtime like a text box's; what the
// widget reports itself is a paste or drop, and the caret.

#include "qtui/adapters/adapters.h"
#include "qtui/qt_view.h"
#include "qtui/rich_text_widget.h"

namespace orv::qt {

namespace {

class RichText : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    auto* rich = new RichTextWidget(context.parent);
    QtView& view = context.view;
    Control* target = &c;
    rich->onEdited = [&view, target](const QString& t) { view.Edited(*target, t); };
    rich->onCaret = [&view, target](int start, int length) { view.CaretMoved(*target, start, length); };
    // A long text goes in part by part; each later part shows the control
    // as it then stands, unless its screen has gone.
    rich->resync = [&view, rich] {
      if (Control* control = view.ControlOf(rich)) rich->ShowControl(*control);
    };
    return rich;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* rich = static_cast<RichTextWidget*>(shown);
    if (SyncCommon(c, rich, what)) return;
    // The text, its characters' offsets and the caret are shown together.
    if (what == Prop::Text || what == Prop::Selection) rich->ShowControl(c);
  }
};

}  // namespace

const ControlAdapter& RichTextAdapter() {
  static const RichText adapter;
  return adapter;
}

}  // namespace orv::qt
