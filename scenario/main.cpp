// orvanta-scenario [--qt] FILE...: runs each scenario file as one fresh run of
// the program, headless or through the real Qt widgets, and reports each.

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "scenario/qt_driver.h"
#include "scenario/runner.h"

namespace {
// The offscreen platform cannot raise windows or resize them for real, and
// says so on every screen shown; those lines are no news to a test run.
void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"))) return;
  qt_message_output(type, context, message);
}
}  // namespace

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

  std::unique_ptr<QApplication> app;
  if (qt) {
    options.makeDriver = orv::scenario::MakeQtDriver;
    if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr &&
        std::getenv("QT_QPA_PLATFORM") == nullptr) {
      setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    qInstallMessageHandler(QuietHandler);
    app = std::make_unique<QApplication>(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
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
