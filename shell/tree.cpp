#include "shell/tree.h"

#include <algorithm>
#include <cctype>

#include "shell/controls.h"
#include "shell/errors.h"
#include "shell/form.h"
#include "shell/program.h"

namespace orv {

namespace {

// A key names a node: not empty and not a number, which would read as a
// position.
bool UsableKey(std::string_view key) {
  return !key.empty() &&
         !std::all_of(key.begin(), key.end(), [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; });
}

}  // namespace

void Tree::Changed() const {
  if (onChange) onChange();
}

const TreeNode* Tree::Find(std::string_view key) const {
  if (key.empty()) return nullptr;
  for (const TreeNode& n : nodes_) {
    if (n.key == key) return &n;
  }
  return nullptr;
}

TreeNode* Tree::FindMutable(std::string_view key) { return const_cast<TreeNode*>(Find(key)); }

const TreeNode& Tree::Add(std::string key, std::string text, int image, int selectedImage) {
  if (!UsableKey(key) || Find(key) != nullptr) Raise(ErrorCode::InvalidProcedureCall);
  nodes_.push_back({std::move(key), std::move(text), "", image, selectedImage, false});
  Changed();
  return nodes_.back();
}

const TreeNode& Tree::Add(std::string_view relative, TreeRelation relationship, std::string key, std::string text,
                          int image, int selectedImage) {
  const TreeNode* rel = Find(relative);
  if (rel == nullptr || !UsableKey(key) || Find(key) != nullptr) Raise(ErrorCode::InvalidProcedureCall);
  const auto relAt = rel - nodes_.data();
  const std::string siblingsOf = rel->parentKey;
  TreeNode node{std::move(key), std::move(text), relationship == TreeRelation::Child ? rel->key : siblingsOf,
                image,          selectedImage,   false};
  // Siblings show in the order they stand in nodes_, so a node goes where
  // its place among them is; a parent always stands before its children.
  auto at = nodes_.end();
  switch (relationship) {
    case TreeRelation::Child:
    case TreeRelation::Last: break;
    case TreeRelation::Next: at = nodes_.begin() + relAt + 1; break;
    case TreeRelation::Previous: at = nodes_.begin() + relAt; break;
    case TreeRelation::First:
      at = std::find_if(nodes_.begin(), nodes_.end(), [&](const TreeNode& n) { return n.parentKey == siblingsOf; });
      break;
    default: Raise(ErrorCode::InvalidProcedureCall);
  }
  at = nodes_.insert(at, std::move(node));
  Changed();
  return *at;
}

void Tree::Clear() {
  nodes_.clear();
  selected_.clear();
  Changed();
}

std::vector<const TreeNode*> Tree::Children(std::string_view key) const {
  std::vector<const TreeNode*> out;
  for (const TreeNode& n : nodes_) {
    if (n.parentKey == key) out.push_back(&n);
  }
  return out;
}

bool Tree::Shown(std::string_view key) const {
  const TreeNode* n = Find(key);
  if (n == nullptr) return false;
  for (const TreeNode* p = Find(n->parentKey); p != nullptr; p = Find(p->parentKey)) {
    if (!p->expanded) return false;
  }
  return true;
}

void Tree::Select(std::string_view key) {
  if (!key.empty() && Find(key) == nullptr) Raise(ErrorCode::InvalidProcedureCall);
  if (key == selected_) return;
  selected_ = std::string(key);
  Changed();
}

void Tree::SetExpanded(std::string_view key, bool on) {
  TreeNode* n = FindMutable(key);
  if (n == nullptr) Raise(ErrorCode::InvalidProcedureCall);
  if (n->expanded == on) return;
  n->expanded = on;
  Changed();
}

void Tree::SetImageList(std::vector<std::string> pictures) {
  images_ = std::move(pictures);
  Changed();
}

std::string Tree::PictureOf(const TreeNode& node) const {
  int index = node.image;
  if (node.key == selected_ && node.selectedImage > 0) index = node.selectedImage;
  if (index < 1 || index > static_cast<int>(images_.size())) return {};
  return images_[static_cast<std::size_t>(index - 1)];
}

void UserSelectNode(Control& tree, std::string_view key) {
  tree.form().program().UserAction([&] {
    if (!tree.TakesInput() || !tree.form().Loaded()) return;
    tree.SetFocus();
    tree.tree().Select(key);
  });
}

void UserClickNode(Control& tree, std::string_view key) {
  tree.form().program().UserAction([&] {
    if (!tree.TakesInput() || !tree.form().Loaded()) return;
    tree.SetFocus();
    tree.tree().Select(key);
    tree.form().Fire(&tree, Ev::Click);
  });
}

void UserDblClickNode(Control& tree, std::string_view key) {
  tree.form().program().UserAction([&] {
    if (!tree.TakesInput() || !tree.form().Loaded()) return;
    tree.SetFocus();
    Tree& t = tree.tree();
    t.Select(key);
    if (!t.Children(key).empty()) t.SetExpanded(key, !t.Find(key)->expanded);
    tree.form().Fire(&tree, Ev::DblClick);
  });
}

void UserExpandNode(Control& tree, std::string_view key, bool on) {
  tree.form().program().UserAction([&] {
    if (tree.form().Loaded() && tree.tree().Find(key) != nullptr) tree.tree().SetExpanded(key, on);
  });
}

}  // namespace orv
