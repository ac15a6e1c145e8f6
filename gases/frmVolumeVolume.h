#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Volume - volume problems: at constant temperature and pressure a volume
// scales by the coefficients of the balanced equation, in 64-bit floats.
class frmVolumeVolume : public CalculatorScreen {
 public:
  explicit frmVolumeVolume(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
};

}  // namespace orv
