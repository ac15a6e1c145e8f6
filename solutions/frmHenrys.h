#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Henry's law: the solubility of a gas is its constant times its pressure,
// in 32-bit floats.
class frmHenrys : public CalculatorScreen {
 public:
  explicit frmHenrys(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
