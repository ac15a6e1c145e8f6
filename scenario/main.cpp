// orvanta-scenario [--qt] FILE...: runs each scenario file as one fresh run of
// the program, headless or through the real Qt widgets, and reports each.

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "scenario/qt_driver.h"
#include "scenario/runner.h"

int main(int argc, char** argv) {
  orv::scenario::Options options;
  bool qt = false;
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--qt") {
      qt = true;
    } else {
      files.push_back(a);
    }
  }
  if (files.empty()) {
    std::fprintf(stderr, "usage: orvanta-scenario [--qt] FILE...\n");
    return 2;
  }
  // The program finds its database and help files beside itself.
  options.exeDir = std::filesystem::canonical("/proc/self/exe").parent_path().string();

  std::unique_ptr<orv::scenario::QtSession> session;
  if (qt) {
    session = std::make_unique<orv::scenario::QtSession>(argc, argv);
    options.makeDriver = orv::scenario::MakeQtDriver;
  }

  int passed = 0;
  int failed = 0;
  for (const std::string& file : files) {
    const orv::scenario::Result r = orv::scenario::RunFile(file, options);
    if (r.passed) {
      std::printf("PASS %s\n", file.c_str());
      ++passed;
    } else {
      std::printf("FAIL %s:%d: %s\n", file.c_str(), r.line, r.reason.c_str());
      ++failed;
    }
    std::fflush(stdout);
  }
  std::printf("%d passed, %d failed\n", passed, failed);
  return failed == 0 ? 0 : 1;
}
