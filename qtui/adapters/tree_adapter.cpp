// Tree views: the widget shows the model's nodes, and its own signals run
// the runtime's node actions, as one piece of the user's input each.

#include "qtui/adapters/adapters.h"
#include "qtui/qt_view.h"
#include "qtui/tree_widget.h"
#include "shell/tree.h"

namespace orv::qt {

namespace {

class Tree : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    auto* tree = new TreeWidget(context.parent, c);
    // None once the tree's screen has gone.
    QtView& view = context.view;
    tree->onInput = [&view, tree](const std::function<void()>& input) {
      if (view.ControlOf(tree) != nullptr) view.RunInput(input);
    };
    return tree;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* tree = static_cast<TreeWidget*>(shown);
    if (SyncCommon(c, tree, what)) return;
    if (what == Prop::Content) tree->Show(c.tree());
  }
};

}  // namespace

const ControlAdapter& TreeAdapter() {
  static const Tree adapter;
  return adapter;
}

}  // namespace orv::qt
