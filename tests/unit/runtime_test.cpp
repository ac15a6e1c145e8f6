// The runtime's event rules, on a small screen of its own: what a user's key
// or click reaches, in which order, and what a program's write raises.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/screen_frame.h"
#include "tests/support/fake_services.h"

namespace orv {
namespace {

constexpr KeyFilter kFilter{".E", "Test"};

constexpr ControlSpec kControls[] = {
    {.kind = Kind::TextBox, .name = "Text1", .filter = &kFilter},
    {.kind = Kind::TextBox, .name = "Text2"},
    {.kind = Kind::Button, .name = "cmdOk", .caption = "Ok", .flags = kDefault},
    {.kind = Kind::Button, .name = "cmdCancel", .caption = "Cancel", .flags = kCancel},
    {.kind = Kind::Frame, .name = "Frame1"},
    {.kind = Kind::Option, .name = "opt1", .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .container = "Frame1"},
    {.kind = Kind::Option, .name = "optOther"},
};

// Records every routine it runs, in order.
class frmTest : public Form {
 public:
  explicit frmTest(Program& p) : Form(p, {"frmTest", "Test", 100, 100}, kControls) {
    On("Form", Ev::KeyDown, [this](EventArgs& a) { log.push_back("Form_KeyDown " + std::to_string(a.keyCode)); });
    On("Text1", Ev::KeyDown, [this](EventArgs& a) { log.push_back("Text1_KeyDown " + std::to_string(a.keyCode)); });
    On("Text1", Ev::KeyPress, [this](EventArgs& a) { log.push_back("Text1_KeyPress " + std::to_string(a.keyAscii)); });
    On("Text1", Ev::Change, [this](EventArgs&) { log.push_back("Text1_Change " + ctl("Text1").Text()); });
    On("cmdOk", Ev::Click, [this](EventArgs&) {
      log.push_back("cmdOk_Click");
      if (ctl("Text1").Text() == "boom") Raise(ErrorCode::Overflow);
      if (ctl("Text1").Text() == "trap") {
        Trapped(kTrapDataEntry, [] { Raise(ErrorCode::TypeMismatch); });
        log.push_back("after trap");
      }
    });
    On("cmdCancel", Ev::Click, [this](EventArgs&) {
      log.push_back("cmdCancel_Click");
      Unload();
      log.push_back("still running after Unload");
    });
    for (const char* o : {"opt1", "opt2", "optOther"}) {
      On(o, Ev::Click, [this, o](EventArgs&) { log.push_back(std::string(o) + "_Click"); });
    }
  }
  std::vector<std::string> log;
};

const ScreenRegistry& Registry() {
  static const ScreenRegistry r = [] {
    ScreenRegistry reg;
    reg.main = [](Program& p) { p.Show("frmTest"); };
    reg.Add<frmTest>("frmTest");
    return reg;
  }();
  return r;
}

class RuntimeTest : public ::testing::Test {
 protected:
  RuntimeTest() : program_(Registry(), fakes_.services(), "/nonexistent") {
    program_.Start();
    form_ = static_cast<frmTest*>(program_.Find("frmTest"));
  }
  void Type(const std::string& control, const std::string& keys) {
    for (char c : keys) program_.UserKey(*form_, &form_->ctl(control), Key{KeyCodeOfChar(c), c, 0});
  }
  void Press(const std::string& control, int code, int ascii = 0) {
    program_.UserKey(*form_, &form_->ctl(control), Key{code, ascii, 0});
  }

