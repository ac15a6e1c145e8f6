#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Mass and energy: scales the heat of a balanced reaction to a given mass.
class frmMassEnergy : public CalculatorScreen {
 public:
  explicit frmMassEnergy(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
