#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Dalton's law of partial pressure: the vapor pressure of water is taken off
// the total pressure of a gas collected over water, and the volume scaled to
// the standard pressure of 101.3 kPa. The second option rewrites the prompts
// only; it has no arithmetic.
class frmDalton : public CalculatorScreen {
 public:
  explicit frmDalton(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
};

}  // namespace orv
