#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Molar volume: a mole of gas fills 22.4 liters, so the mass of a gas is its
// volume times its molecular weight over 22.4, in 32-bit floats. The moles
// and volume options rewrite the prompts only; they have no arithmetic.
class frmMolarVolume : public CalculatorScreen {
 public:
  explicit frmMolarVolume(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
  void opt3_Click();

  void SetCaptions(std::string_view second, std::string_view result, std::string_view unit);
};

}  // namespace orv
