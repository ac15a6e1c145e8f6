#include "shell/program.h"

namespace orv {

void RegisterGasScreens(ScreenRegistry& /*r*/) {}

}  // namespace orv
