#include "shell/form.h"

#include <cstdio>
#include <cstdlib>

#include "shell/program.h"

namespace orv {

namespace {
const char* kFormName = "Form";

bool CanFocus(const Control& c) {
  switch (c.kind()) {
    case Kind::TextBox:
    case Kind::Button:
    case Kind::Option:
    case Kind::CheckBox:
    case Kind::ListBox:
    case Kind::RichText:
    case Kind::Tree: return c.TakesInput();
    default: return false;
  }
}
}  // namespace

Form::Form(Program& program, const FormSpec& design, std::span<const ControlSpec> controls)
    : program_(&program),
      name_(design.name),
      caption_(design.caption),
      width_(design.width),
      height_(design.height),
      style_(design.style) {
  controls_.reserve(controls.size());
  for (const ControlSpec& c : controls) {
    controls_.push_back(std::make_unique<Control>(*this, c));
  }
}

Form::~Form() = default;

void Form::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  if (View* v = program_->view(); v != nullptr && loaded_) v->FormCaptionChanged(*this);
}

Control* Form::find(std::string_view name, int index) const {
  for (const auto& c : controls_) {
    if (c->name() == name && c->index() == index) return c.get();
  }
  return nullptr;
}

Control& Form::ctl(std::string_view name, int index) const {
  Control* c = find(name, index);
  if (c == nullptr) {
    std::fprintf(stderr, "%s has no control %.*s(%d)\n", name_.c_str(), static_cast<int>(name.size()), name.data(),
                 index);
    std::abort();
  }
  return *c;
}

Control* Form::DefaultButton() const {
  for (const auto& c : controls_) {
    if (c->IsDefault()) return c.get();
  }
  return nullptr;
}

Control* Form::CancelButton() const {
  for (const auto& c : controls_) {
    if (c->IsCancel()) return c.get();
  }
  return nullptr;
}

void Form::On(std::string_view control, Ev ev, Handler h) {
  if (control != kFormName && !Declares(control)) {
    std::fprintf(stderr, "%s binds %.*s, a control it does not declare\n", name_.c_str(),
                 static_cast<int>(control.size()), control.data());
    std::abort();
  }
  handlers_[{std::string(control), ev}] = std::move(h);
}

bool Form::Declares(std::string_view name) const {
  for (const auto& c : controls_) {
    if (c->name() == name) return true;
  }
  return false;
}

bool Form::HasHandler(std::string_view control, Ev ev) const {
  return handlers_.find(std::pair<std::string, Ev>(std::string(control), ev)) != handlers_.end();
}

void Form::Fire(const Control* c, Ev ev, EventArgs& args) {
  const std::string& name = c != nullptr ? c->name() : std::string(kFormName);
  auto it = handlers_.find(std::pair<std::string, Ev>(name, ev));
  if (it == handlers_.end()) return;
  if (c != nullptr) args.index = c->index();
  Handler& h = it->second;
  program_->RunRoutine([&h, &args] { h(args); });
}

void Form::Fire(const Control* c, Ev ev) {
  EventArgs args;
  Fire(c, ev, args);
}

void Form::Call(std::string_view control, Ev ev) {
  auto it = handlers_.find(std::pair<std::string, Ev>(std::string(control), ev));
  if (it == handlers_.end()) return;
  EventArgs args;
  it->second(args);
}

void Form::FireForm(Ev ev, EventArgs& args) { Fire(nullptr, ev, args); }

void Form::EmptyBoxes(std::initializer_list<std::string_view> names) {
  EmptyBoxes(std::span<const std::string_view>(names.begin(), names.size()));
}

void Form::EmptyBoxes(std::span<const std::string_view> names) {
  for (std::string_view name : names) ctl(name).SetText("");
}

int Form::MsgBox(std::string_view text, Icon icon, std::string_view title) {
  program_->messages().Show(text, icon, title);
  return 1;
}

void Form::Beep() { program_->messages().Beep(); }

void Form::PrintForm() { program_->printer().PrintImage(*this); }

void Form::Show() { program_->Show(name_); }
void Form::Hide() { program_->Hide(name_); }
void Form::Unload() { program_->Unload(*this); }
void Form::ShowForm(std::string_view name) { program_->Show(name); }
void Form::HideForm(std::string_view name) { program_->Hide(name); }
void Form::UnloadForm(std::string_view name) { program_->Unload(name); }

void Form::SetActive(Control* c) {
  if (c == active_) return;
  Control* old = active_;
  active_ = c;
  if (View* v = program_->view(); v != nullptr && loaded_) v->FocusChanged(*this, c);
  if (old != nullptr) Fire(old, Ev::LostFocus);
  if (c != nullptr && active_ == c) Fire(c, Ev::GotFocus);
}

void Form::SetVisibleFlag(bool on) { visible_ = on; }

void Form::NotifyControl(Control& c, Prop p) {
  if (View* v = program_->view(); v != nullptr && loaded_) v->ControlChanged(c, p);
  // A control that can no longer take input gives up the focus.
  if ((p == Prop::Enabled || p == Prop::Visible) && active_ == &c && !c.TakesInput() && visible_) {
    active_ = nullptr;
  }
}

Control* Form::FirstTabStop() const {
  for (const auto& c : controls_) {
    if (CanFocus(*c)) return c.get();
  }
  return nullptr;
}

Control* Form::NextTabStop(Control* from, bool backwards) const {
  const int n = static_cast<int>(controls_.size());
  if (n == 0) return nullptr;
  int start = -1;
  for (int i = 0; i < n; ++i) {
    if (controls_[static_cast<std::size_t>(i)].get() == from) start = i;
  }
  for (int step = 1; step <= n; ++step) {
    int i = backwards ? start - step : start + step;
    i = ((i % n) + n) % n;
    Control* c = controls_[static_cast<std::size_t>(i)].get();
    if (CanFocus(*c)) return c;
  }
  return nullptr;
}

}  // namespace orv
