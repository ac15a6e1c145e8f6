#include "energy/frmChangeOfState.h"
#include "energy/frmEnergyChange.h"
#include "energy/frmFaradays.h"
#include "energy/frmHalfLife.h"
#include "energy/frmThermoData.h"
#include "shell/program.h"

namespace orv {

void RegisterEnergyScreens(ScreenRegistry& r) {
  r.Add<frmEnergyChange>("frmEnergyChange");
  r.Add<frmThermoData>("frmThermoData");
  r.Add<frmFaradays>("frmFaradays");
  r.Add<frmChangeOfState>("frmChangeOfState");
  r.Add<frmHalfLife>("frmHalfLife");
}

}  // namespace orv
