#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Charles's law: the final temperature of a gas from its initial temperature
// and its initial and final volumes, in 32-bit floats. The second mode only
// rewrites the prompts.
class frmCharlesLaw : public CalculatorScreen {
 public:
  explicit frmCharlesLaw(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
};

}  // namespace orv
