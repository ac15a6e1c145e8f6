#include "app/registry.h"

#include "general/frmSigfig.h"
#include "shell/screens/frmMain.h"
#include "shell/screens/frmSplash.h"
#include "shell/screens/module1.h"

namespace orv {

namespace {
template <class T>
ScreenRegistry::Factory Make() {
  return [](Program& p) -> std::unique_ptr<Form> { return std::make_unique<T>(p); };
}

ScreenRegistry Build() {
  ScreenRegistry r;
  r.main = &Main;
  r.screens = {
      {"frmMain", Make<frmMain>()},
      {"frmSplash", Make<frmSplash>()},
      {"frmSigfig", Make<frmSigfig>()},
  };
  return r;
}
}  // namespace

const ScreenRegistry& AllScreens() {
  static const ScreenRegistry registry = Build();
  return registry;
}

}  // namespace orv
