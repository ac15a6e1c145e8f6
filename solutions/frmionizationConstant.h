#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Ionization constant: the products raised to their coefficients over what
// is left of the reactant, in 32-bit floats.
class frmionizationConstant : public CalculatorScreen {
 public:
  explicit frmionizationConstant(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
