#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Freezing point depression: a reference list of solvents and the final
// temperature from a depression constant, an original temperature and a
// molality, in 32-bit floats. The boiling point mode calculates nothing.
class frmFreezing : public CalculatorScreen {
 public:
  explicit frmFreezing(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
