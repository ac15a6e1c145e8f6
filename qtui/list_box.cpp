#include "qtui/list_box.h"

#include <QFocusEvent>
#include <QItemSelectionModel>
#include <QSignalBlocker>

namespace orv::qt {

ListBox::ListBox(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  // Focus alone moves the current row but selects nothing, so the selection
  // is what tells the user's choice.
  connect(this, &QListWidget::itemSelectionChanged, this, [this] {
    if (onSelected) onSelected(SelectedRow());
  });
}

int ListBox::SelectedRow() const {
  const QModelIndexList rows = selectionModel()->selectedIndexes();
  return rows.isEmpty() ? -1 : rows.first().row();
}

void ListBox::focusInEvent(QFocusEvent* event) {
  // A list view makes its first row current when it gains the focus with no
  // current row; take that back, so that no row looks chosen.
  const bool hadCurrent = currentIndex().isValid();
  QListWidget::focusInEvent(event);
  if (!hadCurrent && currentIndex().isValid() && SelectedRow() == -1) {
    const QSignalBlocker block(this);
    selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
  }
}

}  // namespace orv::qt
