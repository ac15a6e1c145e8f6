#include "gases/frmMolarVolume.h"

namespace orv {

namespace {

constexpr std::string_view kMolarTitle = "Molar Volume";
constexpr KeyFilter kFilterPointMolar{".", kMolarTitle};
constexpr Form::Trap kTrapMolar{"Data entry error", Icon::None, kMolarTitle};

constexpr Expr kMolarLiters = 22.4;

constexpr std::string_view kHelp =
    "One mole of a gas occupies 22.4 liters at STP. One mole of a gas also contains Avogadros number of molecules of "
    "that gas. ";

constexpr std::string_view kWeightPrompt = "Enter the molecular weight of the gas.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {20, 8, 440, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Mass", .rect = {16, 28, 120, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Moles", .rect = {160, 28, 120, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt3", .caption = "Volume", .rect = {304, 28, 120, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 90, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {310, 86, 150, 26}, .filter = &kFilterPointMolar},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 126, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {310, 122, 150, 26}, .filter = &kFilterPointMolar},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 166, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {310, 162, 96, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label1", .rect = {412, 166, 50, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {20, 200, 440, 26}, .flags = kDisabled},
    OkButton({20, 244, 80, 30}),
    ClearButton({108, 244, 80, 30}),
    CancelButton({196, 244, 80, 30}),
    PrintButton({284, 244, 80, 30}),
    HelpButton({428, 246, 32, 26}),
};

}  // namespace

frmMolarVolume::frmMolarVolume(Program& program)
    : CalculatorScreen(program, {"frmMolarVolume", " Molar Volume", 480, 290}, kControls,
                       {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmMolarVolume::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMolarVolume::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMolarVolume::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmMolarVolume::opt1_Click);
  Bind("opt2", Ev::Click, &frmMolarVolume::opt2_Click);
  Bind("opt3", Ev::Click, &frmMolarVolume::opt3_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
}

void frmMolarVolume::SetCaptions(std::string_view second, std::string_view result, std::string_view unit) {
  ctl("Label2").SetCaption(std::string(kWeightPrompt));
  ctl("Label3").SetCaption(std::string(second));
  ctl("Label4").SetCaption(std::string(result));
  ctl("Label1").SetCaption(std::string(unit));
}

void frmMolarVolume::Form_Load() {
  ctl("opt1").SetValue(true);
  EmptyBoxes({"Text1", "Text2", "Text3"});
  opt1_Click();
  DisableOkAndPrint();
}

// The options rewrite the captions; the boxes keep their text.
void frmMolarVolume::opt1_Click() {
  SetCaptions("Enter the volume of the gas in liters.", "The mass of the gas is ", "grams");
}

void frmMolarVolume::opt2_Click() { SetCaptions("Enter the mass of the gas.", "There are ", "moles"); }

void frmMolarVolume::opt3_Click() { SetCaptions("Enter the mass of the gas.", "The volume  is ", "liters"); }

void frmMolarVolume::cmdOk_Click() {
  Trapped(kTrapMolar, [&] {
    if (!ctl("opt1").Value() && !ctl("opt2").Value() && !ctl("opt3").Value()) {
      MsgBox("You must select one of the options.", Icon::None, kMolarTitle);
      return;
    }
    const std::string& box1 = ctl("Text1").Text();
    const std::string& box2 = ctl("Text2").Text();
    if (box1.empty() || box2.empty()) {
      MsgBox("You must enter valid data into both boxes.", Icon::None, kMolarTitle);
      return;
    }
    // Both boxes are read under every option, so a bad number fails in all.
    const Single weight = CSng(box1);
    const Single volume = CSng(box2);
    if (!ctl("opt1").Value()) return;
    const Expr product = volume * weight;
    static_cast<void>(Single(product));  // a product beyond the 32-bit range overflows here
    const Single mass = product / kMolarLiters;
    ctl("Text3").SetText(FormatNumber(mass, 3));
    // The line shows a division by 1000 that the arithmetic doesn't make.
    ctl("Text4").SetText(box1 + " * " + box2 + " / 1000 / 22.4");
  });
}

void frmMolarVolume::cmdClear_Click() {
  ctl("opt1").SetValue(true);
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4"});
  opt1_Click();
  ctl("Text1").SetFocus();
}

}  // namespace orv
