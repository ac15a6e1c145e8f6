#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Mass - volume problems: the volume of gas produced from a mass of
// reactant, (mass / weight) * ratio * 22.4, in 64-bit floats. The mass option
// rewrites the prompts and shows two more boxes; it has no arithmetic.
class frmMassVolume : public CalculatorScreen {
 public:
  explicit frmMassVolume(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();

  void HideExtraBoxes();
  void SetVolumeCaptions(std::string_view massPrompt);
};

}  // namespace orv
