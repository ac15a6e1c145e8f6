#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Mass-mass relationships: from a balanced equation, the grams of one
// substance from the grams of another.
class frmMass : public CalculatorScreen {
 public:
  explicit frmMass(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();

  void ClearBoxes();
  // The tests of a molecular weight box, on its text; false after a message.
  bool WeightPasses(const Control& box);
};

}  // namespace orv
