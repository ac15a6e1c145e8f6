#include "scenario/runner.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <deque>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>

#include "app/registry.h"
#include "qtui/chart_widget.h"
#include "qtui/picture_widget.h"
#include "qtui/qt_view.h"
#include "qtui/rich_text_widget.h"
#include "qtui/tree_widget.h"
#include "shell/chart.h"
#include "shell/picture.h"
#include "shell/rich_text.h"
#include "shell/text.h"
#include "shell/tree.h"

namespace orv::scenario {

namespace {

struct Failure {
  std::string reason;
};

[[noreturn]] void Fail(std::string reason) { throw Failure{std::move(reason)}; }

// --- the file's words ---

struct Token {
  std::string text;
  bool quoted = false;
};

std::vector<Token> Tokenize(const std::string& line) {
  std::vector<Token> out;
  std::size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
    if (i >= line.size()) break;
    Token t;
    while (i < line.size() && line[i] != ' ' && line[i] != '\t') {
      if (line[i] != '"') {
        t.text += line[i++];
        continue;
      }
      t.quoted = true;
      ++i;
      bool closed = false;
      while (i < line.size()) {
        char c = line[i++];
        if (c == '"') {
          closed = true;
          break;
        }
        if (c == '\\' && i < line.size()) {
          char e = line[i++];
          c = e == 'n' ? '\n' : e == 'r' ? '\r' : e;
        }
        t.text += c;
      }
      if (!closed) Fail("unterminated string");
    }
    out.push_back(std::move(t));
  }
  return out;
}

// "FORM.CTRL" or "FORM.CTRL(3)".
struct Target {
  std::string form;
  std::string control;
  int index = -1;
};

Target ParseTarget(const std::string& s) {
  Target t;
  const auto dot = s.find('.');
  if (dot == std::string::npos) Fail("expected FORM.CTRL, got '" + s + "'");
  t.form = s.substr(0, dot);
  t.control = s.substr(dot + 1);
  const auto paren = t.control.find('(');
  if (paren != std::string::npos) {
    t.index = std::stoi(t.control.substr(paren + 1));
    t.control = t.control.substr(0, paren);
  }
  return t;
}

// Splits typed text into keys: characters, and {Name} for the named keys.
std::vector<Key> ParseKeys(const std::string& text) {
  static const std::pair<const char*, Key> kNamed[] = {
      {"Enter", {kKeyReturn, 13, 0}},
      {"Esc", {kKeyEscape, 27, 0}},
      {"Backspace", {kKeyBack, 8, 0}},
      {"Delete", {kKeyDelete, 0, 0}},
      {"F1", {kKeyF1, 0, 0}},
      {"Tab", {kKeyTab, 0, 0}},
      {"Shift+Tab", {kKeyTab, 0, kShiftMask}},
      {"Left", {kKeyLeft, 0, 0}},
      {"Right", {kKeyRight, 0, 0}},
      {"Home", {kKeyHome, 0, 0}},
      {"End", {kKeyEnd, 0, 0}},

  };
  std::vector<Key> keys;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '{') {
      const auto close = text.find('}', i);
      if (close == std::string::npos) Fail("unterminated key name");
      const std::string name = text.substr(i + 1, close - i - 1);
      bool found = false;
      // {Ctrl+X}: a letter with Ctrl, which types the letter's control character.
      if (name.size() == 6 && name.rfind("Ctrl+", 0) == 0 && name[5] >= 'A' && name[5] <= 'Z') {
        keys.push_back(Key{name[5], name[5] - 'A' + 1, kCtrlMask});
        found = true;
      }
      for (const auto& [n, k] : kNamed) {
        if (name == n) {
          keys.push_back(k);
          found = true;
        }
      }
      if (!found) Fail("unknown key {" + name + "}");
      i = close;
      continue;
    }
    const auto c = static_cast<unsigned char>(text[i]);
    Key k;
    k.ascii = c;
    k.code = KeyCodeOfChar(c);
    if (c >= 'A' && c <= 'Z') k.shift = kShiftMask;
    keys.push_back(k);
  }
  return keys;
}

std::string IconName(Icon icon) {
  switch (icon) {
    case Icon::None: return "none";
    case Icon::Information: return "information";
    case Icon::Exclamation: return "exclamation";
    case Icon::Critical: return "critical";
  }
  return "?";
}

std::string Quote(const std::string& s) {
  std::string out = "\"";
  for (char c : s) {
    if (c == '\n')
      out += "\\n";
    else if (c == '\r')
      out += "\\r";
    else if (c == '"')
      out += "\\\"";
    else if (c == '\\')
      out += "\\\\";
    else
      out += c;
  }
  return out + "\"";
}

// --- recording services ---

struct Box {
  std::string text;
  std::string icon;
  std::string title;
};

