#include "app/registry.h"

#include "shell/screens/module1.h"

namespace orv {

// Each subsystem registers the screens it has built.
void RegisterShellScreens(ScreenRegistry& r);
void RegisterGeneralScreens(ScreenRegistry& r);
void RegisterAtomScreens(ScreenRegistry& r);
void RegisterFormulaScreens(ScreenRegistry& r);
void RegisterGasScreens(ScreenRegistry& r);
void RegisterSolutionScreens(ScreenRegistry& r);
void RegisterEnergyScreens(ScreenRegistry& r);
void RegisterTableScreens(ScreenRegistry& r);
void RegisterHelpScreens(ScreenRegistry& r);

namespace {
ScreenRegistry Build() {
  ScreenRegistry r;
  r.main = &Main;
  RegisterShellScreens(r);
  RegisterGeneralScreens(r);
  RegisterAtomScreens(r);
  RegisterFormulaScreens(r);
  RegisterGasScreens(r);
  RegisterSolutionScreens(r);
  RegisterEnergyScreens(r);
  RegisterTableScreens(r);
  RegisterHelpScreens(r);
  return r;
}
}  // namespace

const ScreenRegistry& AllScreens() {
  static const ScreenRegistry registry = Build();
  return registry;
}

}  // namespace orv
