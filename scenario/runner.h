#pragma once
// Runs scenario files: each file is one fresh run of the program, driven
// either straight through the runtime (headless) or through the real Qt
// widgets, with the same steps and the same expectations.

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

#include "scenario/driver.h"

namespace orv::scenario {

struct Options {
  // Makes the driver of each run, over the fakes that record what the user
  // meets; headless unless told otherwise.
  std::function<std::unique_ptr<Driver>(test::FakeServices&)> makeDriver = MakeHeadlessDriver;
  std::string exeDir;  // where the database and help files lie
};

struct Result {
  bool passed = false;
  int line = 0;
  std::string reason;
};

Result RunFile(const std::string& path, const Options& options);
// The same for a scenario's text.
Result RunScenario(std::istream& in, const Options& options);

}  // namespace orv::scenario
