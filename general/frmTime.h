#pragma once
#include "shell/screen_frame.h"

namespace orv {

struct TimeStep;

// Time conversion: seconds, minutes, hours, days and years, one button for
// each step, in 32-bit floats.
class frmTime : public CalculatorScreen {
 public:
  explicit frmTime(Program& program);

 private:
  void Form_Load();
  void cmdSToM_Click();
  void cmdMToS_Click();
  void cmdMToH_Click();
  void cmdHToM_Click();
  void cmdHToD_Click();
  void cmdDToH_Click();
  void cmdDToY_Click();
  void cmdYToD_Click();
  void cmdClear_Click();
  void cmdClose_Click();

  void Convert(const TimeStep& step);
};

}  // namespace orv
