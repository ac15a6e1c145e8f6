#pragma once
// The choice screens between the main screen and the calculators: buttons
// (or option buttons and Ok) that lead on, and a button that closes.

#include <span>
#include <string_view>
#include <vector>

#include "shell/screen_frame.h"

namespace orv {

// How a button leaves its own screen when it shows its target.
enum class Leave {
  Hide,    // hides its screen, which stays loaded
  Stay,    // leaves its screen as it is
  Unload,  // unloads its screen first
};

struct ChoiceButton {
  std::string_view control;
  std::string_view caption;
  std::string_view target;  // "" for a button with no routine
  Leave leave = Leave::Hide;
};

struct ChoiceSpec {
  std::string_view name;
  std::string_view caption;
  std::string_view closer;         // cmdCancel or cmdClose
  std::string_view closerCaption;  // "Cancel" or "Close"
  std::string_view closerToolTip;
  bool closerShowsMain;  // the closing button also shows frmMain
  std::span<const ChoiceButton> buttons;
};

class ChoiceScreen : public Form {
 public:
  ChoiceScreen(Program& program, const ChoiceSpec& design);

 private:
  void Form_Load();
  void Go(const ChoiceButton& button);
  void Close_Click();

  const ChoiceSpec& design_;
};

// The two screens that pick a data table with option buttons and Ok.
struct OptionChoice {
  std::string_view control;
  std::string_view caption;
  std::string_view target;  // "" where Ok does nothing
};

struct OptionChoiceSpec {
  std::string_view name;
  std::string_view caption;
  std::string_view frameCaption;
  std::string_view frameToolTip;
  std::string_view okToolTip;
  std::string_view cancelToolTip;
  bool cancelShowsMain;
  std::span<const OptionChoice> options;
};

class OptionChoiceScreen : public Form {
 public:
  OptionChoiceScreen(Program& program, const OptionChoiceSpec& design);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdCancel_Click();

  const OptionChoiceSpec& design_;
};

// Registers all choice screens.
void RegisterChoiceScreens(ScreenRegistry& r);

}  // namespace orv
