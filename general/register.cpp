#include "general/frmDensity.h"
#include "general/frmEnglish.h"
#include "general/frmMassToWeight.h"
#include "general/frmMetrics.h"
#include "general/frmSigfig.h"
#include "general/frmTemperatures.h"
#include "general/frmTime.h"
#include "general/frmVolume.h"
#include "shell/program.h"

namespace orv {

void RegisterGeneralScreens(ScreenRegistry& r) {
  r.Add<frmSigfig>("frmSigfig");
  r.Add<frmMetrics>("frmMetrics");
  r.Add<frmTemperatures>("frmTemperatures");
  r.Add<frmTime>("frmTime");
  r.Add<frmEnglish>("frmEnglish");
  r.Add<frmMassToWeight>("frmMassToWeight");
  r.Add<frmDensity>("frmDensity");
  r.Add<frmVolume>("frmVolume");
}

}  // namespace orv