class Messages : public MessageService {
 public:
  explicit Messages(qt::QtMessages* real) : real_(real) {
    if (real_ != nullptr) {
      // The real box is read as the user sees it, then dismissed.
      real_->hook = [this](QMessageBox& box) {
        if (!fatal_) {
          static const std::pair<QMessageBox::Icon, const char*> kIcons[] = {{QMessageBox::NoIcon, "none"},
                                                                             {QMessageBox::Information, "information"},
                                                                             {QMessageBox::Warning, "exclamation"},
                                                                             {QMessageBox::Critical, "critical"}};
          std::string icon = "?";
          for (const auto& [i, n] : kIcons) {
            if (box.icon() == i) icon = n;
          }
          boxes.push_back({box.text().toStdString(), icon, box.windowTitle().toStdString()});
        }
        QTimer::singleShot(0, &box, [&box] { box.done(QMessageBox::Ok); });
      };
    }
  }
  void Show(std::string_view text, Icon icon, std::string_view title) override {
    if (real_ != nullptr) {
      real_->Show(text, icon, title);
    } else {
      boxes.push_back({std::string(text), IconName(icon), std::string(title)});
    }
  }
  void ShowFatal(std::string_view words) override {
    fatalWords = std::string(words);
    if (real_ != nullptr) {
      fatal_ = true;
      real_->ShowFatal(words);
      fatal_ = false;
    }
  }

  void Beep() override {
    ++beeps;
    if (real_ != nullptr) real_->Beep();
  }

  std::deque<Box> boxes;
  std::string fatalWords;
  int beeps = 0;

 private:
  qt::QtMessages* real_;
  bool fatal_ = false;
};

class Printer : public PrintService {
 public:
  Printer(bool available, qt::QtView* view) : available_(available), view_(view) {}
  void PrintImage(Form& form) override {
    if (!available_) Raise(ErrorCode::PrinterError);
    // Through the widgets, the image is grabbed as the printer would get it.
    if (view_ != nullptr && qt::GrabForm(*view_, form).isNull()) {
      printed.push_back("(no image of " + form.name() + ")");
      return;
    }
    printed.push_back(form.name());
  }
  std::deque<std::string> printed;

 private:
  bool available_;
  qt::QtView* view_;
};

class Launcher : public LaunchService {
 public:
  explicit Launcher(bool available) : available_(available) {}
  void LaunchCalculator() override {
    if (!available_) Raise(ErrorCode::FileNotFound);
    ++launched;
  }
  int launched = 0;

 private:
  bool available_;
};

// The clipboard of a headless run.
class Clipboard : public ClipboardService {
 public:
  std::string Text() const override { return text_; }
  void SetText(std::string_view text) override { text_ = std::string(text); }

 private:
  std::string text_;
};

// --- one run ---

class Run {
 public:
  explicit Run(const Options& options) : options_(options) {}
  ~Run() { Stop(); }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  // Returns false when the file has ended (expect ended).
  bool Step(const std::vector<Token>& t);
  void Finish() {
    if (program_ && !program_->Ended()) CheckNoBoxes();
    if (program_ && program_->Ended() && !endExpected_) Fail("the program ended: " + Quote(program_->EndWords()));
  }

 private:
  void Start(const std::vector<Token>& t);
  void Stop();
  Program& P() {
    if (!program_) Fail("the file must begin with start");
    return *program_;
  }
  Form& LoadedForm(const std::string& name) {
    Form* f = P().Find(name);
    if (f == nullptr) Fail(name + " is not loaded");
    return *f;
  }
  Control& Ctl(const Target& t) {
    Control* c = LoadedForm(t.form).find(t.control, t.index);
    if (c == nullptr) Fail(t.form + " has no control " + t.control);
    return *c;
  }
  QWidget* W(const Control& c) {
    QWidget* w = view_->Widget(c);
    if (w == nullptr && c.kind() != Kind::Menu) Fail("no widget for " + c.key());
    return w;
  }
  void Settle() {
    if (options_.qt) QCoreApplication::processEvents();
  }
  void BeforeAction() {
    CheckNoBoxes();
    if (P().Ended()) Fail("the program has ended: " + Quote(P().EndWords()));
  }
  void CheckNoBoxes() {
    if (!messages_->boxes.empty()) {
      const Box& b = messages_->boxes.front();
      Fail("message box not expected: " + Quote(b.text) + " icon=" + b.icon + " title=" + Quote(b.title));
    }
  }

  void Click(Control& c, bool twice);
  void Type(Control& c, const std::string& text);
  void Paste(Control& c, const std::string& text);
  void Select(Control& c, int row);
  void ClickNode(Control& c, const std::string& key, bool twice);
  void ExpectTree(Control& c, const std::vector<Token>& t);
  void FocusForTyping(Control& c);
  void Expect(const std::vector<Token>& t);
  void ExpectControl(Control& c, const std::vector<Token>& t);
  void ExpectForm(const std::string& name, const std::vector<Token>& t);

