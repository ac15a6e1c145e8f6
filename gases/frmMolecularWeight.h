#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Molecular mass of a gas from its pressure, mass, volume and temperature by
// the ideal gas law, in 32-bit floats with a fixed R.
class frmMolecularWeight : public CalculatorScreen {
 public:
  explicit frmMolecularWeight(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
