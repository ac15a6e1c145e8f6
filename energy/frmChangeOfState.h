#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Energy and change of state: gathers mass, heat of fusion or vaporization
// and molecular weight, and checks them. No answer is worked out.
class frmChangeOfState : public CalculatorScreen {
 public:
  explicit frmChangeOfState(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();

  void SetCaptions(std::string_view heat, std::string_view result);
};

}  // namespace orv
