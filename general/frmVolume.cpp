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
    {Kind::Frame, "Frame1", "Select one of the following options", {20, 8, 440, 60}},
    {Kind::Option, "opt1", "Sphere", {16, 28, 120, 24}, {}, "Frame1"},
    {Kind::Option, "opt2", "Block", {160, 28, 120, 24}, {}, "Frame1"},
    {Kind::Option, "opt3", "Cylinder", {304, 28, 120, 24}, {}, "Frame1"},
    {Kind::Label, "Label2", "", {20, 90, 276, 22}},
    {Kind::TextBox, "Text1", "", {300, 86, 160, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label3", "", {20, 126, 276, 22}},
    {Kind::TextBox, "Text2", "", {300, 122, 160, 26}, {}, {}, -1, kHidden, &kFilterPoint},
    {Kind::Label, "Label4", "", {20, 162, 276, 22}},
    {Kind::TextBox, "Text3", "", {300, 158, 160, 26}, {}, {}, -1, kDisabled},
    {Kind::TextBox, "Text4", "", {20, 196, 440, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 240, 80, 30}, {}, {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 240, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {196, 240, 80, 30}, "Enter a valid number.", {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 240, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {428, 242, 32, 26}, "Press for help", {}, -1, kSmall},
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
