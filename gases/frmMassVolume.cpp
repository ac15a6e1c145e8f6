#include "gases/frmMassVolume.h"

namespace orv {

namespace {

constexpr Expr kMolarLiters = 22.4;

// The ratio boxes take digits alone.
constexpr KeyFilter kFilterDigits{"", kTitle};

constexpr std::string_view kHelp =
    "Gases are involved in many chemical reactions. In some problems you are given a mass of a substance and are "
    "asked to determine the volume of a gas that is produced. Likewise, you may be given a volume of a gas and asked "
    "to determine the mass of a substance. Keep in mind that 1 mole of a gas occupies a volume of 22.4 liters. ";

// Two wordings of one message: the later tests have a blank before the stop.
constexpr std::string_view kPositive = "You must enter a valid, positive number.";
constexpr std::string_view kPositiveBlank = "You must enter a valid, positive number .";

constexpr std::string_view kWeightPrompt = "Enter the molecular weight of the reactant.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following options", .rect = {20, 8, 460, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Volume", .rect = {16, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Mass", .rect = {230, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label1", .rect = {20, 90, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {320, 86, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 126, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {320, 122, 160, 26}, .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 162, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {320, 158, 60, 26}, .filter = &kFilterDigits},
    {.kind = Kind::Label, .name = "Label5", .caption = "to", .rect = {384, 162, 32, 22}, .flags = kCenter},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {420, 158, 60, 26}, .filter = &kFilterDigits},
    {.kind = Kind::Label, .name = "Label6", .rect = {20, 198, 290, 22}, .flags = kHidden},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {320, 194, 160, 26}, .flags = kHidden, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label7", .rect = {20, 234, 290, 22}, .flags = kHidden},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {320, 230, 160, 26}, .flags = kHidden, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 274, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {320, 270, 110, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label8", .rect = {436, 274, 50, 22}},
    {.kind = Kind::TextBox, .name = "Text8", .rect = {20, 308, 460, 26}, .flags = kDisabled},
    OkButton({20, 352, 80, 30}),
    ClearButton({108, 352, 80, 30}),
    CancelButton({196, 352, 80, 30}),
    PrintButton({284, 352, 80, 30}),
    HelpButton({448, 354, 32, 26}),
};

// The boxes that loading and clearing empty, in this order.
constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8"};

}  // namespace

frmMassVolume::frmMassVolume(Program& program)
    : CalculatorScreen(program, {"frmMassVolume", "Mass - Volume", 500, 398}, kControls,
                       {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmMassVolume::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMassVolume::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMassVolume::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmMassVolume::opt1_Click);
  Bind("opt2", Ev::Click, &frmMassVolume::opt2_Click);
  for (const char* box : {"Text1", "Text2", "Text3", "Text5", "Text6", "Text7"}) EnterRunsOk(box);
}

void frmMassVolume::HideExtraBoxes() {
  for (const char* name : {"Text6", "Label6", "Text7", "Label7"}) ctl(name).SetVisible(false);
}

// The prompts of the volume mode; only the mass prompt's wording varies.
void frmMassVolume::SetVolumeCaptions(std::string_view massPrompt) {
  ctl("Label1").SetCaption(std::string(massPrompt));
  ctl("Label2").SetCaption(std::string(kWeightPrompt));
  ctl("Label3").SetCaption("Enter the ratio of product to reactant.");
  ctl("Label4").SetCaption("The volume of the gas is ");
  ctl("Label8").SetCaption("Liters");
}

void frmMassVolume::Form_Load() {
  ctl("opt1").SetValue(true);
  EmptyBoxes(kBoxes);
  SetVolumeCaptions("Enter the mass of the reactant in grams.");
  HideExtraBoxes();
  DisableOkAndPrint();
}

// The volume mode hides the two extra boxes with whatever they hold.
void frmMassVolume::opt1_Click() {
  SetVolumeCaptions("Enter the mass of the reactant in grams.");
  HideExtraBoxes();
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text8"});
}

void frmMassVolume::opt2_Click() {
  ctl("Label1").SetCaption("Enter the volume in liters.");
  ctl("Label2").SetCaption("Enter the initial temperature in Kelvin.");
  ctl("Label3").SetCaption("Enter the product to reactant ratio.");
  ctl("Label4").SetCaption("The mass of the gas is");
  ctl("Label6").SetCaption(std::string(kWeightPrompt));
  ctl("Label7").SetCaption("Enter the initial pressure in kPa.");
  ctl("Label8").SetCaption("grams");
  EmptyBoxes(kBoxes);
  for (const char* name : {"Text6", "Label6", "Text7", "Label7"}) ctl(name).SetVisible(true);
}

void frmMassVolume::cmdOk_Click() {
  Trapped(kTrapDataEntry, [&] {
    const bool volume = ctl("opt1").Value();
    if (ctl("Text1").Text().empty()) {
      MsgBox(kPositive, Icon::Information, kTitle);
      return;
    }
    for (const char* box : {"Text2", "Text3", "Text5"}) {
      if (ctl(box).Text().empty()) {
        MsgBox(kPositiveBlank, Icon::Information, kTitle);
        return;
      }
    }
    // The volume mode fills its two hidden boxes so that their tests pass.
    if (volume) ctl("Text6").SetText("1");
    if (ctl("Text6").Text().empty()) {
      MsgBox(kPositiveBlank, Icon::Information, kTitle);
      return;
    }
    if (volume) ctl("Text7").SetText("1");
    if (volume && ctl("Text7").Text().empty()) {
      MsgBox(kPositive, Icon::Information, kTitle);
      return;
    }
    if (!volume) return;

    const std::string& mass = ctl("Text1").Text();
    const std::string& weight = ctl("Text2").Text();
    const std::string& product = ctl("Text3").Text();
    const std::string& reactant = ctl("Text5").Text();
    const Double moles = CDbl(mass) / CDbl(weight);
    const Double scaled = moles * CDbl(product);
    const Double ratioed = scaled / CDbl(reactant);
    const Double liters = ratioed * kMolarLiters;
    ctl("Text4").SetText(FormatNumber(liters, 3));
    ctl("Text8").SetText(mass + " / " + weight + " * " + product + " / " + reactant + " * 22.4");
  });
}

void frmMassVolume::cmdClear_Click() {
  ctl("opt1").SetValue(true);
  EmptyBoxes(kBoxes);
  SetVolumeCaptions("Enter the mass of the reactant.");
  HideExtraBoxes();
  ctl("Text1").SetFocus();
}

}  // namespace orv
