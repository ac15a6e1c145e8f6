// orvanta-bench: figures for scripts/bench, not a test.
//   orvanta-bench startup   starts the program through main()'s own start and
//                           quits once the main screen has been painted;
//                           prints the resident memory at that moment.
//   orvanta-bench bare      the same for a bare Qt Widgets window.
//   orvanta-bench text      the same for a bare window with one label.
//   orvanta-bench sigfig N  times N presses of frmSigfig's Ok, headless.
//   orvanta-bench group     times Enter on frmWeights with "(OH)2(SO4)", the
//                           group that repeats until the weight stack
//                           overflows, headless, over the database beside it.

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "app/launch.h"
#include "app/registry.h"
#include "tests/support/fake_services.h"

namespace {

std::chrono::steady_clock::time_point g_start;
double Ms() { return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - g_start).count(); }

long ResidentKiB() {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.rfind("VmRSS:", 0) == 0) return std::stol(line.substr(6));
  }
  return -1;
}

// Quits the event loop once the watched window has been painted.
class QuitAfterPaint : public QObject {
 public:
  explicit QuitAfterPaint(QString window) : window_(std::move(window)) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !done_ && watched->objectName() == window_) {
      done_ = true;
      QTimer::singleShot(0, [] {
        std::printf("painted_ms %.1f\nrss_kib %ld\n", Ms(), ResidentKiB());
        QCoreApplication::exit(0);
      });
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QString window_;
  bool done_ = false;
};

// Lets `quit` see every event of the application, and gives up with a
// message if nothing has been painted in 20 s.
void WatchForPaint(QuitAfterPaint& quit) {
  QCoreApplication::instance()->installEventFilter(&quit);
  QTimer::singleShot(20000, [] {
    std::printf("timeout\n");
    QCoreApplication::exit(1);
  });
}

int Startup(int argc, char** argv) {
  g_start = std::chrono::steady_clock::now();
  orv::app::Launch orvanta(argc, argv);
  std::printf("app_ms %.1f\n", Ms());
  // Watches every paint, so that the first one is seen however early it comes.
  QuitAfterPaint quit(QStringLiteral("frmMain"));
  WatchForPaint(quit);
  return orvanta.Run();
}

// A bare window; with `text`, holding one label of text, so that the cost
// any window with text pays (the font configuration, the font database, a
// font, shaping and drawing) can be told from the program's own.
int Bare(int argc, char** argv, bool text) {
  g_start = std::chrono::steady_clock::now();
  QApplication app(argc, argv);
  std::printf("app_ms %.1f\n", Ms());
  QApplication::setQuitOnLastWindowClosed(false);
  QuitAfterPaint quit(QStringLiteral("frmMain"));
  WatchForPaint(quit);
  QWidget window;
  window.setObjectName(QStringLiteral("frmMain"));
  window.resize(760, 490);
  if (text) new QLabel(QStringLiteral("Halveron Software - Orvanta"), &window);
  window.show();
  return QApplication::exec();
}

int Sigfig(long presses) {
  orv::test::FakeServices fakes;
  orv::Program program(orv::AllScreens(), fakes.services(), "/nonexistent");
  program.Start();
  program.UserAction([&] { program.Show("frmSigfig"); });
  orv::Form* form = program.Find("frmSigfig");
  program.UserEdit(form->ctl("txtSigfig1"), "1020.0450");
  orv::Control& ok = form->ctl("cmdOk");
  const auto start = std::chrono::steady_clock::now();
  for (long i = 0; i < presses; ++i) program.UserClick(ok);
  const auto end = std::chrono::steady_clock::now();
  const double us = std::chrono::duration<double, std::micro>(end - start).count() / static_cast<double>(presses);
  std::printf("sigfig_ok_us %.3f result %s\n", us, form->ctl("txtSigfig2").Text().c_str());
  return 0;
}

int Group(const char* argv0) {
  orv::test::FakeServices fakes;
  const std::string dir = std::filesystem::canonical(argv0).parent_path().string();
  orv::Program program(orv::AllScreens(), fakes.services(), dir);
  program.Start();
  program.UserAction([&] { program.Show("frmWeights"); });
  orv::Form* form = program.Find("frmWeights");
  orv::Control& box = form->ctl("RichTextBox1");
  for (const char c : std::string("(OH)2(SO4)")) program.UserKey(*form, &box, {orv::KeyCodeOfChar(c), c, 0});
  const auto start = std::chrono::steady_clock::now();
  program.UserKey(*form, &box, {orv::kKeyReturn, '\r', 0});
  const auto end = std::chrono::steady_clock::now();
  std::printf("group_ms %.1f message %s\n", std::chrono::duration<double, std::milli>(end - start).count(),
              fakes.messages.boxes.empty() ? "" : fakes.messages.boxes.back().text.c_str());
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc >= 2 && std::strcmp(argv[1], "startup") == 0) return Startup(argc, argv);
  if (argc >= 2 && std::strcmp(argv[1], "bare") == 0) return Bare(argc, argv, false);
  if (argc >= 2 && std::strcmp(argv[1], "text") == 0) return Bare(argc, argv, true);
  if (argc >= 2 && std::strcmp(argv[1], "sigfig") == 0) return Sigfig(argc >= 3 ? std::stol(argv[2]) : 100000);
  if (argc >= 2 && std::strcmp(argv[1], "group") == 0) return Group("/proc/self/exe");
  std::fprintf(stderr, "usage: orvanta-bench startup|bare|text|sigfig [N]|group\n");
  return 2;
}
