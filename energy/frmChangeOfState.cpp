#include "energy/frmChangeOfState.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "If a material is heated, the molecules acquire more energy, move faster and tend to move away from each other. "
    "If the increase in energy is great enough, a change of state might occur. If heat is removed from a substance, "
    "it tends to move slower and the loss of energy can also result in a change in state. The amount of energy "
    "required for a change of state depends on the nature of the material and the quantity of the substance. ";

constexpr std::string_view kMass = "Enter the mass of the material in grams";
constexpr std::string_view kFusion = "Enter the heat of fusion in kJ/mol";
constexpr std::string_view kVaporization = "Enter the heat of vaporization in kJ/mol";
constexpr std::string_view kWeight = "Enter the molecular weight.";
constexpr std::string_view kMelt = "Energy needed to melt is ";
constexpr std::string_view kBoil = "Energy needed to boil is ";
constexpr std::string_view kUnit = "kJ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {20, 8, 520, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Melting", .rect = {16, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Boiling", .rect = {180, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label1", .rect = {20, 90, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {324, 86, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 126, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {324, 122, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 162, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {324, 158, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 206, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {324, 202, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .rect = {492, 206, 48, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {20, 240, 520, 26}, .flags = kDisabled},
    OkButton({20, 284, 80, 30}, kOkTip),
    ClearButton({108, 284, 80, 30}),
    CancelButton({196, 284, 80, 30}),
    PrintButton({284, 284, 80, 30}),
    HelpButton({508, 286, 32, 26}),
};

// The boxes that loading and clearing empty, in this order.
constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};

}  // namespace

frmChangeOfState::frmChangeOfState(Program& program)
    : CalculatorScreen(program, {"frmChangeOfState", "Energy And Change Of State", 560, 330}, kControls,
                       {"frmEnergy", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmChangeOfState::Form_Load);
  Bind("cmdOk", Ev::Click, &frmChangeOfState::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmChangeOfState::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmChangeOfState::opt1_Click);
  Bind("opt2", Ev::Click, &frmChangeOfState::opt2_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
}

void frmChangeOfState::SetCaptions(std::string_view heat, std::string_view result) {
  ctl("Label1").SetCaption(std::string(kMass));
  ctl("Label2").SetCaption(std::string(heat));
  ctl("Label3").SetCaption(std::string(kWeight));
  ctl("Label4").SetCaption(std::string(result));
  ctl("Label5").SetCaption(std::string(kUnit));
}

void frmChangeOfState::Form_Load() {
  EmptyBoxes(kBoxes);
  SetCaptions(kFusion, kMelt);
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

void frmChangeOfState::opt1_Click() { SetCaptions(kFusion, kMelt); }

void frmChangeOfState::opt2_Click() {
  SetCaptions(kVaporization, kBoil);
  ctl("Text1").SetFocus();
}

// The checks compare the texts as typed: anything that sorts before "1",
// such as "0.5" or ".5", counts as not positive. Nothing is calculated.
void frmChangeOfState::cmdOk_Click() {
  Trapped(kTrapDataEntryPoint, [&] {
    const std::string& text1 = ctl("Text1").Text();
    const std::string& text2 = ctl("Text2").Text();
    const std::string& text3 = ctl("Text3").Text();
    if (text1.empty() || text3.empty() || text2.empty()) {
      MsgBox("You need to enter valid data in all boxes.", Icon::Information, kTitle);
      return;
    }
    if (text1 < "1" || text3 < "1" || text2 < "1") {
      MsgBox("You need to enter positive data in all boxes.", Icon::Information, kTitle);
      return;
    }
  });
}

// The short prompts stay when melting was chosen already; from boiling,
// selecting melting puts the long ones back.
void frmChangeOfState::cmdClear_Click() {
  EmptyBoxes(kBoxes);
  ctl("Label1").SetCaption("Enter the mass of the material.");
  ctl("Label2").SetCaption(ctl("opt1").Value() ? "Enter the heat of fusion" : "Enter the heat of vaporization.");
  ctl("Label3").SetCaption(std::string(kWeight));
  ctl("Label4").SetCaption(std::string(kMelt));
  ctl("Text1").SetFocus();
  ctl("opt1").SetValue(true);
}

}  // namespace orv
