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
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {20, 8, 520, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Grams", .rect = {16, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Moles", .rect = {180, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt3", .caption = "Liters", .rect = {344, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label1", .rect = {20, 90, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {324, 86, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 126, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {324, 122, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 162, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {324, 158, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label5", .rect = {20, 198, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {324, 194, 160, 26}, .filter = &kDigitsFilter},
    {.kind = Kind::Label, .name = "Label6", .rect = {20, 242, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {324, 238, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label4", .rect = {492, 242, 48, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {20, 276, 520, 26}, .flags = kDisabled},
    OkButton({20, 320, 80, 30}, kOkTip),
    ClearButton({108, 320, 80, 30}),
    CancelButton({196, 320, 80, 30}),
    PrintButton({284, 320, 80, 30}),
    HelpButton({508, 322, 32, 26}),
};

// The boxes that loading and clearing empty, in this order.
constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text6", "Text4"};

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
  EmptyBoxes(kBoxes);
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
  EmptyBoxes(kBoxes);
}

void frmFaradays::opt2_Click() {
  SetCaptions(kAmps, kMinutes, "", kMoles, "moles");
  ctl("Text5").SetVisible(false);
  EmptyBoxes(kBoxes);
}

void frmFaradays::opt3_Click() {
  SetCaptions(kAmps, kMinutes, "", kVolume, "liters");
  ctl("Text5").SetVisible(false);
  EmptyBoxes(kBoxes);
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
  EmptyBoxes(kBoxes);
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
