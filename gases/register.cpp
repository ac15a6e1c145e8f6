#include "gases/frmBoyles.h"
#include "gases/frmCharlesLaw.h"
#include "gases/frmCombinedLaws.h"
#include "gases/frmDalton.h"
#include "gases/frmGasDensity.h"
#include "gases/frmGayLussac.h"
#include "gases/frmGrahams.h"
#include "gases/frmIdeal.h"
#include "gases/frmMassVolume.h"
#include "gases/frmMolarVolume.h"
#include "gases/frmMolecularWeight.h"
#include "gases/frmRaoults.h"
#include "gases/frmVolumeVolume.h"
#include "shell/program.h"

namespace orv {

void RegisterGasScreens(ScreenRegistry& r) {
  r.Add<frmCharlesLaw>("frmCharlesLaw");
  r.Add<frmBoyles>("frmBoyles");
  r.Add<frmIdeal>("frmIdeal");
  r.Add<frmMolecularWeight>("frmMolecularWeight");
  r.Add<frmGasDensity>("frmGasDensity");
  r.Add<frmGayLussac>("frmGayLussac");
  r.Add<frmCombinedLaws>("frmCombinedLaws");
  r.Add<frmDalton>("frmDalton");
  r.Add<frmGrahams>("frmGrahams");
  r.Add<frmMolarVolume>("frmMolarVolume");
  r.Add<frmMassVolume>("frmMassVolume");
  r.Add<frmVolumeVolume>("frmVolumeVolume");
  r.Add<frmRaoults>("frmRaoults");
}

}  // namespace orv
