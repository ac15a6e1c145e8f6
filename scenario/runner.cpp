// The runner's core: takes a file's steps in order, through whichever driver
// the options give, and checks the expectations on the way.

#include "scenario/runner.h"

#include <filesystem>
#include <fstream>

#include "app/registry.h"
#include "scenario/scene.h"

namespace orv::scenario {

namespace {

class Run {
 public:
  explicit Run(const Options& options) : options_(options) { scene_.exeDir = options.exeDir; }

  // Returns false once the file has ended (expect ended).
  bool Take(const Step& step) {
    std::visit([this](const auto& s) { Act(s); }, step);
    return !scene_.endExpected;
  }
  // A file may not end on a message box nobody expected, nor on an end
  // nobody expected.
  void Finish() {
    Program* p = scene_.program.get();
    if (p != nullptr && !p->Ended()) scene_.CheckNoBoxes();
    if (p != nullptr && p->Ended() && !scene_.endExpected) Fail("the program ended: " + Quote(p->EndWords()));
  }

 private:
  Program& P() { return scene_.P(); }
  Driver& D() { return *scene_.driver; }
  // Every action begins with no box left unexpected and the program going.
  void BeforeAction() {
    scene_.CheckNoBoxes();
    if (P().Ended()) Fail("the program has ended: " + Quote(P().EndWords()));
  }

  void Act(const step::Start& s);
  void Act(const step::Expect& s) { Expect(scene_, s); }
  void Act(const step::Show& s) {
    BeforeAction();
    if (!P().IsBuilt(s.form)) Fail(s.form + " is not built");
    P().UserAction([&] { P().Show(s.form); });
    D().Settle();
  }
  // Only the last of N clicks may leave a message box behind.
  void Act(const step::Click& s) {
    for (int i = 0; i < s.times; ++i) {
      BeforeAction();
      D().Click(scene_.Ctl(s.target), s.twice);
    }
  }
  void Act(const step::ClickNode& s) {
    BeforeAction();
    Control& c = scene_.Ctl(s.target);
    if (c.kind() != Kind::Tree) Fail(c.key() + " is no tree view");
    D().ClickNode(c, s.key, s.twice);
  }
  void Act(const step::Type& s);
  void Act(const step::Paste& s) {
    BeforeAction();
    D().Paste(scene_.Ctl(s.target), s.text);
  }
  void Act(const step::Close& s) {
    BeforeAction();
    D().Close(scene_.LoadedForm(s.form));
  }
  void Act(const step::Select& s) {
    BeforeAction();
    D().Select(scene_.Ctl(s.target), s.row);
  }
  void Act(const step::Snapshot& s) {
    BeforeAction();
    D().Snapshot(scene_.LoadedForm(s.form), s.file);
  }

  const Options& options_;
  Scene scene_;
};

void Run::Act(const step::Start& s) {
  if (scene_.program) Fail("start given twice");
  test::FakeServices& fakes = scene_.fakes;
  fakes.printer.available = s.printer;
  fakes.launcher.available = s.calculator;
  scene_.driver = options_.makeDriver(fakes);
  // Without the database the program looks for it in a folder that lacks it.
  std::string dir = options_.exeDir;
  if (!s.database) dir = (std::filesystem::temp_directory_path() / "orvanta-no-database").string();
  Driver& d = D();
  scene_.program = std::make_unique<Program>(
      AllScreens(), Program::Services{&d.messages(), &d.printer(), &fakes.launcher, d.view(), &d.clipboard()}, dir);
  d.Attach(*scene_.program);
  P().Start();
  d.Settle();
}

// Keys go to whichever control has the focus as typing goes on.
void Run::Act(const step::Type& s) {
  BeforeAction();
  Control& c = scene_.Ctl(s.target);
  D().Focus(c);
  Form& form = c.form();
  for (const Key& k : s.keys) {
    if (P().Ended() || !form.Loaded()) break;
    D().PressKey(form, form.ActiveControl(), k);
  }
}

}  // namespace

Result RunScenario(std::istream& in, const Options& options) {
  Result result;
  Run run(options);
  std::string line;
  try {
    bool going = true;
    while (going && std::getline(in, line)) {
      ++result.line;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (const std::optional<Step> step = ParseStep(line)) going = run.Take(*step);
    }
    run.Finish();
    result.passed = true;
  } catch (const Failure& f) {
    result.reason = f.reason;
  } catch (const std::exception& e) {
    result.reason = std::string("bad step: ") + e.what();
  }
  return result;
}

Result RunFile(const std::string& path, const Options& options) {
  std::ifstream in(path);
  if (!in) return Result{false, 0, "cannot read the file"};
  return RunScenario(in, options);
}

}  // namespace orv::scenario
