#pragma once
#include "shell/screen_frame.h"

namespace orv {

// Metric conversions: a value from one of six units of mass, distance or
// volume into another, by the screen's own table of factors.
class frmMetrics : public CalculatorScreen {
 public:
  explicit frmMetrics(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdClear_Click();
  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void optDistance1_Click();
  void optDistance2_Click();
  void optDistance3_Click();
  void optDistance4_Click();
  void optDistance5_Click();
  void optDistance6_Click();

  // Writes the unit captions and the frames' titles of a category (1 to 3).
  void ShowCategory(int category);
  // A From unit (1 to 6) rules out the To unit of its own position.
  void FromChosen(int position);
  Control& UnitButton(int number) const;
};

}  // namespace orv
