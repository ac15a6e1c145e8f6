#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Raoult's law: the vapor pressure of a solution is that of the pure solvent
// at the temperature, looked up in the table of water, times the mole
// fraction of the solvent. Every step is rounded to a 32-bit float.
class frmRaoults : public CalculatorScreen {
 public:
  explicit frmRaoults(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
