#pragma once
#include "shell/screen_frame.h"

namespace orv {

// The main screen: buttons to the choice and table screens, a menu to every
// calculator, and the end of the program.
class frmMain : public Form {
 public:
  explicit frmMain(Program& program);

 private:
  void Form_KeyDown(int& KeyCode, int Shift);
  void Form_KeyPress(int& KeyAscii);
  void Form_QueryUnload(int& Cancel, int UnloadMode);
  void cmdCalculator_Click();
  void cmdUserManual_Click();
  void mnuExit_Click();
  void mnuCalculatorChoice_Click();
};

}  // namespace orv
