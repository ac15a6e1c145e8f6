#pragma once
// A tree view on screen: shows the model's nodes, open branches, selected
// node and pictures, and reports the user's moves to the runtime, which keeps
// them. The pictures are drawn here: a closed and an open book, a closed and
// an open folder, named as the tree's image list names them.

#include <QPixmap>
#include <QTreeWidget>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace orv {
class Control;
class Tree;
}  // namespace orv

namespace orv::qt {

class TreeWidget : public QTreeWidget {
 public:
  TreeWidget(QWidget* parent, Control& control);

  // Takes over what the model shows.
  void Show(const Tree& tree);

  // The item of the node with that key, or nullptr; the key of an item.
  QTreeWidgetItem* ItemOf(std::string_view key) const;
  static std::string KeyOf(const QTreeWidgetItem* item);
  // Whether the user can see the item: every branch above it is open.
  static bool Shown(const QTreeWidgetItem* item);

  // Runs one piece of the user's input as the view runs input (the runtime
  // call, then the check for the program's end).
  std::function<void(const std::function<void()>&)> onInput;

 protected:
  void focusInEvent(QFocusEvent* e) override;

 private:
  void Input(const std::function<void()>& fn);
  void ShowSelection(const Tree& tree);

  Control& control_;
  bool showing_ = false;
  // The nodes shown: key, text and parent key, in the order added.
  std::vector<std::tuple<std::string, std::string, std::string>> shown_;
};

// The picture of that name drawn small, or a null pixmap for a name it
// does not know.
QPixmap TreePicture(const std::string& name);

}  // namespace orv::qt
