#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Half life calculations: the time that has passed, counted in whole half
// lives. The quantity mode sets up the prompts and checks the boxes only.
class frmHalfLife : public CalculatorScreen {
 public:
  explicit frmHalfLife(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();

  void SetCaptions(std::string_view result, std::string_view last, std::string_view unit);
};

}  // namespace orv
