#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Average atomic mass: the sum of weight times occurrence over up to six
// isotopes.
class frmAverageMass : public CalculatorScreen {
 public:
  explicit frmAverageMass(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  // The key filter of the twelve input boxes.
  void Isotope_KeyPress(int& KeyAscii);
};

}  // namespace orv
