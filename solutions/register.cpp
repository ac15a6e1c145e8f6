#include "shell/program.h"
#include "solutions/frmAcids.h"
#include "solutions/frmEquilibriumConstant.h"
#include "solutions/frmFreezing.h"
#include "solutions/frmHenrys.h"
#include "solutions/frmMolarity.h"
#include "solutions/frmMoleFraction.h"
#include "solutions/frmSolubilityConstants.h"
#include "solutions/frmTitration.h"
#include "solutions/frmionizationConstant.h"

namespace orv {

void RegisterSolutionScreens(ScreenRegistry& r) {
  r.Add<frmMolarity>("frmMolarity");
  r.Add<frmHenrys>("frmHenrys");
  r.Add<frmMoleFraction>("frmMoleFraction");
  r.Add<frmAcids>("frmAcids");
  r.Add<frmTitration>("frmTitration");
  r.Add<frmSolubilityConstants>("frmSolubilityConstants");
  r.Add<frmEquilibriumConstant>("frmEquilibriumConstant");
  r.Add<frmionizationConstant>("frmionizationConstant");
  r.Add<frmFreezing>("frmFreezing");
}

}  // namespace orv
