#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Thermodynamic calculations: the enthalpy change of a reaction from the
// reactant's and the product's enthalpies and their coefficients. The
// entropy and free energy modes set up the screen and check the boxes only.
class frmThermoData : public CalculatorScreen {
 public:
  explicit frmThermoData(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
  void opt3_Click();

  void SetCaptions(std::string_view first, std::string_view second, std::string_view third, std::string_view result,
                   std::string_view link);
};

}  // namespace orv
