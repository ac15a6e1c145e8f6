// The expectations, one small function for each "expect ... WORD", found
// through tables: the run's records (msgbox, printed, beeps, ...), a screen's
// state and a control's. Each reads what the user sees through the driver.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <span>
#include <sstream>
#include <utility>

#include "scenario/scene.h"
#include "shell/rich_text.h"

namespace orv::scenario {

Program& Scene::P() const {
  if (!program) Fail("the file must begin with start");
  return *program;
}

Form& Scene::LoadedForm(const std::string& name) const {
  Form* f = P().Find(name);
  if (f == nullptr) Fail(name + " is not loaded");
  return *f;
}

Control& Scene::Ctl(const Target& t) const {
  Control* c = LoadedForm(t.form).find(t.control, t.index);
  if (c == nullptr) Fail(t.form + " has no control " + t.control);
  return *c;
}

void Scene::CheckNoBoxes() const {
  if (fakes.messages.boxes.empty()) return;
  const test::Box& b = fakes.messages.boxes.front();
  Fail("message box not expected: " + Quote(b.text) + " icon=" + test::IconName(b.icon) + " title=" + Quote(b.title));
}

namespace {

using Words = std::span<const Token>;

int Number(const Token& t) { return std::stoi(t.text); }

void Need(const Control& c, Kind kind, const char* noun) {
  if (c.kind() != kind) Fail(c.key() + " is no " + std::string(noun));
}

// --- what the run recorded: expect msgbox|printed|beeps|launched|ended ---

void ExpectMessageBox(Scene& s, Words w) {
  if (w.empty() || !w[0].quoted) Fail("expect msgbox \"text\"");
  auto& boxes = s.fakes.messages.boxes;
  if (boxes.empty()) Fail("no message box, expected " + Quote(w[0].text));
  const test::Box b = boxes.front();
  boxes.erase(boxes.begin());
  if (b.text != w[0].text) Fail("message box says " + Quote(b.text) + ", expected " + Quote(w[0].text));
  const std::string icon = test::IconName(b.icon);
  for (const Token& t : w.subspan(1)) {
    const std::string& a = t.text;
    if (a.starts_with("icon=")) {
      if (a.substr(5) != icon) Fail("message box icon is " + icon + ", expected " + a.substr(5));
    } else if (a.starts_with("title=")) {
      if (a.substr(6) != b.title) Fail("message box title is " + Quote(b.title) + ", expected " + Quote(a.substr(6)));
    } else {
      Fail("unknown message box property " + a);
    }
  }
}

void ExpectPrinted(Scene& s, Words w) {
  if (w.size() != 1) Fail("expect printed FORM");
  auto& printed = s.fakes.printer.printed;
  if (printed.empty()) Fail("nothing was printed");
  const std::string name = printed.front();
  printed.erase(printed.begin());
  if (name != w[0].text) Fail(name + " was printed, expected " + w[0].text);
}

// The beeps since the last such step.
void ExpectBeeps(Scene& s, Words w) {
  if (w.size() != 1) Fail("expect beeps N");
  const int beeps = std::exchange(s.fakes.messages.beeps, 0);
  if (std::to_string(beeps) != w[0].text) Fail(std::to_string(beeps) + " beeps, expected " + w[0].text);
}

void ExpectLaunched(Scene& s, Words) {
  if (s.fakes.launcher.launched == 0) Fail("no calculator was launched");
  --s.fakes.launcher.launched;
}

// With words, the program ended on an untrapped error with these words;
// without, it ended normally. The file's later steps are not run.
void ExpectEnded(Scene& s, Words w) {
  Program& p = s.P();
  if (!p.Ended()) Fail("the program has not ended");
  if (!w.empty()) {
    if (!p.EndedOnError()) Fail("the program ended without an error");
    if (p.EndWords() != w[0].text)
      Fail("the program ended on " + Quote(p.EndWords()) + ", expected " + Quote(w[0].text));
  } else if (p.EndedOnError()) {
    Fail("the program ended on " + Quote(p.EndWords()));
  }
  if (p.EndedOnError() && s.fakes.messages.fatal != p.EndWords()) Fail("the error's words were not shown");
  s.CheckNoBoxes();
  s.endExpected = true;
}

struct RecordExpectation {
  std::string_view word;
  void (*check)(Scene&, Words);
};

constexpr RecordExpectation kRecordExpectations[] = {
    {"msgbox", ExpectMessageBox}, {"printed", ExpectPrinted}, {"beeps", ExpectBeeps},
    {"launched", ExpectLaunched}, {"ended", ExpectEnded},
};

// --- a screen: expect FORM loaded|unloaded|visible|hidden|caption "text" ---

struct FormExpectation {
  std::string_view word;
  std::size_t args;
  void (*check)(Scene&, const std::string& name, Form* form, Words);
};

constexpr FormExpectation kFormExpectations[] = {
    {"loaded", 0,
     [](Scene&, const std::string& name, Form* f, Words) {
       if (f == nullptr) Fail(name + " is not loaded");
     }},
    {"unloaded", 0,
     [](Scene&, const std::string& name, Form* f, Words) {
       if (f != nullptr) Fail(name + " is loaded");
     }},
    {"visible", 0,
     [](Scene& s, const std::string& name, Form* f, Words) {
       if (f == nullptr || !s.driver->WindowVisible(*f)) Fail(name + " is not visible");
     }},
    {"hidden", 0,
     [](Scene& s, const std::string& name, Form* f, Words) {
       if (f != nullptr && s.driver->WindowVisible(*f)) Fail(name + " is visible");
     }},
    {"caption", 1,
     [](Scene& s, const std::string& name, Form* f, Words w) {
       if (f == nullptr) Fail(name + " is not loaded");
       const std::string shown = s.driver->Caption(*f);
       if (shown != w[0].text) Fail(name + " has the caption " + Quote(shown) + ", expected " + Quote(w[0].text));
     }},
};

// --- a control's state: expect FORM.CTRL enabled|disabled|... ---

void State(const Control& c, bool ok, const char* state) {
  if (!ok) Fail(c.key() + " is not " + state);
}

// A control's shown text, or a file's whole text beside the executables
// (line ends as line feeds).
void ExpectText(Scene& s, Control& c, const std::string& wanted) {
  const std::string shown = s.driver->Text(c);
  if (shown != wanted) Fail(c.key() + " shows " + Quote(shown) + ", expected " + Quote(wanted));
}

void ExpectFile(Scene& s, Control& c, Words w) {
  if (!w[0].quoted) Fail("expect FORM.CTRL file \"name\"");
  std::ifstream in(std::filesystem::path(s.exeDir) / w[0].text, std::ios::binary);
  if (!in) Fail("cannot read " + Quote(w[0].text));
  std::ostringstream content;
  content << in.rdbuf();
  std::string wanted;
  for (char ch : content.str()) {
    if (ch != '\r') wanted += ch;
  }
  if (s.driver->Text(c) != wanted) Fail(c.key() + " does not show the text of " + Quote(w[0].text));
}

// RRGGBB, or "none" where the control keeps the style's colour.
void ExpectColour(Scene& s, Control& c, Words w, bool back) {
  const int rgb = s.driver->Colour(c, back);
  std::string shown = "none";
  if (rgb != kNoColor) {
    char hex[12];
    std::snprintf(hex, sizeof hex, "%06X", static_cast<unsigned>(rgb) & 0xFFFFFFu);
    shown = hex;
  }
  const char* what = back ? "backcolor" : "forecolor";
  if (shown != w[0].text) Fail(c.key() + " has the " + what + " " + shown + ", expected " + w[0].text);
}

// A rich text box's characters: lowered (-50), on the line (0), raised (50).
void ExpectOffsets(Scene& s, Control& c, Words w) {
  Need(c, Kind::RichText, "rich text box");
  const std::vector<int> offsets = s.driver->Offsets(c);
  std::string shown;
  for (std::size_t i = 0; i < offsets.size(); ++i) shown += (i > 0 ? "," : "") + std::to_string(offsets[i]);
  if (shown != w[0].text) Fail(c.key() + " has the offsets " + Quote(shown) + ", expected " + Quote(w[0].text));
}

void ExpectRow(Scene& s, Control& c, Words w) {
  const auto rows = s.driver->Rows(c);
  const int n = Number(w[0]);
  if (n < 0 || n >= static_cast<int>(rows.size())) Fail(c.key() + " has no row " + w[0].text);
  const std::string& row = rows[static_cast<std::size_t>(n)];
  if (row != w[1].text) Fail(c.key() + " row " + w[0].text + " is " + Quote(row) + ", expected " + Quote(w[1].text));
}

std::vector<std::string> Drawing(Scene& s, Control& c) {
  Need(c, Kind::Picture, "picture box");
  std::vector<std::string> out;
  for (const PictureItem& item : s.driver->Drawing(c)) out.push_back(Describe(item));
  return out;
}

// Counted from 1, or from the end with a negative number.
void ExpectItem(Scene& s, Control& c, Words w) {
  const auto items = Drawing(s, c);
  const int k = Number(w[0]);
  const int n = static_cast<int>(items.size());
  const int at = k > 0 ? k - 1 : n + k;
  if (k == 0 || at < 0 || at >= n) Fail(c.key() + " has no item " + w[0].text + " of " + std::to_string(n));
  const std::string& item = items[static_cast<std::size_t>(at)];
  if (item != w[1].text) Fail(c.key() + " item " + w[0].text + " is " + Quote(item) + ", expected " + Quote(w[1].text));
}

void Count(const Control& c, std::size_t shown, const Token& wanted, const char* things) {
  if (std::to_string(shown) != wanted.text) {
    Fail(c.key() + " has " + std::to_string(shown) + " " + things + ", expected " + wanted.text);
  }
}

// --- a chart as it is painted ---

const ChartContent& Chart(Scene& s, Control& c) {
  Need(c, Kind::Chart, "chart");
  return s.driver->Chart(c);
}

void Same(const Control& c, const std::string& name, const std::string& shown, const std::string& wanted) {
  if (shown != wanted) Fail(c.key() + " has the " + name + " " + Quote(shown) + ", expected " + Quote(wanted));
}

void ExpectPoint(Scene& s, Control& c, Words w) {
  const ChartContent& chart = Chart(s, c);
  const int k = Number(w[0]);
  const int n = static_cast<int>(chart.points.size());
  if (k < 0 || k >= n) Fail(c.key() + " has no point " + w[0].text + " of " + std::to_string(n));
  Same(c, "point " + w[0].text, Describe(chart.points[static_cast<std::size_t>(k)]), w[1].text);
}

void ExpectAxis(Scene& s, Control& c, Words w) {
  const ChartContent& chart = Chart(s, c);
  if (w[0].text != "category" && w[0].text != "value") Fail("expect FORM.CTRL axis category|value \"text\"");
  const bool category = w[0].text == "category";
  Same(c, w[0].text + " axis title", category ? chart.categoryTitle : chart.valueTitle, w[1].text);
}

// --- a tree view as shown ---

ShownNodes Nodes(Scene& s, Control& c) {
  Need(c, Kind::Tree, "tree view");
  return s.driver->Nodes(c);
}

// A node's text, or its state: expanded, collapsed, selected, unselected.
void ExpectNode(Scene& s, Control& c, Words w) {
  if (!w[0].quoted) Fail("expect FORM.CTRL node \"key\" ...");
  const ShownNodes nodes = Nodes(s, c);
  const auto it = nodes.find(w[0].text);
  if (it == nodes.end()) Fail(c.key() + " has no node " + Quote(w[0].text));
  const ShownNode& n = it->second;
  const std::string& state = w[1].text;
  if (w[1].quoted) {
    if (n.text != state) Fail("node " + Quote(w[0].text) + " shows " + Quote(n.text) + ", expected " + Quote(state));
    return;
  }
  const std::pair<const char*, bool> kStates[] = {
      {"expanded", n.expanded}, {"collapsed", !n.expanded}, {"selected", n.selected}, {"unselected", !n.selected}};
  for (const auto& [name, ok] : kStates) {
    if (state != name) continue;
    if (!ok) Fail("node " + Quote(w[0].text) + " is not " + state);
    return;
  }
  Fail("unknown expectation 'node'");
}

struct ControlExpectation {
  std::string_view word;
  std::size_t args;
  void (*check)(Scene&, Control&, Words);
};

using S = Scene&;
using C = Control&;

constexpr ControlExpectation kControlExpectations[] = {
    {"enabled", 0, [](S s, C c, Words) { State(c, s.driver->Enabled(c), "enabled"); }},
    {"disabled", 0, [](S s, C c, Words) { State(c, !s.driver->Enabled(c), "disabled"); }},
    {"visible", 0, [](S s, C c, Words) { State(c, s.driver->Visible(c), "visible"); }},
    {"hidden", 0, [](S s, C c, Words) { State(c, !s.driver->Visible(c), "hidden"); }},
    {"selected", 0, [](S s, C c, Words) { State(c, s.driver->Checked(c), "selected"); }},
    {"unselected", 0, [](S s, C c, Words) { State(c, !s.driver->Checked(c), "unselected"); }},
    {"checked", 0, [](S s, C c, Words) { State(c, s.driver->Checked(c), "checked"); }},
    {"unchecked", 0, [](S s, C c, Words) { State(c, !s.driver->Checked(c), "unchecked"); }},
    {"focused", 0, [](S s, C c, Words) { State(c, s.driver->Focused(c), "focused"); }},
    {"tooltip", 1, [](S s, C c, Words w) { Same(c, "tool tip", s.driver->ToolTip(c), w[0].text); }},
    {"file", 1, ExpectFile},
    {"backcolor", 1, [](S s, C c, Words w) { ExpectColour(s, c, w, true); }},
    {"forecolor", 1, [](S s, C c, Words w) { ExpectColour(s, c, w, false); }},
    {"offsets", 1, ExpectOffsets},
    {"rows", 1, [](S s, C c, Words w) { Count(c, s.driver->Rows(c).size(), w[0], "rows"); }},
    {"row", 2, ExpectRow},
    {"items", 1, [](S s, C c, Words w) { Count(c, Drawing(s, c).size(), w[0], "items drawn"); }},
    {"item", 2, ExpectItem},
    {"points", 1, [](S s, C c, Words w) { Count(c, Chart(s, c).points.size(), w[0], "points"); }},
    {"point", 2, ExpectPoint},
    {"title", 1, [](S s, C c, Words w) { Same(c, "title", Chart(s, c).title, w[0].text); }},
    {"footnote", 1, [](S s, C c, Words w) { Same(c, "footnote", Chart(s, c).footnote, w[0].text); }},
    {"type", 1, [](S s, C c, Words w) { Same(c, "chart type", ChartTypeName(Chart(s, c).type), w[0].text); }},
    {"axis", 2, ExpectAxis},
    {"nodes", 1, [](S s, C c, Words w) { Count(c, Nodes(s, c).size(), w[0], "nodes"); }},
    {"node", 2, ExpectNode},
};

void ExpectOfControl(Scene& s, Control& c, Words w) {
  if (w.size() == 1 && w[0].quoted) return ExpectText(s, c, w[0].text);
  const std::string word = w.empty() ? "" : w[0].text;
  const Words args = w.empty() ? w : w.subspan(1);
  for (const ControlExpectation& e : kControlExpectations) {
    if (e.word == word && e.args == args.size()) return e.check(s, c, args);
  }
  Fail("unknown expectation '" + word + "'");
}

void ExpectOfForm(Scene& s, const std::string& name, Words w) {
  const std::string word = w.empty() ? "" : w[0].text;
  const Words args = w.empty() ? w : w.subspan(1);
  for (const FormExpectation& e : kFormExpectations) {
    if (e.word == word && e.args == args.size()) return e.check(s, name, s.P().Find(name), args);
  }
  Fail("unknown expectation '" + word + "'");
}

}  // namespace

void Expect(Scene& scene, const step::Expect& expect) {
  for (const RecordExpectation& e : kRecordExpectations) {
    if (e.word == expect.subject) return e.check(scene, expect.words);
  }
  if (expect.subject.find('.') != std::string::npos) {
    return ExpectOfControl(scene, scene.Ctl(ParseTarget(expect.subject)), expect.words);
  }
  ExpectOfForm(scene, expect.subject, expect.words);
}

}  // namespace orv::scenario
