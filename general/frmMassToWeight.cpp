#include "general/frmMassToWeight.h"

namespace orv {

namespace {

constexpr Expr kGravity = 9.81;

constexpr std::string_view kHelp =
    "Mass and weight are often confused. What you want to measure is the mass of a substance.  It is usually given "
    "in grams or kilograms. Weight in the English system is given in pounds or ounces. In the metric system, weight "
    "is given in Newtons. In this section, you are converting the metric Newtons to kilograms or kilograms to "
    "Newtoms. There  is another section for converting English measurements to metric measurements.  ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Enter a number of kilograms or Newtons.",
     .rect = {20, 22, 264, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {288, 18, 168, 26}},
    {.kind = Kind::Button, .name = "cmdKToN", .caption = "Kilograms To Newtons", .rect = {20, 60, 180, 30}},
    {.kind = Kind::Button, .name = "cmdNToK", .caption = "Newtons To Kilograms", .rect = {208, 60, 180, 30}},
    {.kind = Kind::Label, .name = "Label2", .caption = "The answer is", .rect = {20, 112, 264, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {288, 108, 168, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label3", .rect = {464, 112, 80, 22}},
    ClearButton({20, 154, 80, 30}),
    CancelButton({108, 154, 80, 30}),
    HelpButton({512, 156, 32, 26}),
};

}  // namespace

frmMassToWeight::frmMassToWeight(Program& program)
    : CalculatorScreen(program, {"frmMassToWeight", "Mass / Weight Conversion", 564, 200}, kControls,
                       {"frmGeneralChoice", "", kHelp}) {
  Bind("Form", Ev::Load, &frmMassToWeight::Form_Load);
  Bind("cmdKToN", Ev::Click, &frmMassToWeight::cmdKToN_Click);
  Bind("cmdNToK", Ev::Click, &frmMassToWeight::cmdNToK_Click);
  Bind("cmdClear", Ev::Click, &frmMassToWeight::cmdClear_Click);
  Bind("cmdCancel", Ev::Click, &frmMassToWeight::cmdCancel_Click);
}

void frmMassToWeight::Form_Load() { cmdClear_Click(); }

void frmMassToWeight::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2"});
  ctl("Label3").SetCaption("");
}

void frmMassToWeight::cmdCancel_Click() {
  Unload();
  ShowForm("frmGeneralChoice");
}

bool frmMassToWeight::HaveValue() {
  if (!ctl("Text1").Text().empty()) return true;
  MsgBox("You must enter a valid number.", Icon::Information, kTitle);
  return false;
}

// Neither conversion has an error trap: text that is no number ends the
// program. The choice screen is hidden here, on each conversion.
void frmMassToWeight::cmdKToN_Click() {
  if (!HaveValue()) return;
  HideForm("frmGeneralChoice");
  const Double x = CSng(ctl("Text1").Text()) * kGravity;
  ctl("Text2").SetText(FormatNumber(x, 3));
  ctl("Label3").SetCaption("Newtons");
}

void frmMassToWeight::cmdNToK_Click() {
  if (!HaveValue()) return;
  HideForm("frmGeneralChoice");
  const Double x = CSng(ctl("Text1").Text()) / kGravity;
  ctl("Text2").SetText(FormatNumber(x, 3));
  ctl("Label3").SetCaption("kilograms");
}

}  // namespace orv
