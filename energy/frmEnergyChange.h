#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Heat energy change: Q = mass * temperature change * specific heat, in
// 32-bit floats.
class frmEnergyChange : public CalculatorScreen {
 public:
  explicit frmEnergyChange(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
