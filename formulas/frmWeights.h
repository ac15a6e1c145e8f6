#pragma once
#include <string>

#include "shell/screen_frame.h"

namespace orv {

// Molecular weights: weighs one mole of a typed formula. The formula box
// lowers subscripts and raises the point of a hydrate as they are typed, and
// collects the formula, apart from its leading coefficient, as it goes.
class frmWeights : public CalculatorScreen {
 public:
  explicit frmWeights(Program& program);

 private:
  void Form_Load();
  void RichTextBox1_KeyDown(int& KeyCode, int Shift);
  void RichTextBox1_KeyPress(int& KeyAscii);
  void RichTextBox1_KeyUp(int& KeyCode, int Shift);
  void cmdOk_Click();
  void cmdClear_Click();
  void cmdCancel_Click();

  // The weight of a group from the table of molecular weights.
  void Weight(const std::string& Substance, Single& Result);
  void ResetTypingState();
  void EmptyScreen(std::string_view alsoEmpty);

  // The typing state of the formula box.
  bool InCoefficient = true;
  bool InHydrate = false;
  bool AfterElement = true;
  // The count of waters of a hydrate, as text.
  std::string HydrateCount = "0";
};

}  // namespace orv
