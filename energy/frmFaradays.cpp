#include "energy/frmFaradays.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "There is a relationship between chemical change and electric energy. This is very useful in electrolysis. The "
    "amount of chemical change produced is proportional to the quantity of electrical charge passing through a "
    "cell. A given quantity of electricity produces the same number of equivalents of any substance.  ";

constexpr KeyFilter kDigitsFilter{"", kTitle};

// Coulombs per mole of electrons.
constexpr Expr kFaraday = 96500;
constexpr std::string_view kFaradayText = "96500 / ";

constexpr std::string_view kCoulombs = "Enter the coulombs for the element.";
constexpr std::string_view kWeight = "Enter the molecular weight.";
constexpr std::string_view kAmps = "Enter the amps of current flow.";
constexpr std::string_view kMinutes = "Enter the number of minutes.";
constexpr std::string_view kElectrons = "Enter the moles of electrons released.";
constexpr std::string_view kGrams = "The number of grams is ";
constexpr std::string_view kMoles = "The number of moles is ";
constexpr std::string_view kVolume = "The volume released is ";

constexpr ControlSpec kControls[] = {
    {Kind::Frame, "Frame1", "Select one of the following", {20, 8, 520, 60}},
    {Kind::Option, "opt1", "Grams", {16, 28, 140, 24}, {}, "Frame1"},
    {Kind::Option, "opt2", "Moles", {180, 28, 140, 24}, {}, "Frame1"},
    {Kind::Option, "opt3", "Liters", {344, 28, 140, 24}, {}, "Frame1"},
    {Kind::Label, "Label1", "", {20, 90, 300, 22}},
    {Kind::TextBox, "Text1", "", {324, 86, 160, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label2", "", {20, 126, 300, 22}},
    {Kind::TextBox, "Text2", "", {324, 122, 160, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label3", "", {20, 162, 300, 22}},
    {Kind::TextBox, "Text3", "", {324, 158, 160, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label5", "", {20, 198, 300, 22}},
    {Kind::TextBox, "Text5", "", {324, 194, 160, 26}, {}, {}, -1, 0, &kDigitsFilter},
    {Kind::Label, "Label6", "", {20, 242, 300, 22}},
    {Kind::TextBox, "Text6", "", {324, 238, 160, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label4", "", {492, 242, 48, 22}},
    {Kind::TextBox, "Text4", "", {20, 276, 520, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 320, 80, 30}, "Press to calculate your answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 320, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {196, 320, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 320, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {508, 322, 32, 26}, "Press for help", {}, -1, kSmall},
};

}  // namespace

frmFaradays::frmFaradays(Program& program)
    : CalculatorScreen(program, {"frmFaradays", "Faraday's Laws", 560, 366}, kControls, {"frmEnergy", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmFaradays::Form_Load);
  Bind("cmdOk", Ev::Click, &frmFaradays::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmFaradays::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmFaradays::opt1_Click);
  Bind("opt2", Ev::Click, &frmFaradays::opt2_Click);
  Bind("opt3", Ev::Click, &frmFaradays::opt3_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
  EnterRunsOk("Text5");
}

// Every box but the minutes, which the moles and liters modes hide with
// their text kept.
void frmFaradays::EmptyBoxes() { Form::EmptyBoxes({"Text1", "Text2", "Text3", "Text6", "Text4"}); }

void frmFaradays::SetCaptions(std::string_view first, std::string_view second, std::string_view minutes,
                              std::string_view result, std::string_view unit) {
  ctl("Label1").SetCaption(std::string(first));
  ctl("Label2").SetCaption(std::string(second));
  ctl("Label3").SetCaption(std::string(kElectrons));
  ctl("Label5").SetCaption(std::string(minutes));
  ctl("Label6").SetCaption(std::string(result));
  ctl("Label4").SetCaption(std::string(unit));
}

void frmFaradays::Form_Load() {
  EmptyBoxes();
  ctl("Text5").SetText("");
  SetCaptions(kCoulombs, kWeight, "Enter the minutes .", kGrams, "");
  ctl("Text5").SetVisible(true);
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

void frmFaradays::opt1_Click() {
  SetCaptions(kCoulombs, kWeight, "Enter the minutes.", kGrams, "grams ");
  ctl("Text5").SetVisible(true);
  ctl("Text5").SetText("");
  EmptyBoxes();
}

void frmFaradays::opt2_Click() {
  SetCaptions(kAmps, kMinutes, "", kMoles, "moles");
  ctl("Text5").SetVisible(false);
  EmptyBoxes();
}

void frmFaradays::opt3_Click() {
  SetCaptions(kAmps, kMinutes, "", kVolume, "liters");
  ctl("Text5").SetVisible(false);
  EmptyBoxes();
}

// One formula serves every mode. Which form runs depends on the minutes box
// compared as text: the long form needs grams and a text after "0", the
// short form a text before "1"; "05" meets both, and then the short form
// writes over the long one.
void frmFaradays::cmdOk_Click() {
  Trapped(kTrapMissingData, [&] {
    const std::string text1 = ctl("Text1").Text();
    const std::string text2 = ctl("Text2").Text();
    const std::string text3 = ctl("Text3").Text();
    const std::string text5 = ctl("Text5").Text();
    const bool grams = ctl("opt1").Value();
    if (text1.empty() || text2.empty() || text3.empty()) {
      MsgBox("You must enter valid data in all boxes.", Icon::Information, kTitle);
      return;
    }
    const Double faraday = kFaraday;
    if (grams && !text5.empty() && text5 > "0") {
      const Single coulombs = CSng(text1);
      const Single electrons = CSng(text3);
      const Single weight = CSng(text2);
      const Single minutes = CSng(text5);
      Double result = coulombs / faraday;
      result = result / electrons;
      result = result * weight;
      result = result * minutes;
      ctl("Text6").SetText(FormatNumber(result, 3));
      ctl("Text4").SetText(text1 + " / " + std::string(kFaradayText) + text3 + " * " + text2 + " * " + text5);
    }
    if (text5 < "1" || (grams && text5.empty())) {
      const Single coulombs = CSng(text1);
      const Single electrons = CSng(text3);
      const Single weight = CSng(text2);
      Double result = coulombs / faraday;
      result = result / electrons;
      result = result * weight;
      ctl("Text6").SetText(FormatNumber(result, 3));
      ctl("Text4").SetText(text1 + " / " + std::string(kFaradayText) + text3 + " * " + text2);
    }
  });
}

// The mode stays selected, so its routine does not run again; the captions
// written here keep their own wordings.
void frmFaradays::cmdClear_Click() {
  EmptyBoxes();
  if (ctl("opt1").Value()) {
    SetCaptions(kCoulombs, kWeight, kMinutes, kGrams, "grams ");
    ctl("Text5").SetVisible(true);
    ctl("Text5").SetText("1");
    ctl("opt1").SetValue(true);
  } else if (ctl("opt2").Value()) {
    SetCaptions(kAmps, kMinutes, "", kMoles, "moles ");
    ctl("Text5").SetVisible(false);
    ctl("opt2").SetValue(true);
  } else if (ctl("opt3").Value()) {
    SetCaptions(kAmps, kMinutes, "", kVolume, "liters ");
    ctl("Text5").SetVisible(false);
    ctl("opt3").SetValue(true);
  }
  ctl("Text1").SetFocus();
}

}  // namespace orv
