#include "shell/controls.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "shell/chart.h"
#include "shell/errors.h"
#include "shell/form.h"
#include "shell/picture.h"
#include "shell/program.h"
#include "shell/rich_text.h"
#include "shell/text.h"
#include "shell/tree.h"

namespace orv {

Control::Control(Form& form, const ControlSpec& design)
    : form_(&form),
      kind_(design.kind),
      name_(design.name),
      index_(design.index),
      rect_(design.rect),
      container_(design.container),
      flags_(design.flags),
      filter_(design.filter),
      shortcut_(design.shortcut),
      text_(design.caption),
      toolTip_(design.toolTip),
      enabled_((design.flags & kDisabled) == 0),
      visible_((design.flags & kHidden) == 0),
      isDefault_((design.flags & kDefault) != 0),
      isCancel_((design.flags & kCancel) != 0) {
  if (kind_ == Kind::Picture) {
    picture_ = std::make_shared<Picture>();
    picture_->onChange = [this] { Notify(Prop::Content); };
  }
  if (kind_ == Kind::RichText) rich_ = std::make_shared<RichText>();
  if (kind_ == Kind::Tree) {
    tree_ = std::make_shared<Tree>();
    tree_->onChange = [this] { Notify(Prop::Content); };
  }
  if (kind_ == Kind::Chart) {
    chart_ = std::make_shared<Chart>();
    chart_->onChange = [this] { Notify(Prop::Content); };
  }
}

Picture& Control::picture() const {
  if (!picture_) {
    std::fprintf(stderr, "%s is no picture box\n", name_.c_str());
    std::abort();
  }
  return *picture_;
}

Chart& Control::chart() const {
  if (!chart_) {
    std::fprintf(stderr, "%s is no chart\n", name_.c_str());
    std::abort();
  }
  return *chart_;
}

const RichText& Control::rich() const {
  if (!rich_) {
    std::fprintf(stderr, "%s is no rich text box\n", name_.c_str());
    std::abort();
  }
  return *rich_;
}

Tree& Control::tree() const {
  if (!tree_) {
    std::fprintf(stderr, "%s is no tree view\n", name_.c_str());
    std::abort();
  }
  return *tree_;
}

void Control::LoadFile(const std::string& path) {
  if (!rich_) static_cast<void>(rich());  // aborts
  std::error_code ec;
  if (!std::filesystem::is_regular_file(path, ec)) Raise(ErrorCode::FileNotFound);
  std::ifstream in(path, std::ios::binary);
  if (!in) Raise(ErrorCode::FileNotFound);
  std::ostringstream content;
  content << in.rdbuf();
  // Lines end in a line feed alone, whatever the file used.
  std::string text;
  for (char c : content.str()) {
    if (c != '\r') text += c;
  }
  SetText(std::move(text));
}

int Control::SelCharOffset() const { return rich().TypingOffset(); }

void Control::SetSelCharOffset(int offset) {
  if (!rich_) static_cast<void>(rich());  // aborts
  rich_->SetOffset(selStart_, selLength_, offset);
  if (selLength_ > 0) Notify(Prop::Text);
}

std::string Control::key() const {
  if (index_ < 0) return name_;
  return name_ + "(" + std::to_string(index_) + ")";
}

void Control::Notify(Prop p) { form_->NotifyControl(*this, p); }

void Control::SetText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  if (kind_ == Kind::TextBox || kind_ == Kind::RichText) {
    // Writing a box's text puts the caret at its start, as a fresh text has.
    selStart_ = 0;
    selLength_ = 0;
    if (rich_) rich_->Reset(CharCount(text_));
    Notify(Prop::Text);
    form_->Fire(this, Ev::Change);
  } else {
    Notify(Prop::Text);
  }
}

void Control::SetTextQuiet(std::string text) {
  if (rich_) rich_->Follow(text_, text, selStart_, selLength_);
  text_ = std::move(text);
  Notify(Prop::Text);
}

