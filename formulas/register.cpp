#include "formulas/frmMass.h"
#include "formulas/frmReactions.h"
#include "formulas/frmWeightCalculations.h"
#include "formulas/frmWeights.h"
#include "shell/program.h"

namespace orv {

void RegisterFormulaScreens(ScreenRegistry& r) {
  r.Add<frmWeights>("frmWeights");
  r.Add<frmWeightCalculations>("frmWeightCalculations");
  r.Add<frmReactions>("frmReactions");
  r.Add<frmMass>("frmMass");
}

}  // namespace orv
