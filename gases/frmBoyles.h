#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Boyle's law: the final pressure of a gas from its initial volume and
// pressure and its final volume, in 32-bit floats. The second mode swaps the
// meaning of the two upper boxes and only rewrites the prompts.
class frmBoyles : public CalculatorScreen {
 public:
  explicit frmBoyles(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();

  void SetPrompts(std::string_view upper, std::string_view lower, std::string_view final, std::string_view result);
};

}  // namespace orv
