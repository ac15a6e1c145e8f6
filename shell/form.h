#pragma once
// A screen: its controls, declared once in a table, and its event routines,
// bound by control name and event. The screen's own class keeps the routines
// under their usual names (cmdOk_Click, Text1_KeyPress) and binds them in its
// constructor.

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/controls.h"
#include "shell/errors.h"
#include "shell/services.h"

namespace orv {

class Program;

enum class Ev {
  Load,
  Unload,
  QueryUnload,
  Activate,
  Click,
  DblClick,
  Change,
  KeyDown,
  KeyPress,
  KeyUp,
  GotFocus,
  LostFocus,
  MouseDown,
};

// What an event routine receives. Key routines may change the key: a
// KeyPress that sets keyAscii to 0 swallows the character.
struct EventArgs {
  int index = -1;  // member of a control array
  int keyAscii = 0;
  int keyCode = 0;
  int shift = 0;
  bool cancel = false;
};

enum FormStyle : unsigned {
  kFormFixed = 0,       // a fixed-size window with a title bar
  kFormSplash = 1,      // borderless, centred, above the main screen
  kFormMain = 2,        // the main screen: menu bar, closing it ends the program
  kFormGrayGround = 4,  // stands on a gray ground whatever the desktop's palette
};

struct FormSpec {
  std::string_view name;
  std::string_view caption;
  int width;  // client area, logical pixels
  int height;
  unsigned style = kFormFixed;
};

class Form {
 public:
  Form(Program& program, const FormSpec& design, std::span<const ControlSpec> controls);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Program& program() const { return *program_; }
  const std::string& name() const { return name_; }
  int width() const { return width_; }
  int height() const { return height_; }
  unsigned style() const { return style_; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  bool Visible() const { return visible_; }
  bool Loaded() const { return loaded_; }

  // The control of that name (and index, for a control array). Asking for a
  // control the screen does not have is a programming error and aborts.
  Control& ctl(std::string_view name, int index = -1) const;
  Control* find(std::string_view name, int index = -1) const;
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

  Control* ActiveControl() const { return active_; }
  Control* DefaultButton() const;
  Control* CancelButton() const;

  // Raises an event: runs the bound routine, if any. A run-time error that
  // leaves the routine untrapped ends the program.
  void Fire(const Control* c, Ev ev, EventArgs& args);
  void Fire(const Control* c, Ev ev);
  void FireForm(Ev ev, EventArgs& args);
  bool HasHandler(std::string_view control, Ev ev) const;

  // Runs the routine bound to a control's event directly, as a routine that
  // calls another does: no test of the control's state, and a run-time error
  // goes to the caller.
  void Call(std::string_view control, Ev ev);

  // Runs body under an error trap: a run-time error shows one message box
  // (the error's own words when trap.text is empty) and ends the routine.
  struct Trap {
    std::string_view text;
    Icon icon;
    std::string_view title;
  };
  template <class Fn>
  void Trapped(const Trap& trap, Fn&& body) {
    try {
      body();
    } catch (const RuntimeError& e) {
      MsgBox(trap.text.empty() ? std::string_view(e.words()) : trap.text, trap.icon, trap.title);
    }
  }

  // Empties the named boxes in turn, each raising its Change as a write does.
  void EmptyBoxes(std::initializer_list<std::string_view> names);
  void EmptyBoxes(std::span<const std::string_view> names);

  // Screen services for the routines.
  int MsgBox(std::string_view text, Icon icon, std::string_view title);
  void Beep();
  void PrintForm();
  void Show();
  void Hide();
  void Unload();
  // Shows another screen (loads it if needed); nothing when not built.
  void ShowForm(std::string_view name);
  void HideForm(std::string_view name);
  void UnloadForm(std::string_view name);

  // Runtime bookkeeping (used by the Program and the controls).
  void SetActive(Control* c);
  void SetVisibleFlag(bool on);
  void SetLoadedFlag(bool on) { loaded_ = on; }
  void NotifyControl(Control& c, Prop p);
  // The first control in declaration order that can take the focus.
  Control* FirstTabStop() const;
  Control* NextTabStop(Control* from, bool backwards) const;

 protected:
  using Handler = std::function<void(EventArgs&)>;
  // Binds a handler to an event of a control the screen declares, or of
  // "Form". Binding any other name is a programming error and aborts, so that
  // a misspelt name fails when the screen is built rather than never firing.
  void On(std::string_view control, Ev ev, Handler h);

  // Binds a routine of the derived screen. The routine's signature says what
  // it receives: nothing, a control-array index, a key (KeyAscii for
  // KeyPress, KeyCode for KeyDown/KeyUp), a key with the shift state, or an
  // index with a key.
  template <class Self>
  void Bind(std::string_view control, Ev ev, void (Self::*fn)()) {
    On(control, ev, [this, fn](EventArgs&) { (static_cast<Self*>(this)->*fn)(); });
  }
  template <class Self>
  void Bind(std::string_view control, Ev ev, void (Self::*fn)(int)) {
    On(control, ev, [this, fn](EventArgs& a) { (static_cast<Self*>(this)->*fn)(a.index); });
  }
  template <class Self>
  void Bind(std::string_view control, Ev ev, void (Self::*fn)(int&)) {
    On(control, ev,
       [this, fn, ev](EventArgs& a) { (static_cast<Self*>(this)->*fn)(ev == Ev::KeyPress ? a.keyAscii : a.keyCode); });
  }
  template <class Self>
  void Bind(std::string_view control, Ev ev, void (Self::*fn)(int&, int)) {
    On(control, ev, [this, fn, ev](EventArgs& a) {
      if (ev == Ev::QueryUnload) {  // (Cancel, UnloadMode)
        int cancel = a.cancel ? 1 : 0;
        (static_cast<Self*>(this)->*fn)(cancel, a.shift);
        a.cancel = cancel != 0;
      } else {
        (static_cast<Self*>(this)->*fn)(a.keyCode, a.shift);
      }
    });
  }
  template <class Self>
  void Bind(std::string_view control, Ev ev, void (Self::*fn)(int, int&)) {
    On(control, ev, [this, fn, ev](EventArgs& a) {
      (static_cast<Self*>(this)->*fn)(a.index, ev == Ev::KeyPress ? a.keyAscii : a.keyCode);
    });
  }

 private:
  // Whether any control (of any index) has that name.
  bool Declares(std::string_view name) const;

  Program* program_;
  std::string name_;
  std::string caption_;
  int width_;
  int height_;
  unsigned style_;
  bool visible_ = false;
  bool loaded_ = false;
  std::vector<std::unique_ptr<Control>> controls_;
  std::map<std::pair<std::string, Ev>, Handler, std::less<>> handlers_;
  Control* active_ = nullptr;
};

}  // namespace orv
