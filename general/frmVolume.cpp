#include "general/frmVolume.h"

namespace orv {

namespace {

constexpr Expr kPi = 3.14159265;
constexpr std::string_view kPiText = "3.14159265";
constexpr std::string_view kValidData = "You must enter valid data.";

constexpr std::string_view kHelp =
    "Volume refers to the amount of space an object takes up or contains. Volume is an essential part of density. "
    "Many calculations, particularly gas and pressure problems,  utilize volume. ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following options", .rect = {20, 8, 440, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Sphere", .rect = {16, 28, 120, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Block", .rect = {160, 28, 120, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt3", .caption = "Cylinder", .rect = {304, 28, 120, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 90, 276, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {300, 86, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 126, 276, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {300, 122, 160, 26}, .flags = kHidden, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 162, 276, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {300, 158, 160, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {20, 196, 440, 26}, .flags = kDisabled},
    OkButton({20, 240, 80, 30}),
    ClearButton({108, 240, 80, 30}),
    {.kind = Kind::Button,
     .name = "cmdCancel",
     .caption = "Cancel",
     .rect = {196, 240, 80, 30},
     .toolTip = "Enter a valid number.",
     .flags = kCancel},
    PrintButton({284, 240, 80, 30}),
    HelpButton({428, 242, 32, 26}),
};

}  // namespace

frmVolume::frmVolume(Program& program)
    : CalculatorScreen(program, {"frmVolume", "Volume Calculation", 480, 286}, kControls,
                       {"frmGeneralChoice", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmVolume::Form_Load);
  Bind("cmdOk", Ev::Click, &frmVolume::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmVolume::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmVolume::opt1_Click);
  Bind("opt2", Ev::Click, &frmVolume::opt2_Click);
  Bind("opt3", Ev::Click, &frmVolume::opt3_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
}

void frmVolume::EmptyLabels() {
  ctl("Label2").SetCaption("");
  ctl("Label3").SetCaption("");
  ctl("Label4").SetCaption("");
}

void frmVolume::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text3"});
  EmptyLabels();
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

// The modes rewrite the prompts and leave the boxes as they are.
void frmVolume::opt1_Click() {
  ctl("Label2").SetCaption("Enter the radius of the sphere.");
  ctl("Label3").SetCaption("");
  ctl("Text2").SetVisible(false);
  ctl("Label4").SetCaption("The volume of the sphere is : ");
}

void frmVolume::opt2_Click() {
  ctl("Label2").SetCaption("Enter the length of the side of the block.");
  ctl("Label3").SetCaption("");
  ctl("Text2").SetVisible(false);
  ctl("Label4").SetCaption("The volume of the block is: ");
}

void frmVolume::opt3_Click() {
  ctl("Label2").SetCaption("Enter the height of the cylinder.");
  ctl("Label3").SetCaption("Enter the radius of the cylinder.");
  ctl("Text2").SetVisible(true);
  ctl("Label4").SetCaption("The volume of the cylinder is: ");
}

void frmVolume::cmdOk_Click() {
  Trapped(kTrapDataEntryCapsPoint, [&] {
    const std::string text1 = ctl("Text1").Text();
    const std::string text2 = ctl("Text2").Text();
    const bool sphere = ctl("opt1").Value();
    const bool block = ctl("opt2").Value();
    const bool cylinder = ctl("opt3").Value();
    if (sphere && text1.empty()) {
      MsgBox(kValidData, Icon::None, kTitle);
      return;
    }
    // The hidden second box is tested in every mode.
    if (text1 == "0" || text2 == "0") {
      MsgBox(kValidData, Icon::Information, kTitle);
      return;
    }
    if (sphere) {
      const Single x = CSng(text1);
      const Double v = Pow(x, 3.0) * (Expr(4) / 3 * kPi);
      ctl("Text3").SetText(FormatNumber(v, 3));
      ctl("Text4").SetText(" (4 / 3) * " + std::string(kPiText) + " * " + text1 + "^3");
    }
    if (block && text1.empty()) {
      MsgBox(kValidData, Icon::None, kTitle);
      return;
    }
    if (block) {
      const Single x = CSng(text1);
      const Double v = Pow(x, 3.0);
      ctl("Text3").SetText(FormatNumber(v, 3));
      ctl("Text4").SetText(text1 + "^3");
    }
    if (cylinder && text1.empty() && text2.empty()) {
      MsgBox(kValidData, Icon::None, kTitle);
      return;
    }
    // With only one of the two boxes filled, nothing is computed.
    if (cylinder && !text1.empty() && !text2.empty()) {
      const Single x = CSng(text1);
      const Single y = CSng(text2);
      const Double v = x * kPi * Pow(y, 2.0);
      ctl("Text3").SetText(FormatNumber(v, 3));
      ctl("Text4").SetText("(" + std::string(kPiText) + " * " + text1 + " * " + text2 + " ^ 2)");
    }
  });
}

// Selecting the sphere runs its routine only when it was not selected
// already; then the prompts stay empty until another mode is chosen.
void frmVolume::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4"});
  EmptyLabels();
  ctl("opt1").SetValue(true);
  ctl("Text1").SetFocus();
}

}  // namespace orv
