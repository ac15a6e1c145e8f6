#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Mass / weight conversion: kilograms to Newtons and back.
class frmMassToWeight : public CalculatorScreen {
 public:
  explicit frmMassToWeight(Program& program);

 private:
  void Form_Load();
  void cmdKToN_Click();
  void cmdNToK_Click();
  void cmdClear_Click();
  void cmdCancel_Click();

  // False, after its message, when the box is empty.
  bool HaveValue();
};

}  // namespace orv
