// List boxes: rows of text and a selected row. Selecting a row is the
// user's input; the rows only change when the model's list does.

#include <QListWidget>
#include <algorithm>

#include "qtui/adapters/adapters.h"
#include "qtui/list_box.h"
#include "qtui/qt_view.h"
#include "qtui/window_size.h"

namespace orv::qt {

namespace {

class ListBoxKind : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    // Only the user's own selection is the list's Click, never the focus.
    auto* list = new ListBox(context.parent);
    QtView& view = context.view;
    Control* target = &c;
    list->onSelected = [&view, target](int row) {
      if (!view.Syncing()) view.RowSelected(*target, row);
    };
    return list;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* list = static_cast<QListWidget*>(shown);
    if (SyncCommon(c, list, what)) return;
    if (what == Prop::List) ShowRows(c, list);
    // Emptying or shortening the list clears the selection too.
    if (what != Prop::List && what != Prop::ListIndex) return;
    if (c.ListIndex() >= 0) {
      list->setCurrentRow(c.ListIndex());
    } else {
      // No row chosen: none selected, and none marked as current either.
      list->clearSelection();
      list->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    }
  }

 private:
  static void ShowRows(const Control& c, QListWidget* list) {
    QStringList rows;
    for (const std::string& row : c.Items()) rows << Q(row);
    QStringList shown;
    for (int i = 0; i < list->count(); ++i) shown << list->item(i)->text();
    if (rows == shown) return;
    list->clear();
    list->addItems(rows);
    // Like a list box of the old desktops, show whole rows only: the list
    // gives up the part of its height that would show half a row.
    if (list->count() > 0) {
      const int row = list->sizeHintForRow(0);
      const int frame = 2 * list->frameWidth();
      const int height = DesignGeometry(c, *list).height();
      const int rowsShown = std::max(1, (height - frame) / std::max(row, 1));
      list->setFixedHeight(std::min(height, rowsShown * row + frame));
    }
  }
};

}  // namespace

const ControlAdapter& ListBoxAdapter() {
  static const ListBoxKind adapter;
  return adapter;
}

}  // namespace orv::qt
