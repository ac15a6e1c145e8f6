#pragma once
// A list box: a QListWidget whose rows are chosen only by the user's own
// selection (a click, the arrow keys, typing a row's first letters). Gaining
// the focus chooses nothing, and leaves no row highlighted as the current one
// where nothing is selected.

#include <QListWidget>
#include <functional>

namespace orv::qt {

class ListBox : public QListWidget {
  Q_OBJECT

 public:
  explicit ListBox(QWidget* parent = nullptr);

  // Called with the row the user selected, -1 when the user cleared it.
  std::function<void(int)> onSelected;

  // The selected row, -1 for none.
  int SelectedRow() const;

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace orv::qt
