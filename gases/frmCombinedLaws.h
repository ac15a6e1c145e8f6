#pragma once
#include "shell/screen_frame.h"

namespace orv {

// The combined gas law: a new volume from new pressure and temperature,
// V2 = V1 * (P1 / P2) * (T2 / T1), in 32-bit floats. For a gas collected over
// water the vapor pressure of water at the original temperature is taken off
// the original pressure.
class frmCombinedLaws : public CalculatorScreen {
 public:
  explicit frmCombinedLaws(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
