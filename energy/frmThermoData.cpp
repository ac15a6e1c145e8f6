#include "energy/frmThermoData.h"

namespace orv {

namespace {

constexpr std::string_view kScreenTitle = "ThermoData";
constexpr KeyFilter kThermoFilter{"-.", kScreenTitle};
constexpr KeyFilter kThermoDigitsFilter{"", kScreenTitle};

constexpr std::string_view kHelp =
    "Enthalpy is the heat content of a substance. Enthalpy change is the change in heat content. Sometimes heat is "
    "absorbed and sometimes it is given off. Entropy is a measure of  disorder. The more disordered the system is, "
    "the greater the entropy. The more orderly, the lower the entropy. Gibbs free energy considers enthalpy and "
    "entropy together along with the temperature. It is used to determine if a reaction is spontaneous.  ";

constexpr std::string_view kReactant = "Enter the enthalpy value for the reactant in kJ.";
constexpr std::string_view kProduct = "Enter the enthalpy value for the product in kJ.";
constexpr std::string_view kRatio = "Ratio of reactant to product.";
constexpr std::string_view kEnthalpyChange = "The enthalpy change is ";
constexpr std::string_view kProducts = "Enter the sum of the entropies for the products.";
constexpr std::string_view kReactants = "Enter the sum of the entropies for the reactants.";
constexpr std::string_view kOverall = "The entropy for the overall reaction is ";
constexpr std::string_view kReactionEnthalpy = "Enter the enthalpy change for the reaction.";
constexpr std::string_view kTemperature = "Enter the temperature in degrees Kelvin.";
constexpr std::string_view kReactionEntropy = "Enter the entropy for the reaction.";
constexpr std::string_view kFreeEnergy = "The free energy for the reaction is ";

constexpr std::string_view kAllBoxes = "You must enter a valid value in all boxes.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {20, 8, 540, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Enthalpy", .rect = {16, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Entropy", .rect = {180, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt3",
     .caption = "Gibbs Free Energy",
     .rect = {344, 28, 180, 24},
     .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label1", .rect = {20, 90, 340, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {364, 86, 196, 26}, .filter = &kThermoFilter},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 126, 340, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {364, 122, 196, 26}, .filter = &kThermoFilter},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 162, 340, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {364, 158, 80, 26}, .filter = &kThermoFilter},
    {.kind = Kind::Label, .name = "Label5", .rect = {444, 162, 36, 22}, .flags = kCenter},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {480, 158, 80, 26}, .filter = &kThermoDigitsFilter},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 206, 340, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {364, 202, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label6", .rect = {520, 206, 40, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {20, 240, 540, 26}, .flags = kDisabled},
    OkButton({20, 284, 80, 30}, kOkTip),
    ClearButton({108, 284, 80, 30}),
    CancelButton({196, 284, 80, 30}),
    PrintButton({284, 284, 80, 30}),
    HelpButton({528, 286, 32, 26}),
};

// The boxes that loading and clearing empty, in this order.
constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};

}  // namespace

