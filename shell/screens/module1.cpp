#include "shell/screens/module1.h"

#include "data/store.h"
#include "shell/screen_frame.h"

namespace orv {

void Main(Program& program) {
  program.Show("frmMain");
  program.Show("frmSplash");
  OpenDataStore(program);
}

bool OpenDataStore(Program& program) {
  data::DataStore& store = Store(program);
  try {
    store.gWorkspace = &data::DefaultWorkspace();
    // The directory as the platform gives it, then the separator and the name.
    const std::string path = program.ExeDir() + "/" + std::string(data::kDatabaseFileName);
    store.gDatabase = data::OpenProgramDatabase(*store.gWorkspace, path);
    return true;
  } catch (const RuntimeError&) {
    program.messages().Show(
        "Cannot locate the database. Please check to make sure it is installed in the correct location.", Icon::None,
        kTitle);
    return false;
  }
}

}  // namespace orv