  // What the user sees of a control: the widget's state through Qt, the
  // model's headless.
  std::string ShownText(Control& c);
  bool ShownEnabled(Control& c);
  bool ShownVisible(Control& c);
  bool ShownChecked(Control& c);
  bool ShownFocused(Control& c);
  std::string ShownToolTip(Control& c);
  std::vector<std::string> ShownRows(Control& c);
  // A picture box's display list, each item described as by Describe.
  std::vector<std::string> ShownDrawing(Control& c);

  const Options& options_;
  std::unique_ptr<qt::QtView> view_;
  std::unique_ptr<qt::QtMessages> qtMessages_;
  std::unique_ptr<Messages> messages_;
  std::unique_ptr<Printer> printer_;
  std::unique_ptr<Launcher> launcher_;
  std::unique_ptr<ClipboardService> clipboard_;
  std::unique_ptr<Program> program_;
  bool endExpected_ = false;
};

void Run::Start(const std::vector<Token>& t) {
  if (program_) Fail("start given twice");
  bool db = true, printer = true, calculator = true;
  for (std::size_t i = 1; i < t.size(); ++i) {
    if (t[i].text == "nodb")
      db = false;
    else if (t[i].text == "noprinter")
      printer = false;
    else if (t[i].text == "nocalculator")
      calculator = false;
    else
      Fail("unknown start modifier " + t[i].text);
  }
  if (options_.qt) {
    view_ = std::make_unique<qt::QtView>();
    view_->onEnded = [] {};
    qtMessages_ = std::make_unique<qt::QtMessages>();
  }
  messages_ = std::make_unique<Messages>(qtMessages_.get());
  printer_ = std::make_unique<Printer>(printer, view_.get());
  launcher_ = std::make_unique<Launcher>(calculator);
  // Without the database the program looks for it in a folder that lacks it.
  std::string dir = options_.exeDir;
  if (!db) dir = (std::filesystem::temp_directory_path() / "orvanta-no-database").string();
  if (options_.qt) {
    clipboard_ = std::make_unique<qt::QtClipboard>();
  } else {
    clipboard_ = std::make_unique<Clipboard>();
  }
  program_ = std::make_unique<Program>(
      AllScreens(), Program::Services{messages_.get(), printer_.get(), launcher_.get(), view_.get(), clipboard_.get()},
      dir);
  if (view_) view_->SetProgram(program_.get());
  program_->Start();
  Settle();
}

void Run::Stop() {
  program_.reset();
  if (options_.qt) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  view_.reset();
}

void Run::FocusForTyping(Control& c) {
  if (!options_.qt) {
    P().UserFocus(c);
    return;
  }
  // As a user does: the window is activated only when it isn't active; a box
  // is focused by a click into it, a list by the keyboard (a click on a list
  // would choose a row).
  QWidget* w = W(c);
  QWidget* window = w->window();
  if (QApplication::activeWindow() != window) {
    window->activateWindow();
    QApplication::setActiveWindow(window);
  }
  w->setFocus(c.kind() == Kind::ListBox ? Qt::TabFocusReason : Qt::MouseFocusReason);
  Settle();
  if (c.form().Loaded() && !c.HasFocus() && c.TakesInput()) P().UserFocus(c);
}

void Run::Click(Control& c, bool twice) {
  if (!options_.qt) {
    if (twice)
      P().UserDblClick(c);
    else
      P().UserClick(c);
    return;
  }
  if (c.kind() == Kind::Menu) {
    QWidget* window = view_->Window(c.form());
    QAction* action = window != nullptr ? window->findChild<QAction*>(QString::fromStdString(c.name())) : nullptr;
    if (action == nullptr) Fail("no menu entry " + c.name());
    action->trigger();
  } else {
    // Option buttons and check boxes answer clicks on their mark and caption
    // only; click on the mark.
    QWidget* w = W(c);
    const QPoint at =
        (c.kind() == Kind::Option || c.kind() == Kind::CheckBox) ? QPoint(8, w->height() / 2) : w->rect().center();
    if (twice) {
      QTest::mouseDClick(w, Qt::LeftButton, {}, at);
    } else {
      QTest::mouseClick(w, Qt::LeftButton, {}, at);
    }
  }
  Settle();
}

