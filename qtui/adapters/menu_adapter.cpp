// Menus: a top-level entry with entries under it becomes a menu of the
// window's menu bar; any other entry an action, in its menu or on the bar.
// The action, named as the control, is what shows the entry.

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "qtui/adapters/adapters.h"
#include "qtui/qt_view.h"
#include "shell/form.h"

namespace orv::qt {

namespace {

class Menu : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    QMenuBar* bar = context.MenuBar();
    QAction* action = nullptr;
    bool hasEntries = false;
    for (const auto& other : context.form.controls()) hasEntries |= other->container() == c.name();
    if (c.container().empty() && hasEntries) {
      QMenu* menu = bar->addMenu(Q(c.Caption()));
      menu->setObjectName(Q(c.name()));
      context.menus[c.name()] = menu;
      action = menu->menuAction();
    } else {
      QMenu* owner = c.container().empty() ? nullptr : context.menus[c.container()];
      action = owner != nullptr ? owner->addAction(Q(c.Caption())) : bar->addAction(Q(c.Caption()));
      if (!c.shortcut().empty()) action->setShortcut(QKeySequence(Q(c.shortcut())));
      QtView& view = context.view;
      Control* target = &c;
      QObject::connect(action, &QAction::triggered, &view, [&view, target] { view.Clicked(*target); });
    }
    action->setObjectName(Q(c.name()));
    return action;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* action = static_cast<QAction*>(shown);
    if (what == Prop::Text) action->setText(Q(c.Caption()));
    if (what == Prop::Enabled) action->setEnabled(c.Enabled());
    if (what == Prop::Visible) action->setVisible(c.Visible());
  }
};

}  // namespace

const ControlAdapter& MenuAdapter() {
  static const Menu adapter;
  return adapter;
}

}  // namespace orv::qt
