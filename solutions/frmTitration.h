#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Titration: the neutralisation relation Ma * Va = Mb * Vb with a ratio of
// moles of base per mole of acid, solved for the one box left empty. Only
// the molarity mode calculates.
class frmTitration : public CalculatorScreen {
 public:
  explicit frmTitration(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();

  void ResetScreen();
  bool EntriesFit();
};

}  // namespace orv
