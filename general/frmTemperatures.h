#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Temperature conversion between Fahrenheit and Celsius. The Kelvin buttons
// are on the screen but have no routine.
class frmTemperatures : public CalculatorScreen {
 public:
  explicit frmTemperatures(Program& program);

 private:
  void Form_Load();
  void cmdCToF_Click();
  void cmdFToC_Click();
  void cmdClear_Click();
  void cmdCancel_Click();
};

}  // namespace orv
