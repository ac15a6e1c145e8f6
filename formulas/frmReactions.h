#pragma once
#include <string_view>

#include "shell/screen_frame.h"

namespace orv {

// Chemical reactions: counts the atoms on each side of a typed equation, so
// that the student can compare the two columns while changing coefficients.
class frmReactions : public CalculatorScreen {
 public:
  explicit frmReactions(Program& program);

 private:
  void Form_Load();
  void RichTextBox1_KeyPress(int& KeyAscii);
  void RichTextBox1_KeyUp(int& KeyCode, int Shift);
  void cmdOk_Click();
  void cmdClear_Click();

  // Writes the side just counted into a column: symbols into the labels,
  // counts into the boxes, from the top.
  void ShowSide(std::string_view symbols, std::string_view counts);
};

}  // namespace orv
