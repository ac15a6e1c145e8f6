#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Mole conversions of one element between moles, grams and atoms, with the
// element's atomic weight picked from a list.
class fmrMoles : public CalculatorScreen {
 public:
  explicit fmrMoles(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void lstList1_Click();
  void optMoles1_Click();
  void optMoles2_Click();
  void optMoles3_Click();
  void txtMoles1_Change();
  void txtMoles1_KeyDown(int& KeyCode, int Shift);
};

}  // namespace orv