void Run::Type(Control& c, const std::string& text) {
  FocusForTyping(c);
  Form& form = c.form();
  for (const Key& k : ParseKeys(text)) {
    if (P().Ended() || !form.Loaded()) break;
    Control* focus = form.ActiveControl();
    if (!options_.qt) {
      P().UserKey(form, focus, k);
      continue;
    }
    QWidget* target = focus != nullptr ? view_->Widget(*focus) : view_->Window(form);
    if (target == nullptr) Fail("nothing to type into");
    Qt::KeyboardModifiers mods;
    if (k.shift & kShiftMask) mods |= Qt::ShiftModifier;
    if (k.shift & kCtrlMask) mods |= Qt::ControlModifier;
    // Named keys are sent as keys, characters as the text they type.
    const int named = k.ascii >= 32 || k.ascii == 22 ? 0 : k.code;
    switch (named) {
      case kKeyReturn: QTest::keyClick(target, Qt::Key_Return, mods); break;
      case kKeyEscape: QTest::keyClick(target, Qt::Key_Escape, mods); break;
      case kKeyBack: QTest::keyClick(target, Qt::Key_Backspace, mods); break;
      case kKeyDelete: QTest::keyClick(target, Qt::Key_Delete, mods); break;
      case kKeyF1: QTest::keyClick(target, Qt::Key_F1, mods); break;
      case kKeyTab: QTest::keyClick(target, (k.shift & kShiftMask) ? Qt::Key_Backtab : Qt::Key_Tab, mods); break;
      case kKeyLeft: QTest::keyClick(target, Qt::Key_Left, mods); break;
      case kKeyRight: QTest::keyClick(target, Qt::Key_Right, mods); break;
      case kKeyHome: QTest::keyClick(target, Qt::Key_Home, mods); break;
      case kKeyEnd: QTest::keyClick(target, Qt::Key_End, mods); break;
      default: {
        // Qt's key for a character is its capital's code (Key_Period is '.').
        const QString ch(QChar(k.ascii));
        const int key = (k.shift & kCtrlMask) ? k.code : ch.toUpper().at(0).unicode();
        QTest::sendKeyEvent(QTest::Press, target, static_cast<Qt::Key>(key), ch, mods);
        QTest::sendKeyEvent(QTest::Release, target, static_cast<Qt::Key>(key), ch, mods);
        break;
      }
    }
    Settle();
  }
}

void Run::Paste(Control& c, const std::string& text) {
  if (!options_.qt) {
    // As through Qt, a rich text box's whole text is selected, then replaced.
    if (c.kind() == Kind::RichText) P().UserCaret(c, 0, CharCount(c.Text()));
    P().UserEdit(c, text);
    return;
  }
  FocusForTyping(c);
  // As the context menu's Paste does over the whole text.
  QApplication::clipboard()->setText(QString::fromStdString(text));
  if (auto* rich = qobject_cast<QTextEdit*>(W(c))) {
    rich->selectAll();
    rich->paste();
    Settle();
    return;
  }
  auto* edit = qobject_cast<QLineEdit*>(W(c));
  if (edit == nullptr) Fail(c.key() + " is no text box");
  edit->selectAll();
  edit->paste();
  Settle();
}

void Run::Select(Control& c, int row) {
  if (!options_.qt) {
    P().UserSelectRow(c, row);
    return;
  }
  auto* list = qobject_cast<QListWidget*>(W(c));
  if (list == nullptr) Fail(c.key() + " is no list box");
  list->setCurrentRow(row);
  Settle();
}

std::string Run::ShownText(Control& c) {
  if (!options_.qt) return c.Text();
  if (c.kind() == Kind::Menu) {
    QWidget* window = view_->Window(c.form());
    QAction* a = window->findChild<QAction*>(QString::fromStdString(c.name()));
    return a != nullptr ? a->text().toStdString() : "";
  }
  QWidget* w = W(c);
  if (auto* e = qobject_cast<QLineEdit*>(w)) return e->text().toStdString();
  if (auto* r = qobject_cast<QTextEdit*>(w)) return r->toPlainText().toStdString();
  if (auto* m = qobject_cast<QPlainTextEdit*>(w)) return m->toPlainText().toStdString();
  if (auto* l = qobject_cast<QLabel*>(w)) return l->text().toStdString();
  if (auto* b = qobject_cast<QAbstractButton*>(w)) return b->text().toStdString();
  if (auto* g = qobject_cast<QGroupBox*>(w)) return g->title().toStdString();
  return c.Text();
}

bool Run::ShownEnabled(Control& c) { return options_.qt && c.kind() != Kind::Menu ? W(c)->isEnabled() : c.Enabled(); }

bool Run::ShownVisible(Control& c) {
  if (!options_.qt || c.kind() == Kind::Menu) return c.Visible();
  QWidget* w = W(c);
  return w->isVisibleTo(w->window());
}

bool Run::ShownChecked(Control& c) {
  // A list box counts as selected while a row is chosen, or through Qt while
  // a row stands highlighted as the current one.
  if (c.kind() == Kind::ListBox) {
    if (!options_.qt) return c.ListIndex() != -1;
    auto* list = qobject_cast<QListWidget*>(W(c));
    return list != nullptr && (list->currentRow() != -1 || !list->selectedItems().isEmpty());
  }
  if (!options_.qt) return c.Value();
  auto* b = qobject_cast<QAbstractButton*>(W(c));
  if (b == nullptr) Fail(c.key() + " has no check state");
  return b->isChecked();
}

