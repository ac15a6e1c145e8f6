#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Solubility product constant: the two product concentrations raised to
// their coefficients and multiplied, in 64-bit floats.
class frmSolubilityConstants : public CalculatorScreen {
 public:
  explicit frmSolubilityConstants(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
