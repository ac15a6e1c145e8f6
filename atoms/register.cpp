#include "atoms/fmrMoles.h"
#include "atoms/frmAverageMass.h"
#include "atoms/frmBuildAtoms.h"
#include "atoms/frmMassEnergy.h"
#include "shell/program.h"

namespace orv {

void RegisterAtomScreens(ScreenRegistry& r) {
  r.Add<fmrMoles>("fmrMoles");
  r.Add<frmAverageMass>("frmAverageMass");
  r.Add<frmMassEnergy>("frmMassEnergy");
  r.Add<frmBuildAtoms>("frmBuildAtoms");
}

}  // namespace orv
