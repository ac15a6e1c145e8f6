#pragma once
// The calculator screen frame: everything the calculators share, written
// once. A calculator derives from CalculatorScreen, declares its controls in
// a table and binds its own routines; the frame binds the standard ones:
//   - the designated box's Change enables cmdOk and cmdPrint;
//   - F1 anywhere on the screen shows frmHelp beside it;
//   - cmdCancel shows the fixed parent screen and unloads this one;
//   - cmdHelp shows the screen's explanation;
//   - cmdPrint prints the screen's image.
// A screen rebinds any of these where it behaves otherwise.

#include <string_view>

#include "shell/controls.h"
#include "shell/errors.h"
#include "shell/form.h"
#include "shell/key_filter.h"
#include "shell/numbers.h"
#include "shell/program.h"
#include "shell/text.h"

namespace orv {

inline constexpr std::string_view kTitle = "Orvanta";

// The error traps of the calculators' cmdOk routines.
inline constexpr Form::Trap kTrapWords{"", Icon::None, kTitle};
inline constexpr Form::Trap kTrapWordsInfo{"", Icon::Information, kTitle};
inline constexpr Form::Trap kTrapWordsCritical{"", Icon::Critical, kTitle};
inline constexpr Form::Trap kTrapDataEntry{"Data entry error", Icon::None, kTitle};
inline constexpr Form::Trap kTrapDataEntryCaps{"Data Entry Error", Icon::None, kTitle};
inline constexpr Form::Trap kTrapDataEntryCapsInfo{"Data Entry Error", Icon::Information, kTitle};
inline constexpr Form::Trap kTrapDataEntryCapsPoint{"Data Entry Error.", Icon::None, kTitle};
inline constexpr Form::Trap kTrapDataEntryPoint{"Data entry error.", Icon::None, kTitle};
inline constexpr Form::Trap kTrapErrorInDataEntry{"Error in data entry.", Icon::None, kTitle};
inline constexpr Form::Trap kTrapMissingData{"Missing data.", Icon::None, kTitle};

// Key filters with the usual refusal title.
inline constexpr KeyFilter kFilterPoint{".", kTitle};
inline constexpr KeyFilter kFilterPointE{".E", kTitle};
inline constexpr KeyFilter kFilterPlusPointE{"+.E", kTitle};
inline constexpr KeyFilter kFilterMinusPoint{"-.", kTitle};
inline constexpr KeyFilter kFilterMinusPointE{"-.E", kTitle};
inline constexpr KeyFilter kFilterSignsPointE{"+-.E", kTitle};
inline constexpr KeyFilter kFilterPointEe{".Ee", kTitle};

// The calculator's standard buttons, for its control table: Ok (the default
// button, with its tool tip where the screen gives one), Clear, Cancel (the
// cancel button), Print and the small "?" that explains the screen.
inline constexpr std::string_view kOkTip = "Press to calculate your answer.";
constexpr ControlSpec OkButton(Rect r, std::string_view toolTip = {}) {
  return {.kind = Kind::Button, .name = "cmdOk", .caption = "Ok", .rect = r, .toolTip = toolTip, .flags = kDefault};
}
constexpr ControlSpec ClearButton(Rect r) {
  return {.kind = Kind::Button, .name = "cmdClear", .caption = "Clear", .rect = r};
}
constexpr ControlSpec CancelButton(Rect r) {
  return {.kind = Kind::Button, .name = "cmdCancel", .caption = "Cancel", .rect = r, .flags = kCancel};
}
constexpr ControlSpec PrintButton(Rect r) {
  return {.kind = Kind::Button, .name = "cmdPrint", .caption = "Print", .rect = r};
}
constexpr ControlSpec HelpButton(Rect r) {
  return {
      .kind = Kind::Button, .name = "cmdHelp", .caption = "?", .rect = r, .toolTip = "Press for help", .flags = kSmall};
}

struct CalculatorSpec {
  std::string_view parent;      // shown again by cmdCancel; "" for none
  std::string_view designated;  // its Change enables cmdOk and cmdPrint; "" for none
  std::string_view helpText;    // cmdHelp's explanation
};

class CalculatorScreen : public Form {
 public:
  CalculatorScreen(Program& program, const FormSpec& form, std::span<const ControlSpec> controls,
                   const CalculatorSpec& calc);

 protected:
  // Binds KeyDown of the box so that Enter runs cmdOk_Click directly,
  // whatever the state of cmdOk.
  void EnterRunsOk(std::string_view box);
  // cmdOk and cmdPrint disabled, as Form_Load leaves them last of all.
  void DisableOkAndPrint();

  // The standard routines, bound by the frame.
  void Designated_Change();
  void Form_KeyDown(int& KeyCode, int Shift);
  void cmdCancel_Click();
  void cmdHelp_Click();
  void cmdPrint_Click();

  const CalculatorSpec& calc() const { return calc_; }

 private:
  CalculatorSpec calc_;
};

}  // namespace orv
