#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Molecular weight calculations: a quantity of a substance from molecules to
// grams or moles.
class frmWeightCalculations : public CalculatorScreen {
 public:
  explicit frmWeightCalculations(Program& program);

 private:
  void Form_Load();
  void Option4_Click();
  void Option5_Click();
  void Option6_Click();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
