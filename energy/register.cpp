#include "shell/program.h"

namespace orv {

void RegisterEnergyScreens(ScreenRegistry& /*r*/) {}

}  // namespace orv
