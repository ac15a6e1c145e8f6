#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Significant figures: counts the significant figures of a typed number.
class frmSigfig : public CalculatorScreen {
 public:
  explicit frmSigfig(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
