#include "shell/program.h"

#include <algorithm>

#include "shell/arrow_keys.h"
#include "shell/key_filter.h"
#include "shell/text.h"
#include "shell/tree.h"

namespace orv {

// Marks one outermost event. Screens unloaded during it are destroyed when
// it is over, never under a routine that is still running; the end of the
// program stops here.
class Program::Outermost {
 public:
  explicit Outermost(Program& p) : p_(p) { ++p_.depth_; }
  ~Outermost() {
    if (--p_.depth_ == 0) p_.Flush();
  }
  Outermost(const Outermost&) = delete;
  Outermost& operator=(const Outermost&) = delete;

  // Runs fn; ProgramEnded stops at the outermost level only.
  template <class Fn>
  void Run(Fn&& fn) {
    if (p_.ended_) return;
    if (p_.depth_ > 1) {
      fn();
      return;
    }
    try {
      fn();
    } catch (const ProgramEnded&) {
    }
  }

 private:
  Program& p_;
};

Program::Program(const ScreenRegistry& registry, Services services, std::string exeDir)
    : registry_(registry), services_(services), exeDir_(std::move(exeDir)) {}

Program::~Program() {
  // The view goes before the screens it shows.
  if (services_.view != nullptr) {
    for (auto& f : forms_) services_.view->FormUnloaded(*f);
  }
}

void Program::Start() {
  Outermost o(*this);
  o.Run([this] { RunRoutine([this] { registry_.main(*this); }); });
}

bool Program::IsBuilt(std::string_view name) const { return registry_.screens.find(name) != registry_.screens.end(); }

Form* Program::Find(std::string_view name) const {
  for (const auto& f : forms_) {
    if (f->name() == name) return f.get();
  }
  return nullptr;
}

Form* Program::Load(std::string_view name) {
  if (Form* f = Find(name)) return f;
  auto it = registry_.screens.find(name);
  if (it == registry_.screens.end()) return nullptr;
  forms_.push_back(it->second(*this));
  Form* f = forms_.back().get();
  f->SetLoadedFlag(true);
  zorder_.push_back(f);
  if (services_.view != nullptr) services_.view->FormLoaded(*f);
  EventArgs args;
  f->FireForm(Ev::Load, args);
  return f;
}

Form* Program::Show(std::string_view name) {
  Form* f = Load(name);
  if (f == nullptr || !f->Loaded()) return f;
  const bool wasVisible = f->Visible();
  f->SetVisibleFlag(true);
  zorder_.erase(std::remove(zorder_.begin(), zorder_.end(), f), zorder_.end());
  zorder_.push_back(f);
  if (!wasVisible && f->ActiveControl() == nullptr) {
    if (Control* first = f->FirstTabStop()) f->SetActive(first);
  }
  if (services_.view != nullptr) services_.view->FormShown(*f);
  if (!wasVisible) {
    EventArgs args;
    f->FireForm(Ev::Activate, args);
  }
  return f;
}

void Program::Hide(std::string_view name) {
  Form* f = Find(name);
  if (f == nullptr || !f->Visible()) return;
  f->SetVisibleFlag(false);
  if (services_.view != nullptr) services_.view->FormHidden(*f);
}

void Program::Unload(std::string_view name) {
  if (Form* f = Find(name)) Unload(*f);
}

void Program::Unload(Form& form) {
  if (!form.Loaded()) return;
  EventArgs query;
  form.FireForm(Ev::QueryUnload, query);
  if (query.cancel || !form.Loaded()) return;
  EventArgs args;
  form.FireForm(Ev::Unload, args);
  if (args.cancel || !form.Loaded()) return;
  form.SetLoadedFlag(false);
  form.SetVisibleFlag(false);
  if (services_.view != nullptr) services_.view->FormUnloaded(form);
  zorder_.erase(std::remove(zorder_.begin(), zorder_.end(), &form), zorder_.end());
  auto it = std::find_if(forms_.begin(), forms_.end(), [&form](const auto& p) { return p.get() == &form; });
  if (it != forms_.end()) {
    graveyard_.push_back(std::move(*it));
    forms_.erase(it);
  }
  if (depth_ == 0) Flush();
}

std::vector<Form*> Program::LoadedForms() const {
  std::vector<Form*> out;
  for (const auto& f : forms_) out.push_back(f.get());
  return out;
}

Form* Program::Front() const {
  for (auto it = zorder_.rbegin(); it != zorder_.rend(); ++it) {
    if ((*it)->Visible()) return *it;
  }
  return nullptr;
}

void Program::Flush() { graveyard_.clear(); }

void Program::CloseAll() {
  while (!forms_.empty()) {
    Form& f = *forms_.back();
    f.SetLoadedFlag(false);
    f.SetVisibleFlag(false);
    if (services_.view != nullptr) services_.view->FormUnloaded(f);
    graveyard_.push_back(std::move(forms_.back()));
    forms_.pop_back();
  }
  zorder_.clear();
}

void Program::End() {
  ended_ = true;
  CloseAll();
  throw ProgramEnded{};
}

void Program::Fatal(const RuntimeError& error) {
  endWords_ = error.words();
  endedOnError_ = true;
  messages().ShowFatal(error.words());
  End();
}

void Program::RunRoutine(const std::function<void()>& fn) {
  try {
    fn();
  } catch (const RuntimeError& e) {
    Fatal(e);
  }
}

void Program::UserAction(const std::function<void()>& fn) {
  Outermost o(*this);
  o.Run([&] { RunRoutine(fn); });
}

// --- keys ---

int KeyCodeOfChar(int ascii) {
  if (ascii >= 'a' && ascii <= 'z') return ascii - 'a' + 'A';
  if ((ascii >= 'A' && ascii <= 'Z') || (ascii >= '0' && ascii <= '9') || ascii == ' ') return ascii;
  switch (ascii) {
    case 8: return kKeyBack;
    case 13: return kKeyReturn;
    case 27: return kKeyEscape;
    case '+':
    case '=': return 187;
    case ',':
    case '<': return 188;
    case '-':
    case '_': return 189;
    case '.':
    case '>': return 190;
    case '/':
    case '?': return 191;
    case 22: return 'V';
    default: return 0;
  }
}

void Program::MoveFocus(Form& form, Control* from, bool backwards) {
  if (Control* next = form.NextTabStop(from, backwards)) next->SetFocus();
}

void Program::TypeChar(Control& box, int ascii) {
  std::string text = box.Text();
  const std::size_t from = ByteOffset(text, box.SelStart());
  const std::size_t to = ByteOffset(text, box.SelStart() + box.SelLength());
  int caret = box.SelStart();
  if (ascii == kKeyBack) {
    if (box.SelLength() > 0) {
      text.erase(from, to - from);
    } else if (caret > 0) {
      const std::size_t prev = ByteOffset(text, caret - 1);
      text.erase(prev, from - prev);
      --caret;
    } else {
      return;
    }
  } else if (ascii >= 32 && ascii != 127) {
    text.replace(from, to - from, Chr(ascii));
    ++caret;
  } else if (ascii == kCtrlC || ascii == kCtrlX) {
    // A box that lets these through copies, or cuts, its selection.
    if (box.SelLength() == 0) return;
    if (services_.clipboard != nullptr) services_.clipboard->SetText(text.substr(from, to - from));
    if (ascii == kCtrlC) return;
    text.erase(from, to - from);
  } else if (ascii == kCtrlV) {
    // Pasting by key puts the clipboard's text in as it stands.
    const std::string paste = services_.clipboard != nullptr ? services_.clipboard->Text() : std::string();
    text.replace(from, to - from, paste);
    caret += CharCount(paste);
  } else if (ascii == kKeyReturn && (box.flags() & kMultiLine) != 0) {
    text.replace(from, to - from, "\r\n");
    caret += 2;
  } else {
    return;  // other control characters insert nothing in a one-line box
  }
  const bool changed = text != box.Text();
  box.SetTextQuiet(std::move(text));
  box.SetSelection(caret, 0);
  if (changed) box.form().Fire(&box, Ev::Change);
}

// Keys that edit or move in a text box without producing a character.
bool Program::EditBox(Control& box, const Key& key) {
  const int n = CharCount(box.Text());
  const int start = box.SelStart();
  const int end = start + box.SelLength();
  switch (key.code) {
    case kKeyDelete: {
      std::string text = box.Text();
      std::size_t a = ByteOffset(text, start);
      std::size_t b = ByteOffset(text, box.SelLength() > 0 ? end : std::min(start + 1, n));
      if (a == b) return true;
      text.erase(a, b - a);
      box.SetTextQuiet(std::move(text));
      box.SetSelection(start, 0);
      box.form().Fire(&box, Ev::Change);
      return true;
    }
    case kKeyLeft: box.SetSelection(box.SelLength() > 0 ? start : std::max(start - 1, 0), 0); return true;
    case kKeyRight: box.SetSelection(box.SelLength() > 0 ? end : std::min(start + 1, n), 0); return true;
    case kKeyHome: box.SetSelection(0, 0); return true;
    case kKeyEnd: box.SetSelection(n, 0); return true;
    default: return false;
  }
}

// The menu entry of the screen whose shortcut ("Ctrl+X") is this key.
Control* Program::MenuShortcut(Form& form, const Key& key) {
  if ((key.shift & kCtrlMask) == 0 || key.code < 'A' || key.code > 'Z') return nullptr;
  const std::string wanted = std::string("Ctrl+") + static_cast<char>(key.code);
  for (const auto& c : form.controls()) {
    if (c->kind() == Kind::Menu && c->shortcut() == wanted) return c.get();
  }
  return nullptr;
}

bool Program::UserKey(Form& form, Control* focus, const Key& key) {
  bool taken = false;
  Outermost o(*this);
  o.Run([&] { RouteKey(form, focus, key, taken); });
  return taken;
}

// One key's way through a screen, in the order the steps must run: the menu's
// shortcuts, the screen's KeyDown, the window's own keys, the control's
// KeyDown, then the character and the KeyUp. Any routine on the way may unload
// or hide the screen, which ends the key's way there, or end the program,
// which leaves `taken` as it stood at that moment.
void Program::RouteKey(Form& form, Control* focus, const Key& key, bool& taken) {
  if (!form.Loaded() || !form.Visible()) return;
  if (focus != nullptr && !focus->TakesInput()) focus = nullptr;

  // A menu entry's shortcut goes to the menu before the screen sees the key.
  if (Control* entry = MenuShortcut(form, key)) {
    taken = true;
    if (entry->TakesInput()) form.Fire(entry, Ev::Click);
    return;
  }

  // The screen sees every key first.
  EventArgs down;
  down.keyCode = key.code;
  down.shift = key.shift;
  form.FireForm(Ev::KeyDown, down);
  taken = true;
  if (!form.Loaded() || !form.Visible()) return;
  if (WindowKey(form, focus, key)) return;

  const bool onButton = focus != nullptr && focus->kind() == Kind::Button;
  if (focus != nullptr) {
    down.keyCode = key.code;
    form.Fire(focus, Ev::KeyDown, down);
    if (!form.Loaded() || !form.Visible()) return;
    if (!focus->TakesInput()) focus = nullptr;
  }
  // The arrow keys move from a command button to the nearest one that way.
  if (onButton && focus != nullptr && IsArrowKey(key.code) && key.shift == 0) {
    if (Control* next = ButtonToward(*focus, key.code)) next->SetFocus();
    return;
  }
  FinishKey(form, focus, key, taken);
}

// The keys the window handles before the control in focus sees them: Enter
// and Esc press an enabled default or cancel button, Enter presses the command
// button in focus, Tab moves the focus. True when the key was one of these.
bool Program::WindowKey(Form& form, Control* focus, const Key& key) {
  if (key.code == kKeyReturn || key.code == kKeyEscape) {
    Control* button = key.code == kKeyReturn ? form.DefaultButton() : form.CancelButton();
    if (button != nullptr && button->TakesInput()) {
      form.Fire(button, Ev::Click);
      return true;
    }
  }
  // With no enabled default button to take it, Enter presses the command
  // button in focus, as the space bar does.
  const bool onButton = focus != nullptr && focus->kind() == Kind::Button;
  if (key.code == kKeyReturn && onButton && key.shift == 0) {
    form.Fire(focus, Ev::Click);
    return true;
  }
  if (key.code == kKeyTab) {
    MoveFocus(form, focus, (key.shift & kShiftMask) != 0);
    return true;
  }
  return false;
}

// The end of a key's way: its character (or its editing keys in a box), Enter
// on a tree, and the KeyUp. Outside a box the key is left to the toolkit,
// which moves in lists and presses buttons itself.
void Program::FinishKey(Form& form, Control* focus, const Key& key, bool& taken) {
  const bool box = focus != nullptr && (focus->kind() == Kind::TextBox || focus->kind() == Kind::RichText);
  if (key.ascii != 0) {
    if (!PressChar(form, focus, key.ascii, box)) return;
  } else if (box) {
    EditBox(*focus, key);
  }
  taken = box;
  // Enter on a tree's selected node opens it as a double click does.
  if (key.code == kKeyReturn && focus != nullptr && focus->kind() == Kind::Tree && form.Loaded() &&
      focus->TakesInput() && focus->tree().SelectedItem() != nullptr) {
    form.Fire(focus, Ev::DblClick);
    taken = true;
  }
  if (focus != nullptr && form.Loaded() && focus->TakesInput()) {
    EventArgs up;
    up.keyCode = key.code;
    up.shift = key.shift;
    form.Fire(focus, Ev::KeyUp, up);
  }
}

// A key's character: the screen's KeyPress, the control's KeyPress and its
// filter, then the character typed into a box. False when a routine unloaded
// the screen or took the input from the control, which ends the key's way.
bool Program::PressChar(Form& form, Control* focus, int ascii, bool box) {
  EventArgs press;
  press.keyAscii = ascii;
  form.FireForm(Ev::KeyPress, press);
  if (!form.Loaded()) return false;
  // Esc is the screen's key: with no cancel button to press, it reaches
  // the screen's own KeyPress and nothing else.
  if (press.keyAscii == kKeyEscape) press.keyAscii = 0;
  if (focus != nullptr && press.keyAscii != 0) {
    form.Fire(focus, Ev::KeyPress, press);
    if (focus->filter() != nullptr) focus->filter()->Apply(form, press.keyAscii);
    if (!form.Loaded() || !focus->TakesInput()) return false;
  }
  if (box && press.keyAscii != 0) TypeChar(*focus, press.keyAscii);
  return true;
}

void Program::UserClick(Control& control) {
  Outermost o(*this);
  o.Run([&] {
    if (!control.TakesInput() || !control.form().Loaded()) return;
    Form& form = control.form();
    switch (control.kind()) {
      case Kind::Option:
        control.SetFocus();
        if (!control.Value()) {
          control.SetValue(true);  // runs the Click
        } else {
          form.Fire(&control, Ev::Click);
        }
        break;
      case Kind::CheckBox:
        control.SetFocus();
        control.SetValue(!control.Value());  // runs the Click
        break;
      case Kind::Button:
        control.SetFocus();
        form.Fire(&control, Ev::Click);
        break;
      default: form.Fire(&control, Ev::Click); break;
    }
  });
}

void Program::UserDblClick(Control& control) {
  Outermost o(*this);
  o.Run([&] {
    if (!control.TakesInput()) return;
    control.form().Fire(&control, Ev::DblClick);
  });
}

void Program::UserEdit(Control& box, std::string text) {
  Outermost o(*this);
  o.Run([&] {
    if (!box.TakesInput()) return;
    box.SetFocus();
    if (text == box.Text()) return;
    const int caret = CharCount(text);
    box.SetTextQuiet(std::move(text));
    box.SetSelection(caret, 0);
    box.form().Fire(&box, Ev::Change);
  });
}

void Program::UserSelectRow(Control& list, int row) {
  Outermost o(*this);
  o.Run([&] {
    if (!list.TakesInput()) return;
    list.SetFocus();
    list.SetListIndex(row);
  });
}

void Program::UserFocus(Control& control) {
  Outermost o(*this);
  o.Run([&] {
    if (control.form().Loaded()) control.SetFocus();
  });
}

void Program::UserCaret(Control& box, int start, int length) {
  if (box.form().Loaded()) box.SetSelection(start, length);
}

void Program::UserClose(Form& form) {
  Outermost o(*this);
  o.Run([&] { Unload(form); });
}

}  // namespace orv
