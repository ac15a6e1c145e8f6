#pragma once
#include <array>

#include "shell/form.h"
#include "shell/numbers.h"

namespace orv {

class Picture;

// Build an atom: protons, neutrons, energy levels and electrons added and
// removed one at a time, drawn in a picture box, with the counts, the
// element's name, the weight and the charge kept up to date beside it.
class frmBuildAtoms : public Form {
 public:
  explicit frmBuildAtoms(Program& program);

  // Where a particle or ring was drawn: centre and radius.
  struct Spot {
    Single x;
    Single y;
    Single radius;
  };

  // A table of drawn spots, rows 1 to N; any other row is "Subscript out of
  // range".
  template <int N>
  class SpotTable {
   public:
    Spot& operator()(int row) {
      if (row < 1 || row > N) Raise(ErrorCode::SubscriptOutOfRange);
      return rows_[static_cast<std::size_t>(row - 1)];
    }

   private:
    std::array<Spot, N> rows_{};
  };

 private:
  void Form_Load();
  void cmdProton_Click();
  void cmdNeutrons_Click();
  void cmdRemoveProton_Click();
  void cmdRemoveNeutron_Click();
  void cmdEnergyLevel_Click();
  void cmdElectrons_Click();
  void cmdRemoveElectron_Click();
  void cmdRemoveEnergyLevel_Click();
  void cmdClear_Click();
  void cmdPrint_Click();
  void cmdTutorial_Click();
  void cmdClose_Click();

  void UpDateElement();
  void UpdateWeight();
  void UpdateCharge();

  Picture& Picture1();
  // Enables or disables each named button.
  void EnableButtons(std::initializer_list<std::string_view> names, bool on);
  // The number a display box shows.
  Integer Shown(std::string_view box) const;

  Integer Protons;
  Integer Neutrons;
  Integer Electrons;
  Integer EnergyLevels;
  Integer Weight;
  Integer Charge;
  Single NextRadius = 0.2;
  SpotTable<109> ProtonTable;
  SpotTable<200> NeutronTable;
  SpotTable<109> ElectronTable;
  SpotTable<8> LevelTable;
};

}  // namespace orv