  test::FakeServices fakes_;
  test::FakeMessages& messages_ = fakes_.messages;
  test::FakeClipboard& clipboard_ = fakes_.clipboard;
  Program program_;
  frmTest* form_ = nullptr;
};

TEST_F(RuntimeTest, AKeyGoesToTheScreenThenTheBoxThenTheFilterThenTheText) {
  Type("Text1", "5");
  EXPECT_EQ(form_->log,
            (std::vector<std::string>{"Form_KeyDown 53", "Text1_KeyDown 53", "Text1_KeyPress 53", "Text1_Change 5"}));
}

TEST_F(RuntimeTest, TheFilterRefusesWithItsTitleAndSwallowsTheCharacter) {
  Type("Text1", "1eE.");
  EXPECT_EQ(form_->ctl("Text1").Text(), "1E.");
  EXPECT_EQ(messages_.boxes, (test::Boxes{{"You must enter a valid numerical expression", Icon::None, "Test"}}));
}

TEST_F(RuntimeTest, EnterAndEscPressTheEnabledDefaultAndCancelButtonsBeforeTheBoxSeesThem) {
  Press("Text1", kKeyReturn, 13);
  EXPECT_EQ(form_->log, (std::vector<std::string>{"Form_KeyDown 13", "cmdOk_Click"}));
  form_->log.clear();
  form_->ctl("cmdOk").SetEnabled(false);
  Press("Text1", kKeyReturn, 13);
  // With the default button grey, the box sees Enter; the filter lets it through.
  EXPECT_EQ(form_->log, (std::vector<std::string>{"Form_KeyDown 13", "Text1_KeyDown 13", "Text1_KeyPress 13"}));
  EXPECT_TRUE(messages_.boxes.empty());
  // Cancel unloads its own screen, which lives on until the routine ends.
  Press("Text1", kKeyEscape, 27);
  EXPECT_EQ(program_.Find("frmTest"), nullptr);
  EXPECT_FALSE(program_.Ended());
}

TEST_F(RuntimeTest, AProgramsWriteRaisesChangeOnlyWhenTheTextDiffers) {
  form_->ctl("Text1").SetText("a");
  form_->ctl("Text1").SetText("a");
  form_->ctl("Text1").SetText("");
  EXPECT_EQ(form_->log, (std::vector<std::string>{"Text1_Change a", "Text1_Change "}));
}

TEST_F(RuntimeTest, SelectingAnOptionFromCodeClicksItOnceAndClearsOnlyItsOwnContainer) {
  form_->ctl("optOther").SetValue(true);
  form_->ctl("opt1").SetValue(true);
  form_->ctl("opt1").SetValue(true);
  form_->ctl("opt2").SetValue(true);
  EXPECT_EQ(form_->log, (std::vector<std::string>{"optOther_Click", "opt1_Click", "opt2_Click"}));
  EXPECT_FALSE(form_->ctl("opt1").Value());
  EXPECT_TRUE(form_->ctl("opt2").Value());
  EXPECT_TRUE(form_->ctl("optOther").Value());
}

TEST_F(RuntimeTest, DisabledOrHiddenControlsAndThoseInADisabledFrameTakeNoInput) {
  form_->ctl("cmdOk").SetEnabled(false);
  program_.UserClick(form_->ctl("cmdOk"));
  form_->ctl("Frame1").SetEnabled(false);
  program_.UserClick(form_->ctl("opt2"));
  form_->ctl("Text1").SetVisible(false);
  Type("Text1", "7");
  // The screen still sees the key; the hidden box does not.
  EXPECT_EQ(form_->log, (std::vector<std::string>{"Form_KeyDown 55"}));
  EXPECT_FALSE(form_->ctl("opt2").Value());
  EXPECT_EQ(form_->ctl("Text1").Text(), "");
}

TEST_F(RuntimeTest, ATrapShowsOneBoxAndTheRoutineGoesOnAfterIt) {
  form_->ctl("Text1").SetText("trap");
  program_.UserClick(form_->ctl("cmdOk"));
  EXPECT_EQ(messages_.boxes, (test::Boxes{{"Data entry error", Icon::None, "Orvanta"}}));
  EXPECT_EQ(form_->log.back(), "after trap");
  EXPECT_FALSE(program_.Ended());
}

TEST_F(RuntimeTest, AnUntrappedErrorShowsItsWordsAndEndsTheProgram) {
  form_->ctl("Text1").SetText("boom");
  program_.UserClick(form_->ctl("cmdOk"));
  EXPECT_TRUE(program_.Ended());
  EXPECT_TRUE(program_.EndedOnError());
  EXPECT_EQ(messages_.fatal, "Overflow");
  EXPECT_TRUE(program_.LoadedForms().empty());
  EXPECT_TRUE(messages_.boxes.empty());
}

TEST_F(RuntimeTest, TypingEditsAtTheCaret) {
  Type("Text2", "125");
  Press("Text2", kKeyLeft);
  Press("Text2", kKeyBack, 8);
  Type("Text2", "3");
  Press("Text2", kKeyHome);
  Press("Text2", kKeyDelete);
  EXPECT_EQ(form_->ctl("Text2").Text(), "35");
}

TEST_F(RuntimeTest, AnUnfilteredBoxCutsCopiesAndPastesByKey) {
  Type("Text2", "12345");
  form_->ctl("Text2").SetSelection(1, 2);
  Press("Text2", 'C', kCtrlC);
  EXPECT_EQ(clipboard_.text, "23");
  Press("Text2", 'X', kCtrlX);
  EXPECT_EQ(form_->ctl("Text2").Text(), "145");
  Press("Text2", kKeyEnd);
  Press("Text2", 'V', kCtrlV);
  EXPECT_EQ(form_->ctl("Text2").Text(), "14523");
  // The filter refuses the same key in a filtered box.
  Press("Text1", 'V', kCtrlV);
  EXPECT_EQ(form_->ctl("Text1").Text(), "");
  EXPECT_EQ(messages_.boxes.size(), 1u);
}

TEST(KeyCodes, CharactersMapToTheirKeys) {
  const std::pair<int, int> cases[] = {{'a', 'A'}, {'Z', 'Z'}, {'7', '7'},       {'.', 190},    {'-', 189},
                                       {'+', 187}, {' ', ' '}, {13, kKeyReturn}, {8, kKeyBack}, {27, kKeyEscape}};
  for (const auto& [ascii, code] : cases) {
    EXPECT_EQ(KeyCodeOfChar(ascii), code) << "character " << ascii;
  }
}

}  // namespace
}  // namespace orv
