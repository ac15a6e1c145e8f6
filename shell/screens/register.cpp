#include "shell/program.h"
#include "shell/screens/choice_screens.h"
#include "shell/screens/frmAbout.h"
#include "shell/screens/frmMain.h"
#include "shell/screens/frmSplash.h"

namespace orv {

void RegisterShellScreens(ScreenRegistry& r) {
  r.Add<frmAbout>("frmAbout");
  r.Add<frmMain>("frmMain");
  r.Add<frmSplash>("frmSplash");
  RegisterChoiceScreens(r);
}

}  // namespace orv
