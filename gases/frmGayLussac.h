#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Gay-Lussac's law: at a fixed volume the pressure follows the Kelvin
// temperature, P2 = (T2 / T1) * P1, in 32-bit floats. The second option
// rewrites the prompts only; it has no arithmetic.
class frmGayLussac : public CalculatorScreen {
 public:
  explicit frmGayLussac(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();

  void SetCaptions(std::string_view box1, std::string_view box2, std::string_view box3, std::string_view result,
                   std::string_view unit);
};

}  // namespace orv