bool Run::ShownFocused(Control& c) {
  if (!options_.qt) return c.HasFocus();
  QWidget* w = W(c);
  return w->window()->focusWidget() == w && c.HasFocus();
}

std::string Run::ShownToolTip(Control& c) {
  return options_.qt && c.kind() != Kind::Menu ? W(c)->toolTip().toStdString() : c.ToolTip();
}

std::vector<std::string> Run::ShownRows(Control& c) {
  if (!options_.qt) return c.Items();
  auto* list = qobject_cast<QListWidget*>(W(c));
  if (list == nullptr) Fail(c.key() + " is no list box");
  std::vector<std::string> rows;
  for (int i = 0; i < list->count(); ++i) rows.push_back(list->item(i)->text().toStdString());
  return rows;
}

std::vector<std::string> Run::ShownDrawing(Control& c) {
  if (c.kind() != Kind::Picture) Fail(c.key() + " is no picture box");
  std::vector<std::string> out;
  if (!options_.qt) {
    for (const PictureItem& item : c.picture().Items()) out.push_back(Describe(item));
    return out;
  }
  auto* picture = qobject_cast<qt::PictureWidget*>(W(c));
  if (picture == nullptr) Fail(c.key() + " has no drawing surface");
  for (const PictureItem& item : picture->Items()) out.push_back(Describe(item));
  return out;
}

