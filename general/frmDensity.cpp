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
    {.kind = Kind::Frame, .name = "frmDensity", .caption = "Select one of the following", .rect = {20, 8, 400, 60}},
    {.kind = Kind::Option,
     .name = "optDensity1",
     .caption = "Mass",
     .rect = {16, 28, 100, 24},
     .container = "frmDensity"},
    {.kind = Kind::Option,
     .name = "optDensity2",
     .caption = "Volume",
     .rect = {144, 28, 100, 24},
     .container = "frmDensity"},
    {.kind = Kind::Option,
     .name = "optDensity3",
     .caption = "Density",
     .rect = {272, 28, 100, 24},
     .container = "frmDensity"},
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter the density", .rect = {20, 90, 180, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {204, 86, 216, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "lblDensity2", .caption = "Enter the volume", .rect = {20, 126, 180, 22}},
    {.kind = Kind::TextBox, .name = "txtDensity1", .rect = {204, 122, 216, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "lblDensity3", .caption = "The mass is ", .rect = {20, 162, 180, 22}},
    {.kind = Kind::TextBox, .name = "txtDensity3", .rect = {204, 158, 216, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {20, 196, 400, 26}, .flags = kDisabled},
    OkButton({20, 240, 80, 30}),
    ClearButton({108, 240, 80, 30}),
    CancelButton({196, 240, 80, 30}),
    PrintButton({284, 240, 80, 30}),
    HelpButton({388, 242, 32, 26}),
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
