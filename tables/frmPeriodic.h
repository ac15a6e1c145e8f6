#pragma once
#include <string>

#include "shell/screen_frame.h"

namespace orv {

// Module-level state of the periodic table: the symbol of the element last
// chosen, which frmPeriodic writes and frmPeriodicData reads.
struct PeriodicModule {
  std::string SelectedSymbol;
};

inline PeriodicModule& Periodic(Program& program) { return program.Module<PeriodicModule>(); }

// The periodic table: one coloured button per element, with a key of the
// colours. Only the ten lightest elements answer a click, with their data.
class frmPeriodic : public Form {
 public:
  explicit frmPeriodic(Program& program);

 private:
  void Form_KeyDown(int& KeyCode, int Shift);
  void cmdCancel_Click();
  void cmdH_Click();
  void cmdHe_Click();
  void cmdLi_Click();
  void cmdBe_Click();
  void cmdB_Click();
  void cmdC_Click();
  void cmdN_Click();
  void cmdO_Click();
  void cmdF_Click();
  void cmdNe_Click();
  // What each of the ten does: passes on the button's caption and shows the
  // element's data.
  void ShowElement(std::string_view button);
};

}  // namespace orv
