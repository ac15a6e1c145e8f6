#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Density calculations: density = mass / volume, solved for any one of the
// three quantities, in 32-bit floats.
class frmDensity : public CalculatorScreen {
 public:
  explicit frmDensity(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void optDensity1_Click();
  void optDensity2_Click();
  void optDensity3_Click();

  void SetPrompts(std::string_view first, std::string_view second, std::string_view result);
};

}  // namespace orv
