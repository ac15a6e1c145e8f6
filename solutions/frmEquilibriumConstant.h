#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Equilibrium constant: products over reactants, each concentration raised
// to its coefficient, for up to two of each.
class frmEquilibriumConstant : public CalculatorScreen {
 public:
  explicit frmEquilibriumConstant(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
