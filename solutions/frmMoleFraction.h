#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Mole fraction and mole percent of a solute from the masses and molecular
// weights of solute and solvent, in 32-bit floats.
class frmMoleFraction : public CalculatorScreen {
 public:
  explicit frmMoleFraction(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
