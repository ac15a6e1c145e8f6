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
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Enter data from a balanced equation. (Temperature and pressure constant)",
     .rect = {20, 14, 460, 22}},
    {.kind = Kind::Label,
     .name = "Label2",
     .caption = "Enter the original volume in liters.",
     .rect = {20, 50, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {320, 46, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label3",
     .caption = "Enter the coefficient of the given gas.",
     .rect = {20, 86, 290, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {320, 82, 160, 26},
     .toolTip = "Enter the coefficient for the molecule that you know.",
     .filter = &kFilterDigits},
    {.kind = Kind::Label,
     .name = "Label4",
     .caption = "Enter the coefficient of the gas you need.",
     .rect = {20, 122, 290, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {320, 118, 160, 26},
     .toolTip = "Enter the coefficient for the molecule you want to know about.",
     .filter = &kFilterDigitsV},
    {.kind = Kind::Label, .name = "Label14", .caption = "The new volume is ", .rect = {20, 162, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text13", .rect = {320, 158, 110, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .rect = {436, 162, 44, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {20, 196, 460, 26}, .flags = kDisabled},
    OkButton({20, 240, 80, 30}),
    ClearButton({108, 240, 80, 30}),
    CancelButton({196, 240, 80, 30}),
    PrintButton({284, 240, 80, 30}),
    HelpButton({448, 242, 32, 26}),
};

constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text13", "Text4"};

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
  EmptyBoxes(kBoxes);
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
  EmptyBoxes(kBoxes);
  ctl("Text1").SetFocus();
}

}  // namespace orv
