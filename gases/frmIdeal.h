#pragma once
#include "shell/screen_frame.h"

namespace orv {

// The ideal gas law PV = nRT, solved for the pressure in 32-bit floats with
// R read from its box. The other three unknowns only rewrite the prompts.
class frmIdeal : public CalculatorScreen {
 public:
  explicit frmIdeal(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
  void opt3_Click();
  void opt4_Click();
  void Label7_Click();

  // Sets the prompts of a mode and enables the options.
  void SetMode(std::string_view upperRight, std::string_view lowerLeft, std::string_view lowerRight,
               std::string_view result, std::string_view unit);
};

}  // namespace orv
