#include "solutions/frmSolubilityConstants.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "The solubility product constant provides the ability to measure the solubility of a salt. It can be used to "
    "determine if  preciptiation will occur when a salt and a solution are  mixed or when two solutions are mixed. "
    "Precipitation will occur if the ion product exceeds the Ksp.  You derive these from a balanced chemical "
    "equation. You must also know the molarity of the reactant and its products. ";

constexpr std::string_view kConcentrationTip = "Enter the concentration in moles per liter.";

// The captions here are replaced when the screen loads.
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label6",
     .caption = "Enter the following data from a balanced equation.",
     .rect = {16, 12, 448, 22},
     .flags = kBold},
    {.kind = Kind::Label,
     .name = "Label2",
     .caption = "Enter the concentration of product 1",
     .rect = {16, 48, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {284, 44, 180, 26},
     .toolTip = kConcentrationTip,
     .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter the coefficient of product 1", .rect = {16, 84, 264, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {284, 80, 180, 26}, .filter = &kFilterSignsPointE},
    {.kind = Kind::Label,
     .name = "Label3",
     .caption = "Enter the concentration of product 2",
     .rect = {16, 120, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {284, 116, 180, 26},
     .toolTip = kConcentrationTip,
     .filter = &kFilterSignsPointE},
    {.kind = Kind::Label,
     .name = "Label5",
     .caption = "Enter the coefficient of product 2",
     .rect = {16, 156, 264, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {284, 152, 180, 26}, .filter = &kFilterSignsPointE},
    {.kind = Kind::Label,
     .name = "Label4",
     .caption = "The solubility product constant is ",
     .rect = {16, 196, 264, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {284, 192, 180, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {16, 232, 448, 26}, .flags = kDisabled},
    OkButton({16, 276, 80, 30}, kOkTip),
    ClearButton({104, 276, 80, 30}),
    CancelButton({192, 276, 80, 30}),
    PrintButton({280, 276, 80, 30}),
    HelpButton({432, 278, 32, 26}),
};

constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text5", "Text6", "Text4"};

}  // namespace

frmSolubilityConstants::frmSolubilityConstants(Program& program)
    : CalculatorScreen(program, {"frmSolubilityConstants", "Solubility Product Constant", 480, 322}, kControls,
                       {"frmSolutions", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmSolubilityConstants::Form_Load);
  Bind("cmdOk", Ev::Click, &frmSolubilityConstants::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmSolubilityConstants::cmdClear_Click);
  for (const char* box : {"Text1", "Text5", "Text2", "Text6"}) EnterRunsOk(box);
}

void frmSolubilityConstants::Form_Load() {
  ctl("Label2").SetCaption("Enter the concentration of product 1.");
  ctl("Label1").SetCaption("Enter the coefficient of product 1.");
  ctl("Label3").SetCaption("Enter the concentration of product 2.");
  ctl("Label5").SetCaption("Enter the coefficient of product 2.");
  ctl("Label4").SetCaption("The solubility product constant (Ksp) is ");
  EmptyBoxes(kBoxes);
  DisableOkAndPrint();
}

void frmSolubilityConstants::cmdOk_Click() {
  Trapped(kTrapDataEntryCapsInfo, [&] {
    for (const char* box : {"Text1", "Text2", "Text5", "Text6"}) {
      const std::string& text = ctl(box).Text();
      if (text == "0" || text.empty()) {
        MsgBox("You must enter valid data.", Icon::Information, kTitle);
        return;
      }
    }
    const std::string& conc1 = ctl("Text1").Text();
    const std::string& conc2 = ctl("Text2").Text();
    const std::string& coef1 = ctl("Text5").Text();
    const std::string& coef2 = ctl("Text6").Text();
    const Double c1 = CDbl(conc1);
    const Double c2 = CDbl(conc2);
    const Double n1 = CDbl(coef1);
    const Double n2 = CDbl(coef2);
    const Double ksp = Pow(c2, n2) * Pow(c1, n1);
    ctl("Text3").SetText(Format(ksp, "Scientific"));
    ctl("Text4").SetText(conc1 + " ^ " + coef1 + " x " + conc2 + " ^ " + coef2);
  });
}

void frmSolubilityConstants::cmdClear_Click() {
  EmptyBoxes(kBoxes);
  for (const char* box : {"Text1", "Text2", "Text3"}) ctl(box).SetVisible(true);
  ctl("Label2").SetCaption("Enter the concentration of product 1.");
  ctl("Label3").SetCaption("Enter the concentration of product 2.");
  ctl("Label4").SetCaption(" The solubility product constant (Ksp) is ");
  ctl("Text1").SetFocus();
}

}  // namespace orv
