#include "gases/frmGrahams.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "When two gases are introduced into a vacuum or into each other, the rate at which they diffuse varies inversely "
    "as the square root of their molecular masses. The smaller the gas molecule, the faster it travels and the "
    "faster it diffuses. The larger the gas molecule, the slower it travels and the slower it diffuses. To calculate "
    "the relative rate of diffusion for two gases, you must have their molecular weights. Divide the larger weight "
    "by the smaller weight then take the square root. The answer is the rate of diffusion of the lighter gas to the "
    "hevier gas.";

constexpr std::string_view kLarger = "You must enter a number larger than 0.";

// No cancel button: Esc does nothing on this screen.
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label2",
     .caption = "Enter the molecular weight for molecule #1",
     .rect = {20, 20, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {330, 16, 150, 26},
     .toolTip = "Enter the weight for a complete molecule  (Br2 not just Br).",
     .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label3",
     .caption = "Enter the molecular weight for molecule #2",
     .rect = {20, 56, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {330, 52, 150, 26},
     .toolTip = "Enter the molecular weight for a complete molecule.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label6", .caption = "The diffusion rate is ", .rect = {20, 96, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {330, 92, 150, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {20, 130, 460, 26}, .flags = kDisabled},
    OkButton({20, 174, 80, 30}),
    ClearButton({108, 174, 80, 30}),
    {.kind = Kind::Button, .name = "cmdCancel", .caption = "Cancel", .rect = {196, 174, 80, 30}},
    PrintButton({284, 174, 80, 30}),
    HelpButton({448, 176, 32, 26}),
};

}  // namespace

frmGrahams::frmGrahams(Program& program)
    : CalculatorScreen(program, {"frmGrahams", "Graham's Law", 500, 220}, kControls, {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmGrahams::Form_Load);
  Bind("cmdOk", Ev::Click, &frmGrahams::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmGrahams::cmdClear_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
}

void frmGrahams::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text5", "Text3"});
  DisableOkAndPrint();
}

void frmGrahams::cmdOk_Click() {
  Trapped(kTrapDataEntry, [&] {
    const std::string& weight1 = ctl("Text1").Text();
    const std::string& weight2 = ctl("Text2").Text();
    // Zero passes these tests; it fails as a divisor.
    if (weight1.empty()) {
      MsgBox("You must enter a valid molecular weight in box one.", Icon::Information, kTitle);
      return;
    }
    if (CSng(weight1) < 0) {
      MsgBox(kLarger, Icon::Information, kTitle);
      return;
    }
    if (weight2.empty()) {
      MsgBox("You must enter a valid molecular weight in box two.", Icon::Information, kTitle);
      return;
    }
    if (CSng(weight2) < 0) {
      MsgBox(kLarger, Icon::Information, kTitle);
      return;
    }
    // Always molecule #2 over molecule #1, whichever is heavier.
    const Double quotient = CDbl(weight2) / CDbl(weight1);
    const Single rate = Sqrt(quotient);
    ctl("Text5").SetText(FormatNumber(rate, 3));
    ctl("Text3").SetText("Sqr(" + weight2 + " / " + weight1 + ")");
  });
}

void frmGrahams::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text5", "Text3"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
