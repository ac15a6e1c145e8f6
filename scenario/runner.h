#pragma once
// Runs scenario files: each file is one fresh run of the program, driven
// either straight through the runtime (headless) or through the real Qt
// widgets, with the same steps and the same expectations.

#include <string>
#include <vector>

namespace orv::scenario {

struct Options {
  bool qt = false;
  std::string exeDir;  // where the database and help files lie
};

struct Result {
  bool passed = false;
  int line = 0;
  std::string reason;
};

Result RunFile(const std::string& path, const Options& options);

}  // namespace orv::scenario
