#include "energy/frmHalfLife.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "Unstable nuclei tend to breakdown into a more stable form. In the process, new elements are formed due to the "
    "new nuclei that are formed. The rate that a nucleus breaks down is its half life. Different elements break "
    "down at different rates. Knowing the half life and the original amount allows you to determine the age of the "
    "substance. Knowing the half life and the time allows you to determine the quantity. ";

constexpr std::string_view kHalfLife = "Enter the half life of the element.";
constexpr std::string_view kInitial = "Enter the initial quantity of material.";
constexpr std::string_view kAllBoxes = "You must enter valid data in all boxes.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following options", .rect = {20, 8, 500, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Time", .rect = {16, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Quantity", .rect = {180, 28, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 90, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {304, 86, 160, 26}, .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 126, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {304, 122, 160, 26}, .filter = &kFilterPlusPointE},
    {.kind = Kind::Label, .name = "Label5", .rect = {20, 162, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {304, 158, 160, 26}, .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 206, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {304, 202, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label6", .rect = {472, 206, 48, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {20, 240, 500, 26}, .flags = kDisabled},
    OkButton({20, 284, 80, 30}, kOkTip),
    ClearButton({108, 284, 80, 30}),
    CancelButton({196, 284, 80, 30}),
    PrintButton({284, 284, 80, 30}),
    HelpButton({488, 286, 32, 26}),
};

// The boxes that loading and clearing empty, in this order.
constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};

}  // namespace

frmHalfLife::frmHalfLife(Program& program)
    : CalculatorScreen(program, {"frmHalfLife", "Half Life Calculations", 540, 330}, kControls,
                       {"frmEnergy", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmHalfLife::Form_Load);
  Bind("cmdOk", Ev::Click, &frmHalfLife::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmHalfLife::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmHalfLife::opt1_Click);
  Bind("opt2", Ev::Click, &frmHalfLife::opt2_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text4");
}

void frmHalfLife::SetCaptions(std::string_view result, std::string_view last, std::string_view unit) {
  ctl("Label2").SetCaption(std::string(kHalfLife));
  ctl("Label3").SetCaption(std::string(kInitial));
  ctl("Label4").SetCaption(std::string(result));
  ctl("Label5").SetCaption(std::string(last));
  ctl("Label6").SetCaption(std::string(unit));
}

void frmHalfLife::Form_Load() {
  ctl("opt1").SetValue(true);
  EmptyBoxes(kBoxes);
  SetCaptions("The time required is", "Enter the final quantity", "years");
  DisableOkAndPrint();
}

void frmHalfLife::opt1_Click() {
  ctl("opt1").SetValue(true);
  EmptyBoxes(kBoxes);
  SetCaptions("The time required is", "Enter the final quantity", "years");
}

void frmHalfLife::opt2_Click() {
  ctl("opt2").SetValue(true);
  EmptyBoxes(kBoxes);
  SetCaptions("The final quantity is ", "Enter the time period. ", "atoms");
}

// The time is a whole number of half lives: both the ratio of the
// quantities and the count of half lives are held as 16-bit integers. The
// working line shows the initial quantity, not the ratio.
void frmHalfLife::cmdOk_Click() {
  Trapped(kTrapDataEntryCapsPoint, [&] {
    for (const char* box : {"Text1", "Text2", "Text4"}) {
      const std::string& text = ctl(box).Text();
      if (text.empty() || text == "0") {
        MsgBox(kAllBoxes, Icon::Information, kTitle);
        return;
      }
    }
    if (!ctl("opt1").Value()) return;
    const Double initial = CDbl(ctl("Text2").Text());
    const Double remaining = CDbl(ctl("Text4").Text());
    const Double ratio = initial / remaining;
    const Integer n = CInt(ratio);
    const Integer halfLives = CInt((Log(n) / Log(10)) / (Log(2) / Log(10)));
    const Double halfLife = CDbl(ctl("Text1").Text());
    const Double time = halfLife * Double(halfLives);
    ctl("Text3").SetText(Str(time));
    ctl("Text5").SetText("Log(" + Str(CDbl(ctl("Text2").Text())) + ")  / " + Str(CDbl(ctl("Text4").Text())) + " / " +
                         " Log(10) / (Log(2) / Log(10) * " + Str(CDbl(ctl("Text1").Text())));
  });
}

void frmHalfLife::cmdClear_Click() {
  ctl("opt1").SetValue(true);
  EmptyBoxes(kBoxes);
  ctl("Label2").SetCaption(std::string(kHalfLife));
  ctl("Label3").SetCaption(std::string(kInitial));
  ctl("Label5").SetCaption("Enter the final quantity.");
  ctl("Label4").SetCaption("The time required is ");
  ctl("Label6").SetCaption("years");
  ctl("Text1").SetFocus();
}

}  // namespace orv
