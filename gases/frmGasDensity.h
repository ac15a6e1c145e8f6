#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Density of a gas from its molecular weight, pressure and temperature by
// the ideal gas law, in 32-bit floats with a fixed R.
class frmGasDensity : public CalculatorScreen {
 public:
  explicit frmGasDensity(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
