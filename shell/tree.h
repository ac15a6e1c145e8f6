#pragma once
// The nodes of a tree view: each with the text the user sees, a unique key,
// the key of its parent, the pictures it shows, whether its branch is open,
// and which node is selected. Nodes are kept in display order among their
// siblings; a view shows the roots and, under an open node, its children.
// No toolkit code lives here.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orv {

class Control;

// Where Add puts a node, relative to an existing one.
enum class TreeRelation : int {
  First = 0,     // first sibling of the relative
  Last = 1,      // last sibling of the relative
  Next = 2,      // right after the relative
  Previous = 3,  // right before the relative
  Child = 4,     // last child of the relative
};

struct TreeNode {
  std::string key;
  std::string text;
  std::string parentKey;  // "" for a root
  int image = 0;          // index into the tree's image list, from 1; 0 for none
  int selectedImage = 0;  // shown instead of image while selected; 0: image
  bool expanded = false;
};

class Tree {
 public:
  // Adds a root: no relative, no relationship.
  const TreeNode& Add(std::string key, std::string text, int image = 0, int selectedImage = 0);
  // Adds a node beside or below the node whose key is `relative`. A key that
  // is taken, empty or purely a number, or a relative that does not exist,
  // is a run-time error.
  const TreeNode& Add(std::string_view relative, TreeRelation relationship, std::string key, std::string text,
                      int image = 0, int selectedImage = 0);
  void Clear();

  // Every node, each node's siblings in their display order (a parent
  // comes before its children).
  const std::vector<TreeNode>& Nodes() const { return nodes_; }
  int Count() const { return static_cast<int>(nodes_.size()); }
  // The node of that key, or nullptr.
  const TreeNode* Find(std::string_view key) const;
  // The children of a node ("" for the roots), in display order.
  std::vector<const TreeNode*> Children(std::string_view key) const;
  // Whether the user can see the node: all its ancestors are open.
  bool Shown(std::string_view key) const;

  // The selected node, or nullptr.
  const TreeNode* SelectedItem() const { return Find(selected_); }
  // Selects the node of that key; "" selects none. A key that does not exist
  // is a run-time error.
  void Select(std::string_view key);
  void SetExpanded(std::string_view key, bool on);

  // The pictures the nodes' image indexes refer to, in order (index 1 first).
  const std::vector<std::string>& ImageList() const { return images_; }
  void SetImageList(std::vector<std::string> pictures);
  // The picture a node shows now: its selected picture while selected.
  std::string PictureOf(const TreeNode& node) const;

  // Told after every change of what the tree shows.
  std::function<void()> onChange;

 private:
  TreeNode* FindMutable(std::string_view key);
  void Changed() const;

  std::vector<TreeNode> nodes_;
  std::string selected_;
  std::vector<std::string> images_;
};

// The user's actions on a tree view's nodes, each one outermost event.
// Moving to a node (with the mouse's press or the arrow keys) selects it;
// a click then raises the control's Click. Double-clicking a node selects it, opens or
// closes its branch when it has children, and raises the control's DblClick.
void UserSelectNode(Control& tree, std::string_view key);
void UserClickNode(Control& tree, std::string_view key);
void UserDblClickNode(Control& tree, std::string_view key);
// The user opened or closed a branch with its button or a key.
void UserExpandNode(Control& tree, std::string_view key, bool on);

}  // namespace orv
