#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Volume of a sphere, a block or a cylinder, in 64-bit arithmetic on values
// read as 32-bit floats.
class frmVolume : public CalculatorScreen {
 public:
  explicit frmVolume(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
  void opt3_Click();

  void EmptyLabels();
};

}  // namespace orv
