#include "shell/program.h"

namespace orv {

void RegisterFormulaScreens(ScreenRegistry& /*r*/) {}

}  // namespace orv
