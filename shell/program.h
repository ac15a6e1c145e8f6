#pragma once
// One run of the program: its screens (each loaded at most once), the
// services it talks to, the module-level state of its routines, and the
// entry points through which the user's keys and clicks come in.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <typeindex>
#include <vector>

#include "shell/errors.h"
#include "shell/form.h"
#include "shell/services.h"

namespace orv {

// The screens that are built, by name, and the start-up routine.
struct ScreenRegistry {
  using Factory = std::function<std::unique_ptr<Form>(Program&)>;
  std::map<std::string, Factory, std::less<>> screens;
  std::function<void(Program&)> main;

  // Registers screen class T under its name.
  template <class T>
  void Add(std::string name) {
    screens[std::move(name)] = [](Program& p) -> std::unique_ptr<Form> { return std::make_unique<T>(p); };
  }
};

// Key codes the runtime knows by name.
enum KeyCode : int {
  kKeyBack = 8,
  kKeyTab = 9,
  kKeyReturn = 13,
  kKeyEscape = 27,
  kKeyEnd = 35,
  kKeyHome = 36,
  kKeyLeft = 37,
  kKeyUp = 38,
  kKeyRight = 39,
  kKeyDown = 40,
  kKeyDelete = 46,
  kKeyF1 = 112,
};
// Control characters that edit a text box.
enum ControlChar : int { kCtrlC = 3, kCtrlV = 22, kCtrlX = 24 };
enum ShiftState : int { kShiftMask = 1, kCtrlMask = 2, kAltMask = 4 };

// One key as the user pressed it: the key code and, for keys that produce a
// character, its code (0 for none).
struct Key {
  int code = 0;
  int ascii = 0;
  int shift = 0;
};

// The key code of the key that types a character: capitals for letters,
// the digits themselves, the punctuation keys' own codes.
int KeyCodeOfChar(int ascii);

// Thrown when the program ends; unwinds every routine under way.
struct ProgramEnded {};

class Program {
 public:
  struct Services {
    MessageService* messages = nullptr;
    PrintService* printer = nullptr;
    LaunchService* launcher = nullptr;
    View* view = nullptr;                   // none when headless
    ClipboardService* clipboard = nullptr;  // none: the clipboard stays empty
  };

  Program(const ScreenRegistry& registry, Services services, std::string exeDir);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Runs the start-up routine.
  void Start();

  // --- screens ---
  bool IsBuilt(std::string_view name) const;
  Form* Find(std::string_view name) const;  // loaded screen or nullptr
  // Loads (running Form_Load) if needed; nullptr when the screen is not built.
  Form* Load(std::string_view name);
  // Loads if needed, shows and brings forward; nullptr when not built.
  Form* Show(std::string_view name);
  void Hide(std::string_view name);
  void Unload(Form& form);
  void Unload(std::string_view name);
  // Loaded screens in the order they were loaded.
  std::vector<Form*> LoadedForms() const;
  // The visible screen in front, if any.
  Form* Front() const;

  // --- the user's input: each is one outermost event ---
  // A key on a screen, with the focus in `focus` (or on no control). Returns
  // true when the runtime took the key; false lets the toolkit do its own
  // (moving in a list, pressing a focused button with the space bar).
  bool UserKey(Form& form, Control* focus, const Key& key);
  void UserClick(Control& control);
  void UserDblClick(Control& control);
  // Pasting or another edit that bypasses the keys: no filter, Change raised.
  void UserEdit(Control& box, std::string text);
  void UserSelectRow(Control& list, int row);
  void UserFocus(Control& control);
  void UserCaret(Control& box, int start, int length);
  // The user closes a screen's window.
  void UserClose(Form& form);
  // Runs any routine as an outermost event (tests, timers).
  void UserAction(const std::function<void()>& fn);

  // --- services ---
  MessageService& messages() const { return *services_.messages; }
  PrintService& printer() const { return *services_.printer; }
  LaunchService& launcher() const { return *services_.launcher; }
  View* view() const { return services_.view; }
  const std::string& ExeDir() const { return exeDir_; }

  // Module-level state of a kind of routine: one instance per run,
  // made on first use, living until the program ends.
  template <class T>
  T& Module() {
    auto& slot = modules_[std::type_index(typeid(T))];
    if (!slot) slot = std::make_shared<T>();
    return *static_cast<T*>(slot.get());
  }

  // --- the end ---
  // Ends the program at once: every screen closes, nothing after runs.
  [[noreturn]] void End();
  // An untrapped run-time error: its words are shown, then the end.
  [[noreturn]] void Fatal(const RuntimeError& error);
  bool Ended() const { return ended_; }
  bool EndedOnError() const { return endedOnError_; }
  const std::string& EndWords() const { return endWords_; }

  // Runs an event routine; an untrapped run-time error ends the program.
  void RunRoutine(const std::function<void()>& fn);

 private:
  class Outermost;
  void Flush();
  void CloseAll();
  void RouteKey(Form& form, Control* focus, const Key& key, bool& taken);
  bool WindowKey(Form& form, Control* focus, const Key& key);
  void FinishKey(Form& form, Control* focus, const Key& key, bool& taken);
  bool PressChar(Form& form, Control* focus, int ascii, bool box);
  bool EditBox(Control& box, const Key& key);
  void TypeChar(Control& box, int ascii);
  void MoveFocus(Form& form, Control* from, bool backwards);
  static Control* MenuShortcut(Form& form, const Key& key);

  const ScreenRegistry& registry_;
  Services services_;
  std::string exeDir_;
  std::vector<std::unique_ptr<Form>> forms_;      // load order
  std::vector<Form*> zorder_;                     // back to front
  std::vector<std::unique_ptr<Form>> graveyard_;  // unloaded during a routine
  std::map<std::type_index, std::shared_ptr<void>> modules_;
  int depth_ = 0;
  bool ended_ = false;
  bool endedOnError_ = false;
  std::string endWords_;
};

}  // namespace orv
