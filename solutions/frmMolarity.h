#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Molarity / molality: moles of solute over liters of solution or kilograms
// of solvent, in 64-bit floats. Only the molarity mode calculates.
class frmMolarity : public CalculatorScreen {
 public:
  explicit frmMolarity(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();

  void SetCaptions(std::string_view amount, std::string_view result, std::string_view unit);
};

}  // namespace orv
