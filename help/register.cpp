#include "help/frmHelp.h"
#include "shell/program.h"

namespace orv {

void RegisterHelpScreens(ScreenRegistry& r) { r.Add<frmHelp>("frmHelp"); }

}  // namespace orv
