#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Faraday's laws: grams deposited from the charge, the moles of electrons,
// the molecular weight and, optionally, a time factor. The moles and liters
// modes change the prompts and run the same arithmetic.
class frmFaradays : public CalculatorScreen {
 public:
  explicit frmFaradays(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void opt1_Click();
  void opt2_Click();
  void opt3_Click();

  void SetCaptions(std::string_view first, std::string_view second, std::string_view minutes, std::string_view result,
                   std::string_view unit);
};

}  // namespace orv