void Run::ExpectControl(Control& c, const std::vector<Token>& t) {
  const std::string what = t.size() > 2 ? t[2].text : "";
  if (t.size() == 3 && t[2].quoted) {
    const std::string shown = ShownText(c);
    if (shown != what) Fail(c.key() + " shows " + Quote(shown) + ", expected " + Quote(what));
    return;
  }
  auto check = [&](bool ok, const char* state) {
    if (!ok) Fail(c.key() + " is not " + state);
  };
  if (what == "enabled") return check(ShownEnabled(c), "enabled");
  if (what == "disabled") return check(!ShownEnabled(c), "disabled");
  if (what == "visible") return check(ShownVisible(c), "visible");
  if (what == "hidden") return check(!ShownVisible(c), "hidden");
  if (what == "selected" || what == "checked") return check(ShownChecked(c), what.c_str());
  if (what == "unselected" || what == "unchecked") return check(!ShownChecked(c), what.c_str());
  if (what == "focused") return check(ShownFocused(c), "focused");
  if (what == "offsets" && t.size() == 4) {
    // A rich text box's characters: lowered (-50), on the line (0), raised (50).
    if (c.kind() != Kind::RichText) Fail(c.key() + " is no rich text box");
    std::vector<int> offsets = c.rich().Offsets();
    if (options_.qt) {
      auto* rich = dynamic_cast<qt::RichTextWidget*>(W(c));
      if (rich == nullptr) Fail("no rich text widget for " + c.key());
      offsets = rich->ShownOffsets();
    }
    std::string shown;
    for (std::size_t i = 0; i < offsets.size(); ++i) shown += (i > 0 ? "," : "") + std::to_string(offsets[i]);
    if (shown != t[3].text) Fail(c.key() + " has the offsets " + Quote(shown) + ", expected " + Quote(t[3].text));
    return;
  }
  if ((what == "backcolor" || what == "forecolor") && t.size() == 4) {
    // RRGGBB, or "none" where the control keeps the style's colour. Through
    // Qt this is the role the widget's own palette sets.
    const bool back = what == "backcolor";
    int rgb = back ? c.BackColor() : c.ForeColor();
    if (options_.qt && c.kind() != Kind::Menu) {
      QWidget* w = W(c);
      const bool button = qobject_cast<QAbstractButton*>(w) != nullptr;
      const QPalette::ColorRole role = back ? (button ? QPalette::Button : QPalette::Window)
                                            : (button ? QPalette::ButtonText : QPalette::WindowText);
      const bool set = w->testAttribute(Qt::WA_SetPalette) && w->palette().isBrushSet(QPalette::Active, role);
      rgb = set ? static_cast<int>(w->palette().color(QPalette::Active, role).rgb() & 0xFFFFFFu) : kNoColor;
    }
    const std::string shown =
        rgb == kNoColor ? "none" : QString("%1").arg(rgb, 6, 16, QChar('0')).toUpper().toStdString();
    if (shown != t[3].text) Fail(c.key() + " has the " + what + " " + shown + ", expected " + t[3].text);
    return;
  }
  if (what == "file" && t.size() == 4 && t[3].quoted) {
    // The whole text of a file beside the executables, line ends as line feeds.
    std::ifstream in(std::filesystem::path(options_.exeDir) / t[3].text, std::ios::binary);
    if (!in) Fail("cannot read " + Quote(t[3].text));
    std::ostringstream content;
    content << in.rdbuf();
    std::string wanted;
    for (char ch : content.str()) {
      if (ch != '\r') wanted += ch;
    }
    if (ShownText(c) != wanted) Fail(c.key() + " does not show the text of " + Quote(t[3].text));
    return;
  }
  if (what == "tooltip" && t.size() == 4) {
    const std::string tip = ShownToolTip(c);
    if (tip != t[3].text) Fail(c.key() + " has the tool tip " + Quote(tip) + ", expected " + Quote(t[3].text));
    return;
  }
  if (what == "rows" && t.size() == 4) {
    const auto rows = ShownRows(c);
    if (std::to_string(rows.size()) != t[3].text) {
      Fail(c.key() + " has " + std::to_string(rows.size()) + " rows, expected " + t[3].text);
    }
    return;
  }
  if (what == "row" && t.size() == 5) {
    const auto rows = ShownRows(c);
    const int n = std::stoi(t[3].text);
    if (n < 0 || n >= static_cast<int>(rows.size())) Fail(c.key() + " has no row " + t[3].text);
    if (rows[static_cast<std::size_t>(n)] != t[4].text) {
      Fail(c.key() + " row " + t[3].text + " is " + Quote(rows[static_cast<std::size_t>(n)]) + ", expected " +
           Quote(t[4].text));
    }
    return;
  }
  if (what == "items" && t.size() == 4) {
    const auto items = ShownDrawing(c);
    if (std::to_string(items.size()) != t[3].text) {
      Fail(c.key() + " has " + std::to_string(items.size()) + " items drawn, expected " + t[3].text);
    }
    return;
  }
  if (what == "item" && t.size() == 5) {
    // Counted from 1, or from the end with a negative number.
    const auto items = ShownDrawing(c);
    const int k = std::stoi(t[3].text);
    const int n = static_cast<int>(items.size());
    const int at = k > 0 ? k - 1 : n + k;
    if (k == 0 || at < 0 || at >= n) Fail(c.key() + " has no item " + t[3].text + " of " + std::to_string(n));
    if (items[static_cast<std::size_t>(at)] != t[4].text) {
      Fail(c.key() + " item " + t[3].text + " is " + Quote(items[static_cast<std::size_t>(at)]) + ", expected " +
           Quote(t[4].text));
    }
    return;
  }
  if (c.kind() == Kind::Chart) {
    // A chart as it is painted: through Qt the widget's copy, headless the model's.
    const ChartContent* chart = &c.chart().content();
    if (options_.qt) {
      auto* widget = qobject_cast<qt::ChartWidget*>(W(c));
      if (widget == nullptr) Fail("no chart widget for " + c.key());
      chart = &widget->Content();
    }
    auto same = [&](const std::string& name, const std::string& shown, const std::string& wanted) {
      if (shown != wanted) Fail(c.key() + " has the " + name + " " + Quote(shown) + ", expected " + Quote(wanted));
    };
    const int n = static_cast<int>(chart->points.size());
    if (what == "points" && t.size() == 4) return same("number of points", std::to_string(n), t[3].text);
    if (what == "point" && t.size() == 5) {
      const int k = std::stoi(t[3].text);
      if (k < 0 || k >= n) Fail(c.key() + " has no point " + t[3].text + " of " + std::to_string(n));
      return same("point " + t[3].text, Describe(chart->points[static_cast<std::size_t>(k)]), t[4].text);
    }
    if (what == "title" && t.size() == 4) return same("title", chart->title, t[3].text);
    if (what == "footnote" && t.size() == 4) return same("footnote", chart->footnote, t[3].text);
    if (what == "type" && t.size() == 4) return same("chart type", ChartTypeName(chart->type), t[3].text);
    if (what == "axis" && t.size() == 5 && (t[3].text == "category" || t[3].text == "value")) {
      const bool category = t[3].text == "category";
      return same(t[3].text + " axis title", category ? chart->categoryTitle : chart->valueTitle, t[4].text);
    }
  }
  if (c.kind() == Kind::Tree) return ExpectTree(c, t);
  Fail("unknown expectation '" + what + "'");
}

void Run::ClickNode(Control& c, const std::string& key, bool twice) {
  if (c.kind() != Kind::Tree) Fail(c.key() + " is no tree view");
  // The user can reach only a node whose branches above are all open.
  if (!options_.qt) {
    if (!c.tree().Shown(key)) Fail(c.key() + " does not show the node " + Quote(key));
    if (twice)
      UserDblClickNode(c, key);
    else
      UserClickNode(c, key);
    return;
  }
  auto* tree = dynamic_cast<qt::TreeWidget*>(W(c));
  if (tree == nullptr) Fail("no tree widget for " + c.key());
  QTreeWidgetItem* item = tree->ItemOf(key);
  if (!qt::TreeWidget::Shown(item)) Fail(c.key() + " does not show the node " + Quote(key));
  tree->scrollToItem(item);
  Settle();
  const QPoint at = tree->visualItemRect(item).center();
  // A double click is a click, then the second press that the toolkit
  // reports as the double click.
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, at);
  if (twice) QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, at);
  Settle();
}

