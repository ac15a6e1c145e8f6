#include "general/frmSigfig.h"
#include "shell/program.h"

namespace orv {

void RegisterGeneralScreens(ScreenRegistry& r) { r.Add<frmSigfig>("frmSigfig"); }

}  // namespace orv
