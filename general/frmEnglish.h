#pragma once
#include "shell/screen_frame.h"

namespace orv {

struct EnglishConversion;

// English - metric conversions: twelve buttons, each working in the direction
// that the two option buttons choose.
class frmEnglish : public CalculatorScreen {
 public:
  explicit frmEnglish(Program& program);

 private:
  void Form_Load();
  void cmdClear_Click();
  void cmdCancel_Click();
  void cmdPToK_Click();
  void cmdPToG_Click();
  void cmdOToK_Click();
  void cmdOToG_Click();
  void cmdFToM_Click();
  void cmdFToC_Click();
  void cmdIToM_Click();
  void cmdIToC_Click();
  void cmdLToG_Click();
  void cmdLToOunces_Click();
  void cmdMToG_Click();
  void cmdMToO_Click();

  void Convert(const EnglishConversion& conversion);
};

}  // namespace orv
