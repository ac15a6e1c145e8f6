#include "formulas/frmWeightCalculations.h"

#include <string>

namespace orv {

namespace {

// clang-format off
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter the molecular weight", .rect = {20, 22, 200, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {224, 18, 160, 26}, .filter = &kFilterPointEe},
    {.kind = Kind::Label, .name = "Label2", .caption = "Enter the quantity in question", .rect = {20, 58, 200, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {224, 54, 160, 26}, .filter = &kFilterPointEe},
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select the unit for the quantity", .rect = {20, 96, 212, 120}},
    {.kind = Kind::Option, .name = "Option1", .caption = "Molecules", .rect = {16, 28, 180, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "Option2", .caption = "Grams", .rect = {16, 56, 180, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "Option3", .caption = "Moles", .rect = {16, 84, 180, 24}, .container = "Frame1"},
    {.kind = Kind::Frame, .name = "Frame2", .caption = "Select the desired unit", .rect = {244, 96, 212, 120}},
    {.kind = Kind::Option, .name = "Option4", .caption = "Molecules", .rect = {16, 28, 180, 24}, .container = "Frame2"},
    {.kind = Kind::Option, .name = "Option5", .caption = "Grams", .rect = {16, 56, 180, 24}, .container = "Frame2"},
    {.kind = Kind::Option, .name = "Option6", .caption = "Moles", .rect = {16, 84, 180, 24}, .container = "Frame2"},
    {.kind = Kind::Label, .name = "Label3", .caption = "The number of molecules is ", .rect = {20, 238, 200, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {224, 234, 232, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {20, 270, 436, 26}, .flags = kDisabled},
    OkButton({20, 316, 80, 30}, kOkTip),
    ClearButton({108, 316, 80, 30}),
    CancelButton({196, 316, 80, 30}),
    PrintButton({284, 316, 80, 30}),
    HelpButton({424, 318, 32, 26}),
};
// clang-format on

constexpr std::string_view kHelp =
    "If you are given a quantity of a molecule in one unit, sometimes you need to have that quantity in another "
    "unit. For example, if you are given a quantity of a molecule in grams, you might want to know how many moles "
    "there are or how many molecules are involved. Enter the molecular weight of the molecule in question, enter "
    "the quantity, select what unit it is in and finally select what unit you want to convert it to. Press Ok and "
    "the new quantity is given. ";

// Avogadro's number.
const Double kAvogadro = 6.02E+23;

}  // namespace

frmWeightCalculations::frmWeightCalculations(Program& program)
    : CalculatorScreen(program, {"frmWeightCalculations", "Molecular Weight Calculations", 476, 362}, kControls,
                       {"frmWeightChoice", "", kHelp}) {
  Bind("Form", Ev::Load, &frmWeightCalculations::Form_Load);
  Bind("Option4", Ev::Click, &frmWeightCalculations::Option4_Click);
  Bind("Option5", Ev::Click, &frmWeightCalculations::Option5_Click);
  Bind("Option6", Ev::Click, &frmWeightCalculations::Option6_Click);
  Bind("cmdOk", Ev::Click, &frmWeightCalculations::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmWeightCalculations::cmdClear_Click);
}

void frmWeightCalculations::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4"});
  ctl("Option1").SetValue(true);
  ctl("Option4").SetValue(true);
  ctl("Label3").SetCaption("The number of molecules is ");
}

void frmWeightCalculations::cmdClear_Click() {
  Form_Load();
  ctl("Text1").SetFocus();
}

void frmWeightCalculations::Option4_Click() { ctl("Label3").SetCaption("The number of molecules is "); }
void frmWeightCalculations::Option5_Click() { ctl("Label3").SetCaption("The number of grams is "); }
void frmWeightCalculations::Option6_Click() { ctl("Label3").SetCaption("The number of moles is "); }

// Only a quantity in molecules is converted, to grams or to moles.
void frmWeightCalculations::cmdOk_Click() {
  Trapped(kTrapWordsInfo, [&] {
    const std::string& Text1 = ctl("Text1").Text();
    const std::string& Text2 = ctl("Text2").Text();
    Single weight;
    Single quantity;
    if (!Text1.empty()) weight = CSng(Text1);
    if (!Text2.empty()) quantity = CSng(Text2);
    if (weight > 1000 || Text1.empty()) {
      MsgBox("You must enter a valid molecular weight.", Icon::None, kTitle);
      return;
    }
    if (Text2.empty()) {
      MsgBox("You must enter a valid quantity.", Icon::None, kTitle);
      return;
    }
    if (!ctl("Option1").Value()) return;
    Single x;
    if (ctl("Option5").Value()) {
      x = quantity / kAvogadro * weight;
      ctl("Text3").SetText(Str(x));
      ctl("Text4").SetText(Str(quantity) + " / " + Str(kAvogadro) + " * " + Str(weight));
    } else if (ctl("Option6").Value()) {
      x = quantity / kAvogadro;
      ctl("Text3").SetText(Str(x));
      ctl("Text4").SetText(Str(quantity) + " / " + Str(kAvogadro));
    }
  });
}

}  // namespace orv
