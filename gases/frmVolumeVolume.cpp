#include "gases/frmVolumeVolume.h"

namespace orv {

namespace {

constexpr KeyFilter kFilterDigits{"", kTitle};
// The wanted coefficient's box refuses a key under its own one-letter title.
constexpr KeyFilter kFilterDigitsV{"", "v"};

constexpr std::string_view kHelp =
    "In a reaction involving gases, it is possible to determine the volume of one gas given the volume of another "
    "gas. Using Avogadros principle, you can convert volumes to moles and moles to volumes. ";

constexpr std::string_view kCoefficient = "You must enter a valid coefficient.";

constexpr ControlSpec kControls[] = {
    {Kind::Label,
     "Label1",
     "Enter data from a balanced equation. (Temperature and pressure constant)",
     {20, 14, 460, 22}},
    {Kind::Label, "Label2", "Enter the original volume in liters.", {20, 50, 290, 22}},
    {Kind::TextBox, "Text1", "", {320, 46, 160, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label3", "Enter the coefficient of the given gas.", {20, 86, 290, 22}},
    {Kind::TextBox,
     "Text2",
     "",
     {320, 82, 160, 26},
     "Enter the coefficient for the molecule that you know.",
     {},
     -1,
     0,
     &kFilterDigits},
    {Kind::Label, "Label4", "Enter the coefficient of the gas you need.", {20, 122, 290, 22}},
    {Kind::TextBox,
     "Text3",
     "",
     {320, 118, 160, 26},
     "Enter the coefficient for the molecule you want to know about.",
     {},
     -1,
     0,
     &kFilterDigitsV},
    {Kind::Label, "Label14", "The new volume is ", {20, 162, 290, 22}},
    {Kind::TextBox, "Text13", "", {320, 158, 110, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label5", "", {436, 162, 44, 22}},
    {Kind::TextBox, "Text4", "", {20, 196, 460, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 240, 80, 30}, {}, {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 240, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {196, 240, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 240, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {448, 242, 32, 26}, "Press for help", {}, -1, kSmall},
};

constexpr const char* kBoxes[] = {"Text1", "Text2", "Text3", "Text13", "Text4"};

// The tests compare texts: "." sorts before "0" and is refused, "00" after it.
bool AtOrBeforeZero(const std::string& text) { return text.empty() || text <= "0"; }

}  // namespace

frmVolumeVolume::frmVolumeVolume(Program& program)
    : CalculatorScreen(program, {"frmVolumeVolume", "Volume - Volume Problems", 500, 286}, kControls,
                       {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmVolumeVolume::Form_Load);
  Bind("cmdOk", Ev::Click, &frmVolumeVolume::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmVolumeVolume::cmdClear_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
}

void frmVolumeVolume::Form_Load() {
  for (const char* box : kBoxes) ctl(box).SetText("");
  DisableOkAndPrint();
}

void frmVolumeVolume::cmdOk_Click() {
  Trapped(kTrapDataEntryCapsPoint, [&] {
    const std::string& original = ctl("Text1").Text();
    const std::string& given = ctl("Text2").Text();
    const std::string& wanted = ctl("Text3").Text();
    if (AtOrBeforeZero(original)) {
      MsgBox("You must enter a valid volume.", Icon::Information, kTitle);
      return;
    }
    if (AtOrBeforeZero(given) || AtOrBeforeZero(wanted)) {
      MsgBox(kCoefficient, Icon::Information, kTitle);
      return;
    }
    const Double wantedCoefficient = CDbl(wanted);
    const Double givenCoefficient = CDbl(given);
    const Double originalVolume = CDbl(original);
    const Double ratio = wantedCoefficient / givenCoefficient;
    const Double newVolume = ratio * originalVolume;
    ctl("Text13").SetText(Str(newVolume));
    ctl("Text4").SetText(original + " * (" + wanted + " / " + given + ")");
  });
}

void frmVolumeVolume::cmdClear_Click() {
  for (const char* box : kBoxes) ctl(box).SetText("");
  ctl("Text1").SetFocus();
}

}  // namespace orv
