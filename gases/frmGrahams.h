#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Graham's law: the ratio of two diffusion rates, the square root of the
// second molecular weight over the first.
class frmGrahams : public CalculatorScreen {
 public:
  explicit frmGrahams(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