void Run::ExpectTree(Control& c, const std::vector<Token>& t) {
  // What the tree shows: through Qt read from the widget's items, headless
  // from the model.
  struct Node {
    std::string text;
    bool expanded = false;
    bool selected = false;
  };
  std::map<std::string, Node> nodes;
  if (options_.qt) {
    auto* tree = dynamic_cast<qt::TreeWidget*>(W(c));
    if (tree == nullptr) Fail("no tree widget for " + c.key());
    for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) {
      nodes[qt::TreeWidget::KeyOf(*it)] = {(*it)->text(0).toStdString(), (*it)->isExpanded(),
                                           tree->currentItem() == *it && (*it)->isSelected()};
    }
  } else {
    const TreeNode* selected = c.tree().SelectedItem();
    for (const TreeNode& n : c.tree().Nodes()) nodes[n.key] = {n.text, n.expanded, selected == &n};
  }
  const std::string what = t[2].text;
  if (what == "nodes" && t.size() == 4) {
    if (std::to_string(nodes.size()) != t[3].text) {
      Fail(c.key() + " has " + std::to_string(nodes.size()) + " nodes, expected " + t[3].text);
    }
    return;
  }
  if (what == "node" && t.size() == 5 && t[3].quoted) {
    auto it = nodes.find(t[3].text);
    if (it == nodes.end()) Fail(c.key() + " has no node " + Quote(t[3].text));
    const Node& n = it->second;
    const std::string& state = t[4].text;
    if (t[4].quoted) {
      if (n.text != state) Fail("node " + Quote(t[3].text) + " shows " + Quote(n.text) + ", expected " + Quote(state));
      return;
    }
    auto check = [&](bool ok) {
      if (!ok) Fail("node " + Quote(t[3].text) + " is not " + state);
    };
    if (state == "expanded") return check(n.expanded);
    if (state == "collapsed") return check(!n.expanded);
    if (state == "selected") return check(n.selected);
    if (state == "unselected") return check(!n.selected);
  }
  Fail("unknown expectation '" + what + "'");
}

void Run::ExpectForm(const std::string& name, const std::vector<Token>& t) {
  const std::string what = t.size() > 2 ? t[2].text : "";
  Form* f = P().Find(name);
  QWidget* window = (options_.qt && f != nullptr) ? view_->Window(*f) : nullptr;
  if (options_.qt && f != nullptr && window == nullptr) Fail(name + " has no window");
  if (what == "loaded" && f == nullptr) Fail(name + " is not loaded");
  if (what == "unloaded" && f != nullptr) Fail(name + " is loaded");
  if (what == "visible" && (f == nullptr || !(window ? window->isVisible() : f->Visible())))
    Fail(name + " is not visible");
  if (what == "hidden" && f != nullptr && (window ? window->isVisible() : f->Visible())) Fail(name + " is visible");
  if (what == "caption") {
    if (f == nullptr) Fail(name + " is not loaded");
    if (t.size() != 4) Fail("expect FORM caption \"text\"");
    const std::string shown = window ? window->windowTitle().toStdString() : f->Caption();
    if (shown != t[3].text) Fail(name + " has the caption " + Quote(shown) + ", expected " + Quote(t[3].text));
  }
  if (what != "loaded" && what != "unloaded" && what != "visible" && what != "hidden" && what != "caption") {
    Fail("unknown expectation '" + what + "'");
  }
}

void Run::Expect(const std::vector<Token>& t) {
  if (t.size() < 2) Fail("expect what?");
  const std::string& subject = t[1].text;
  if (subject == "msgbox") {
    if (t.size() < 3 || !t[2].quoted) Fail("expect msgbox \"text\"");
    if (messages_->boxes.empty()) Fail("no message box, expected " + Quote(t[2].text));
    const Box b = messages_->boxes.front();
    messages_->boxes.pop_front();
    if (b.text != t[2].text) Fail("message box says " + Quote(b.text) + ", expected " + Quote(t[2].text));
    for (std::size_t i = 3; i < t.size(); ++i) {
      const std::string& a = t[i].text;
      if (a.rfind("icon=", 0) == 0 && a.substr(5) != b.icon)
        Fail("message box icon is " + b.icon + ", expected " + a.substr(5));
      if (a.rfind("title=", 0) == 0 && a.substr(6) != b.title)
        Fail("message box title is " + Quote(b.title) + ", expected " + Quote(a.substr(6)));
      if (a.rfind("icon=", 0) != 0 && a.rfind("title=", 0) != 0) Fail("unknown message box property " + a);
    }
    return;
  }
  if (subject == "printed") {
    if (t.size() != 3) Fail("expect printed FORM");
    if (printer_->printed.empty()) Fail("nothing was printed");
    const std::string name = printer_->printed.front();
    printer_->printed.pop_front();
    if (name != t[2].text) Fail(name + " was printed, expected " + t[2].text);
    return;
  }
  if (subject == "beeps") {
    // The beeps since the last such step.
    if (t.size() != 3) Fail("expect beeps N");
    const int beeps = messages_->beeps;
    messages_->beeps = 0;
    if (std::to_string(beeps) != t[2].text) Fail(std::to_string(beeps) + " beeps, expected " + t[2].text);
    return;
  }
  if (subject == "launched") {
    if (launcher_->launched == 0) Fail("no calculator was launched");
    --launcher_->launched;
    return;
  }
  if (subject == "ended") {
    if (!P().Ended()) Fail("the program has not ended");
    if (t.size() >= 3) {
      if (!P().EndedOnError()) Fail("the program ended without an error");
      if (P().EndWords() != t[2].text)
        Fail("the program ended on " + Quote(P().EndWords()) + ", expected " + Quote(t[2].text));
    } else if (P().EndedOnError()) {
      Fail("the program ended on " + Quote(P().EndWords()));
    }
    if (P().EndedOnError() && messages_->fatalWords != P().EndWords()) Fail("the error's words were not shown");
    CheckNoBoxes();
    endExpected_ = true;
    return;
  }
  if (subject.find('.') != std::string::npos) return ExpectControl(Ctl(ParseTarget(subject)), t);
  ExpectForm(subject, t);
}