frmThermoData::frmThermoData(Program& program)
    : CalculatorScreen(program, {"frmThermoData", "Thermodynamic Calculations", 580, 330}, kControls,
                       {"frmEnergy", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmThermoData::Form_Load);
  Bind("cmdOk", Ev::Click, &frmThermoData::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmThermoData::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmThermoData::opt1_Click);
  Bind("opt2", Ev::Click, &frmThermoData::opt2_Click);
  Bind("opt3", Ev::Click, &frmThermoData::opt3_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
  EnterRunsOk("Text5");
}

// The prompts of the five labels beside the boxes, top to bottom.
void frmThermoData::SetCaptions(std::string_view first, std::string_view second, std::string_view third,
                                std::string_view result, std::string_view link) {
  ctl("Label1").SetCaption(std::string(first));
  ctl("Label2").SetCaption(std::string(second));
  ctl("Label3").SetCaption(std::string(third));
  ctl("Label4").SetCaption(std::string(result));
  ctl("Label5").SetCaption(std::string(link));
}

// The short prompts set here give way at once to those of the enthalpy mode,
// whose routine runs when it is selected.
void frmThermoData::Form_Load() {
  EmptyBoxes(kBoxes);
  SetCaptions("Enter the enthalpy value for the reactant.", "Enter the enthalpy value for the product.", kRatio,
              kEnthalpyChange, " to ");
  ctl("Text5").SetVisible(true);
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

void frmThermoData::opt1_Click() {
  SetCaptions(kReactant, kProduct, kRatio, kEnthalpyChange, " to ");
  ctl("Label6").SetCaption("kJ");
  ctl("Text3").SetVisible(true);
  Form::EmptyBoxes({"Text3", "Text4"});
  ctl("Text5").SetVisible(true);
  ctl("Text5").SetText("");
}

// The coefficient boxes are hidden with their texts kept.
void frmThermoData::opt2_Click() {
  SetCaptions(kProducts, kReactants, "", kOverall, "");
  ctl("Text3").SetVisible(false);
  ctl("Text4").SetText("");
  ctl("Text5").SetVisible(false);
}

void frmThermoData::opt3_Click() {
  SetCaptions(kReactionEnthalpy, kTemperature, kReactionEntropy, kFreeEnergy, "");
  ctl("Text3").SetVisible(true);
  ctl("Text4").SetText("");
  ctl("Text5").SetVisible(false);
  ctl("opt3").SetValue(true);
}

// Only the enthalpy mode calculates. The checks run on the texts, hidden
// boxes included.
void frmThermoData::cmdOk_Click() {
  Trapped(kTrapDataEntryPoint, [&] {
    const std::string text1 = ctl("Text1").Text();
    const std::string text2 = ctl("Text2").Text();
    const std::string text3 = ctl("Text3").Text();
    const std::string text5 = ctl("Text5").Text();
    const bool enthalpy = ctl("opt1").Value();
    const bool gibbs = ctl("opt3").Value();
    if (text1 == "0" || text1.empty()) {
      MsgBox("You must enter a valid value all boxes.", Icon::Information, kTitle);
      return;
    }
    if (text2.empty() || text1 == "0") {
      MsgBox(kAllBoxes, Icon::Information, kTitle);
      return;
    }
    if (enthalpy && (text3.empty() || text5.empty())) {
      MsgBox("You must enter a valid value in the ratio boxes.", Icon::Information, kTitle);
      return;
    }
    if (text3 == "0" || text5 == "0") {
      MsgBox("You must enter an integer coefficient of one or greater.", Icon::Information, kTitle);
      return;
    }
    if (enthalpy) {
      const Single products = CSng(text5) * CSng(text2);
      const Expr reactants = CSng(text1) * CSng(text3);
      const Single change = products - reactants;
      ctl("Text4").SetText(Str(change));
      ctl("Text6").SetText("(" + text2 + " * " + text5 + ") - (" + text3 + " * " + text1 + ")");
    }
    if (gibbs && text3.empty()) {
      MsgBox("You must enter a valid value in the entropy box.", Icon::Information, kTitle);
      return;
    }
    if (gibbs && text2.empty()) {
      MsgBox("You must enter a valid value in the temperature box.", Icon::Information, kTitle);
      return;
    }
    if (gibbs && text2.empty()) {
      MsgBox("You must enter a valid value in the enthalpy box.", Icon::Information, kTitle);
      return;
    }
  });
}

// The option stays selected, so no option routine runs and the prompts
// written here stay until the mode changes.
void frmThermoData::cmdClear_Click() {
  if (ctl("opt1").Value()) {
    SetCaptions(kReactant, "Enter the enthalpy value for the product kJ.", kRatio, kEnthalpyChange, " To ");
    ctl("Label6").SetCaption("kJ");
    EmptyBoxes(kBoxes);
    ctl("Text6").SetText("");
    ctl("Text5").SetVisible(true);
    ctl("opt1").SetValue(true);
  } else if (ctl("opt2").Value()) {
    SetCaptions(kProducts, kReactants, "", kOverall, "");
    EmptyBoxes(kBoxes);
    ctl("Text6").SetText("");
    ctl("Text3").SetVisible(false);
    ctl("Text5").SetVisible(false);
    ctl("opt2").SetValue(true);
  } else if (ctl("opt3").Value()) {
    SetCaptions(kReactionEnthalpy, kTemperature, kReactionEntropy, kFreeEnergy, "");
    EmptyBoxes(kBoxes);
    ctl("Text6").SetText("");
    ctl("Text3").SetVisible(true);
    ctl("Text5").SetVisible(false);
    ctl("opt3").SetValue(true);
  }
  ctl("Text1").SetFocus();
}

}  // namespace orv
