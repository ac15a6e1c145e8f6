#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Acids and bases: pH or pOH from an ion concentration. The two options that
// go back from pH or pOH to a concentration calculate nothing.
class frmAcids : public CalculatorScreen {
 public:
  explicit frmAcids(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
  void opt3_Click();
  void opt4_Click();

  void SetCaptions(std::string_view prompt, std::string_view result);
};

}  // namespace orv
