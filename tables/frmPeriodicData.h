#pragma once
#include "shell/screen_frame.h"

namespace orv {

// The record of the element last chosen on the periodic table, with the
// particle counts of its neutral atom. Filled once, while the screen loads.
class frmPeriodicData : public Form {
 public:
  explicit frmPeriodicData(Program& program);

 private:
  void Form_Load();
  void cmdPrint_Click();
  void cmdCancel_Click();
};

}  // namespace orv
