#include "gases/frmDalton.h"

#include "data/store.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "In a mixture of gases, each gas exerts a pressure the same as if it were the only gas in the container. Many "
    "times gas is collected by a method called water displacement and so we need to remove the effect of the water "
    "on the volume. ";

constexpr std::string_view kRequired = "You must enter valid data into all required boxes.";
constexpr std::string_view kFinalPressure = "Enter the final pressure in kPa";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {20, 8, 460, 60}},
    {.kind = Kind::Option,
     .name = "opt1",
     .caption = "Calculate volume",
     .rect = {16, 28, 190, 24},
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt2",
     .caption = "Calculate pressure",
     .rect = {230, 28, 200, 24},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Enter the initial temperature in Celsius.",
     .rect = {20, 90, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {320, 86, 160, 26}, .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 126, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {320, 122, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 162, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {320, 158, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label5", .rect = {20, 198, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {320, 194, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label6", .rect = {20, 238, 290, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {320, 234, 110, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .rect = {436, 238, 46, 22}},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {20, 272, 460, 26}, .flags = kDisabled},
    OkButton({20, 316, 80, 30}),
    ClearButton({108, 316, 80, 30}),
    CancelButton({196, 316, 80, 30}),
    PrintButton({284, 316, 80, 30}),
    HelpButton({448, 318, 32, 26}),
};

}  // namespace

frmDalton::frmDalton(Program& program)
    : CalculatorScreen(program, {"frmDalton", "Dalton's Law Of Partial Pressure", 500, 362}, kControls,
                       {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmDalton::Form_Load);
  Bind("cmdOk", Ev::Click, &frmDalton::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmDalton::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmDalton::opt1_Click);
  Bind("opt2", Ev::Click, &frmDalton::opt2_Click);
  for (const char* box : {"Text1", "Text2", "Text3", "Text5"}) EnterRunsOk(box);
}

void frmDalton::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text5", "Text6", "Text7"});
  ctl("opt1").SetValue(true);
  ctl("Text2").SetEnabled(true);
  ctl("Text5").SetEnabled(true);
  DisableOkAndPrint();
}

// The volume mode brings the hidden boxes back and empties the volume and
// final pressure; the temperature and total pressure stay.
void frmDalton::opt1_Click() {
  ctl("Label2").SetCaption("Enter the initial volume in liters");
  ctl("Label3").SetCaption("Enter the total gas pressure in kPa.");
  ctl("Label5").SetCaption(std::string(kFinalPressure));
  ctl("Label6").SetCaption("The final volume is ");
  ctl("Label7").SetCaption("Liters");
  ctl("Text2").SetVisible(true);
  ctl("Text2").SetEnabled(true);
  ctl("Text2").SetText("");
  ctl("Text3").SetVisible(true);
  ctl("Text5").SetVisible(true);
  ctl("Text5").SetEnabled(true);
  ctl("Text5").SetText("");
}

// The pressure mode hides the last two boxes with whatever they hold.
void frmDalton::opt2_Click() {
  ctl("Label2").SetCaption(std::string(kFinalPressure));
  ctl("Label3").SetCaption("");
  ctl("Label5").SetCaption("");
  ctl("Label6").SetCaption("The final pressure is ");
  ctl("Label7").SetCaption("kPa");
  ctl("Text2").SetVisible(true);
  ctl("Text2").SetEnabled(true);
  ctl("Text3").SetVisible(false);
  ctl("Text5").SetVisible(false);
  ctl("Text5").SetEnabled(false);
  ctl("Text1").SetFocus();
}

void frmDalton::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const bool volume = ctl("opt1").Value();
    const std::string& box2 = ctl("Text2").Text();
    const std::string& box5 = ctl("Text5").Text();
    // The final pressure must be there, though the scaling is always to 101.3.
    if (volume && (ctl("Text1").Text().empty() || box2.empty() || ctl("Text3").Text().empty() || box5.empty())) {
      MsgBox(kRequired, Icon::None, kTitle);
      return;
    }
    if (ctl("opt2").Value() && (box2 == "0" || box5 == "0")) {
      MsgBox(kRequired, Icon::None, kTitle);
      return;
    }
    if (!volume) return;

    // The temperature is matched as typed; no row leaves it at zero.
    Single water;
    if (const auto found = data::FindVaporPressureByText(Store(program()), ctl("Text1").Text())) {
      water = Expr(CDbl(*found));
    }
    const Single dry = CDbl(ctl("Text3").Text()) - water;
    const Double result = CSng(box2) * (dry / 101.3);
    ctl("Text6").SetText(FormatNumber(result, 3));
    ctl("Text7").SetText(box2 + " x " + Str(dry) + " / 101.3 ");
  });
}

// The mode, its prompts and the hidden boxes stay as they are.
void frmDalton::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text5", "Text6", "Text7"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