void Control::SetEnabled(bool on) {
  if (on == enabled_) return;
  enabled_ = on;
  Notify(Prop::Enabled);
}

void Control::SetVisible(bool on) {
  if (on == visible_) return;
  visible_ = on;
  Notify(Prop::Visible);
}

void Control::SetToolTip(std::string tip) {
  if (tip == toolTip_) return;
  toolTip_ = std::move(tip);
  Notify(Prop::ToolTip);
}

void Control::SetBackColor(int rgb) {
  if (rgb == backColor_) return;
  backColor_ = rgb;
  Notify(Prop::Colors);
}

void Control::SetForeColor(int rgb) {
  if (rgb == foreColor_) return;
  foreColor_ = rgb;
  Notify(Prop::Colors);
}

void Control::SelectOption(bool runClick) {
  for (const auto& other : form_->controls()) {
    if (other.get() != this && other->kind_ == Kind::Option && other->container_ == container_ && other->value_) {
      other->value_ = false;
      other->Notify(Prop::Value);
    }
  }
  value_ = true;
  Notify(Prop::Value);
  if (runClick) form_->Fire(this, Ev::Click);
}

void Control::SetValue(bool on) {
  if (kind_ == Kind::Option) {
    if (on) {
      if (!value_) SelectOption(true);
    } else if (value_) {
      value_ = false;
      Notify(Prop::Value);
    }
    return;
  }
  if (on == value_) return;
  value_ = on;
  Notify(Prop::Value);
  if (kind_ == Kind::CheckBox) form_->Fire(this, Ev::Click);
}

void Control::SetDefault(bool on) {
  if (on) {
    for (const auto& other : form_->controls()) {
      if (other.get() != this && other->isDefault_) {
        other->isDefault_ = false;
        other->Notify(Prop::Role);
      }
    }
  }
  if (on == isDefault_) return;
  isDefault_ = on;
  Notify(Prop::Role);
}

void Control::SetFocus() { form_->SetActive(this); }

bool Control::HasFocus() const { return form_->ActiveControl() == this; }

void Control::SetSelection(int start, int length) {
  const int n = CharCount(text_);
  start = std::clamp(start, 0, n);
  length = std::clamp(length, 0, n - start);
  if (start == selStart_ && length == selLength_) return;
  selStart_ = start;
  selLength_ = length;
  Notify(Prop::Selection);
}

void Control::AddItem(std::string item) {
  list_.push_back(std::move(item));
  Notify(Prop::List);
}

void Control::RemoveItem(int row) {
  if (row < 0 || row >= ListCount()) Raise(ErrorCode::InvalidProcedureCall);
  list_.erase(list_.begin() + row);
  if (listIndex_ >= ListCount()) listIndex_ = -1;
  Notify(Prop::List);
}

void Control::Clear() {
  list_.clear();
  listIndex_ = -1;
  Notify(Prop::List);
}

const std::string& Control::List(int row) const {
  static const std::string kEmpty;
  if (row < 0 || row >= ListCount()) return kEmpty;
  return list_[static_cast<std::size_t>(row)];
}

void Control::SetColumnHeader(std::string list, std::vector<int> columns) {
  headerOf_ = std::move(list);
  headerColumns_ = std::move(columns);
}

void Control::SetListIndex(int row) {
  if (row < -1 || row >= ListCount()) Raise(ErrorCode::InvalidProcedureCall);
  if (row == listIndex_) return;
  listIndex_ = row;
  Notify(Prop::ListIndex);
  form_->Fire(this, Ev::Click);
}

bool Control::TakesInput() const {
  if (!enabled_ || !visible_ || !form_->Visible()) return false;
  if (!container_.empty()) {
    const Control* frame = form_->find(container_);
    if (frame != nullptr && !frame->TakesInput()) return false;
  }
  return true;
}

}  // namespace orv
