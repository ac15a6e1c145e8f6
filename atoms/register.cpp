#include "shell/program.h"

namespace orv {

void RegisterAtomScreens(ScreenRegistry& /*r*/) {}

}  // namespace orv
