#include "shell/program.h"

namespace orv {

void RegisterHelpScreens(ScreenRegistry& /*r*/) {}

}  // namespace orv
