#include "shell/program.h"

namespace orv {

void RegisterTableScreens(ScreenRegistry& /*r*/) {}

}  // namespace orv