bool Run::Step(const std::vector<Token>& t) {
  const std::string& verb = t[0].text;
  if (verb == "start") {
    Start(t);
    return true;
  }
  if (verb == "expect") {
    Expect(t);
    return !endExpected_;
  }
  BeforeAction();
  if (verb == "show") {
    if (t.size() != 2) Fail("show FORM");
    const std::string name = t[1].text;
    if (!P().IsBuilt(name)) Fail(name + " is not built");
    P().UserAction([&] { P().Show(name); });
    Settle();
  } else if ((verb == "click" || verb == "dblclick") && t.size() == 3 && t[2].quoted) {
    // A node of a tree view, by its key.
    ClickNode(Ctl(ParseTarget(t[1].text)), t[2].text, verb == "dblclick");
  } else if (verb == "click" || verb == "dblclick") {
    if (t.size() != 2 && t.size() != 3) Fail(verb + " FORM.CTRL [N]");
    // "click FORM.CTRL N" clicks N times; only the last click may leave a
    // message box behind.
    const int times = t.size() == 3 ? std::stoi(t[2].text) : 1;
    for (int i = 0; i < times; ++i) {
      if (i > 0) BeforeAction();
      Click(Ctl(ParseTarget(t[1].text)), verb == "dblclick");
    }
  } else if (verb == "type" || verb == "paste") {
    if (t.size() != 3 || !t[2].quoted) Fail(verb + " FORM.CTRL \"text\"");
    Control& c = Ctl(ParseTarget(t[1].text));
    if (verb == "type")
      Type(c, t[2].text);
    else
      Paste(c, t[2].text);
  } else if (verb == "close") {
    // The user closes the screen's window (its title bar's close button).
    if (t.size() != 2) Fail("close FORM");
    Form& f = LoadedForm(t[1].text);
    if (options_.qt) {
      view_->Window(f)->close();
      Settle();
    } else {
      P().UserClose(f);
    }
  } else if (verb == "snapshot") {
    // Saves the window's image, through the widgets only: for looking at a screen.
    if (t.size() != 3 || !t[2].quoted) Fail("snapshot FORM \"file.png\"");
    Form& f = LoadedForm(t[1].text);
    if (options_.qt && !qt::GrabForm(*view_, f).save(QString::fromStdString(t[2].text)))
      Fail("cannot save " + t[2].text);
  } else if (verb == "select") {
    if (t.size() != 3) Fail("select FORM.CTRL N");
    Select(Ctl(ParseTarget(t[1].text)), std::stoi(t[2].text));
  } else {
    Fail("unknown step '" + verb + "'");
  }
  return true;
}

}  // namespace

Result RunFile(const std::string& path, const Options& options) {
  Result result;
  std::ifstream in(path);
  if (!in) {
    result.reason = "cannot read the file";
    return result;
  }
  Run run(options);
  std::string line;
  int number = 0;
  try {
    bool going = true;
    while (going && std::getline(in, line)) {
      ++number;
      result.line = number;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      const auto first = line.find_first_not_of(" \t");
      if (first == std::string::npos || line[first] == '#') continue;
      const auto tokens = Tokenize(line);
      if (number > 0 && tokens.empty()) continue;
      going = run.Step(tokens);
    }
    result.line = number;
    run.Finish();
    result.passed = true;
  } catch (const Failure& f) {
    result.reason = f.reason;
  } catch (const std::exception& e) {
    result.reason = std::string("bad step: ") + e.what();
  }
  return result;
}

}  // namespace orv::scenario
