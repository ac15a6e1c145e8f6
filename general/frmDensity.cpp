#include "general/frmDensity.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "Density refers to the thickness of a substance. Gases are very thin and thus have a low density. Liquids are a "
    "little thicker than gases and so have a little higher density. Solids are a lot thicker than liquids. So they "
    "have a higher density. Density is the amount of matter in a particular volume. If you change the mass or the "
    "volume, you affect the density. The more matter in a particular volume, the higher the density.";

constexpr std::string_view kBothBoxes = "You must enter valid data into both boxes.";

constexpr ControlSpec kControls[] = {
    {Kind::Frame, "frmDensity", "Select one of the following", {20, 8, 400, 60}},
    {Kind::Option, "optDensity1", "Mass", {16, 28, 100, 24}, {}, "frmDensity"},
    {Kind::Option, "optDensity2", "Volume", {144, 28, 100, 24}, {}, "frmDensity"},
    {Kind::Option, "optDensity3", "Density", {272, 28, 100, 24}, {}, "frmDensity"},
    {Kind::Label, "Label1", "Enter the density", {20, 90, 180, 22}},
    {Kind::TextBox, "Text1", "", {204, 86, 216, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "lblDensity2", "Enter the volume", {20, 126, 180, 22}},
    {Kind::TextBox, "txtDensity1", "", {204, 122, 216, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "lblDensity3", "The mass is ", {20, 162, 180, 22}},
    {Kind::TextBox, "txtDensity3", "", {204, 158, 216, 26}, {}, {}, -1, kDisabled},
    {Kind::TextBox, "Text2", "", {20, 196, 400, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 240, 80, 30}, {}, {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 240, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {196, 240, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 240, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {388, 242, 32, 26}, "Press for help", {}, -1, kSmall},
};

}  // namespace

frmDensity::frmDensity(Program& program)
    : CalculatorScreen(program, {"frmDensity", "Density Calculations", 440, 286}, kControls,
                       {"frmGeneralChoice", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmDensity::Form_Load);
  Bind("cmdOk", Ev::Click, &frmDensity::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmDensity::cmdClear_Click);
  Bind("optDensity1", Ev::Click, &frmDensity::optDensity1_Click);
  Bind("optDensity2", Ev::Click, &frmDensity::optDensity2_Click);
  Bind("optDensity3", Ev::Click, &frmDensity::optDensity3_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("txtDensity1");
}

void frmDensity::Form_Load() {
  UnloadForm("frmSplash");
  UnloadForm("frmGeneralChoice");
  SetPrompts("Enter the density", "Enter the volume", "The mass is ");
  ctl("optDensity1").SetValue(true);
  ctl("Text2").SetText("");
  DisableOkAndPrint();
}

void frmDensity::SetPrompts(std::string_view first, std::string_view second, std::string_view result) {
  ctl("Label1").SetCaption(std::string(first));
  ctl("lblDensity2").SetCaption(std::string(second));
  ctl("lblDensity3").SetCaption(std::string(result));
}

// Only the mass mode clears the boxes; the other two leave the old values and
// result in view under their new prompts.
void frmDensity::optDensity1_Click() {
  SetPrompts("Enter the density", "Enter the volume", "The mass is ");
  cmdClear_Click();
}

void frmDensity::optDensity2_Click() {
  SetPrompts("Enter the density", "Enter the mass", "The volume is ");
  ctl("Text1").SetFocus();
}

void frmDensity::optDensity3_Click() {
  SetPrompts("Enter the mass", "Enter the volume", "The density is ");
  ctl("Text1").SetFocus();
}

void frmDensity::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const bool mass = ctl("optDensity1").Value();
    const bool volume = ctl("optDensity2").Value();
    const bool density = ctl("optDensity3").Value();
    if (!mass && !volume && !density) {
      MsgBox("You must select one of the options.", Icon::None, kTitle);
      return;
    }
    if (ctl("Text1").Text().empty() || ctl("txtDensity1").Text().empty()) {
      MsgBox(kBothBoxes, Icon::None, kTitle);
      return;
    }
    // Read as numbers: "0.0" is refused as well as "0".
    const Single a = CSng(ctl("Text1").Text());
    const Single b = CSng(ctl("txtDensity1").Text());
    if (a <= 0 || b <= 0) {
      MsgBox(kBothBoxes, Icon::None, kTitle);
      return;
    }
    Single x;
    std::string line;
    if (mass) {
      x = a * b;
      line = Str(a) + " * " + Str(b);
    } else if (volume) {
      x = b / a;
      line = Str(b) + " / " + Str(a);
    } else {
      x = a / b;
      line = Str(a) + " / " + Str(b);
    }
    ctl("txtDensity3").SetText(FormatNumber(x, 3));
    ctl("Text2").SetText(line);
  });
}

void frmDensity::cmdClear_Click() {
  ctl("optDensity1").SetEnabled(true);
  ctl("optDensity2").SetEnabled(true);
  ctl("optDensity3").SetEnabled(true);
  EmptyBoxes({"Text1", "Text2", "txtDensity1", "txtDensity3"});
}

}  // namespace orv
