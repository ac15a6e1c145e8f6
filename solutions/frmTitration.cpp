#include "solutions/frmTitration.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "Titration is the procedure by which a solution of known concentration is used to determine the concentration of "
    "an unknown solution. The most common titrations are those between an acid and a base. This is referred to as "
    "neutralization. An indicator is used to help visualize the endpoint. ";

// The acid's boxes refuse Enter; the other boxes pass it to their KeyDown.
constexpr KeyFilter kAcidFilter{".", kTitle, KeyFilter::kRefusal, false};

constexpr std::string_view kMolarityTip = "Enter the molarity/molality.";
constexpr std::string_view kVolumeTip = "Enter a valid number for the volume.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {16, 8, 448, 56}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Molarity", .rect = {16, 24, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Molality", .rect = {200, 24, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Leave one of the first four boxes empty.",
     .rect = {16, 76, 448, 22},
     .flags = kBold},
    {.kind = Kind::Label, .name = "Label2", .rect = {16, 112, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {264, 108, 200, 26},
     .toolTip = kMolarityTip,
     .filter = &kAcidFilter},
    {.kind = Kind::Label, .name = "Label3", .rect = {16, 148, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {264, 144, 200, 26},
     .toolTip = kVolumeTip,
     .filter = &kAcidFilter},
    {.kind = Kind::Label, .name = "Label4", .rect = {16, 184, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {264, 180, 200, 26},
     .toolTip = kMolarityTip,
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label5", .rect = {16, 220, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text4",
     .rect = {264, 216, 200, 26},
     .toolTip = kVolumeTip,
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label7", .rect = {16, 256, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text6",
     .rect = {264, 252, 200, 26},
     .toolTip = "Enter a number that represents the moles of base for each mole of acid.",
     .filter = &kFilterPoint},
    // A thin sunken rule between the entries and the answer.
    {.kind = Kind::Label, .name = "Line1", .rect = {16, 292, 448, 2}, .flags = kBorder},
    {.kind = Kind::Label, .name = "Label6", .rect = {16, 310, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {264, 306, 200, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {16, 342, 448, 26}, .flags = kDisabled},
    OkButton({16, 386, 80, 30}, kOkTip),
    ClearButton({104, 386, 80, 30}),
    CancelButton({192, 386, 80, 30}),
    PrintButton({280, 386, 80, 30}),
    HelpButton({432, 388, 32, 26}),
};

// Whether a box holds no text.
bool IsBlank(const Control& box) { return box.Text().empty(); }

}  // namespace

frmTitration::frmTitration(Program& program)
    : CalculatorScreen(program, {"frmTitration", "Titration", 480, 432}, kControls, {"frmSolutions", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmTitration::Form_Load);
  Bind("cmdOk", Ev::Click, &frmTitration::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmTitration::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmTitration::opt1_Click);
  Bind("opt2", Ev::Click, &frmTitration::opt2_Click);
  // Any of the four data boxes enables the buttons; the ratio box does not.
  Bind("Text2", Ev::Change, &frmTitration::Designated_Change);
  Bind("Text3", Ev::Change, &frmTitration::Designated_Change);
  Bind("Text4", Ev::Change, &frmTitration::Designated_Change);
  EnterRunsOk("Text3");
  EnterRunsOk("Text4");
  EnterRunsOk("Text6");
}

void frmTitration::Form_Load() {
  ResetScreen();
  DisableOkAndPrint();
}

void frmTitration::ResetScreen() {
  ctl("opt1").SetValue(true);
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"});
  ctl("Label6").SetCaption("");
  ctl("Label3").SetCaption("Enter the volume of the acid.");
  ctl("Label5").SetCaption("Enter the volume of the base.");
  ctl("Label2").SetCaption("Enter the molarity of the acid.");
  ctl("Label4").SetCaption("Enter the molarity of the base.");
  ctl("Label7").SetCaption("Moles of base per mole of acid.");
  ctl("Label6").SetCaption("The molarity of the acid is ");
}

void frmTitration::opt1_Click() {
  ctl("Label2").SetCaption("Enter the molarity of the acid.");
  ctl("Label4").SetCaption("Enter the molarity of the base.");
  ctl("Label6").SetCaption("The molarity of the acid is ");
}

void frmTitration::opt2_Click() {
  ctl("Label2").SetCaption("Enter the molality of the acid.");
  ctl("Label4").SetCaption("Enter the molality of the base.");
  ctl("Label6").SetCaption("The molality of the acid is ");
}

// Three of the four data boxes filled, none of them zero, and a ratio above
// zero; otherwise says what is wrong and returns false.
bool frmTitration::EntriesFit() {
  int empty = 0;
  bool zero = false;
  for (const char* name : {"Text1", "Text2", "Text3", "Text4"}) {
    const Control& box = ctl(name);
    if (IsBlank(box)) ++empty;
    if (box.Text() == "0") zero = true;
  }
  if (empty == 4) {
    MsgBox("Enter data into all but 1 of the data boxes.", Icon::Information, kTitle);
    return false;
  }
  if (empty == 0) {
    MsgBox("You must leave 1 of the data boxes empty.", Icon::Information, kTitle);
    return false;
  }
  if (zero) {
    MsgBox("You must enter non-zero numbers. ", Icon::Information, kTitle);
    return false;
  }
  // The ratio is converted before it is tested: an empty box fails here.
  const Double ratio = CDbl(ctl("Text6").Text());
  if (ratio <= 0) {
    MsgBox("Enter a valid number for the ratio.", Icon::Information, kTitle);
    return false;
  }
  return true;
}

void frmTitration::cmdOk_Click() {
  Trapped(kTrapDataEntryCapsPoint, [&] {
    if (!EntriesFit()) return;
    Control& acidM = ctl("Text1");
    Control& acidV = ctl("Text2");
    Control& baseM = ctl("Text3");
    Control& baseV = ctl("Text4");
    Single Ma = 0;
    Single Va = 0;
    Single Mb = 0;
    Single Vb = 0;
    if (!IsBlank(acidM)) Ma = CSng(acidM.Text());
    if (!IsBlank(acidV)) Va = CSng(acidV.Text());
    if (!IsBlank(baseM)) Mb = CSng(baseM.Text());
    if (!IsBlank(baseV)) Vb = CSng(baseV.Text());
    const Integer R = CInt(ctl("Text6").Text());

    if (!ctl("opt1").Value()) return;  // molality has no calculation

    // Each empty box is solved in turn; with two empty, the later one stands.
    Control& label = ctl("Label6");
    Control& result = ctl("Text5");
    Control& line = ctl("Text7");
    if (IsBlank(acidM)) {
      label.SetCaption("The molarity of the acid is ");
      Ma = Vb * Mb / Va;
      result.SetText(FormatNumber(Single(Ma / R), 3));
      line.SetText("(" + Str(Mb) + " * " + Str(Vb) + ") / " + Str(Va) + ")  / " + Str(R));
    }
    if (IsBlank(acidV)) {
      label.SetCaption("The volume of the acid is ");
      Va = Vb * Mb / Ma;
      result.SetText(FormatNumber(Single(Va / R), 3));
      line.SetText("(" + Str(Mb) + " * " + Str(Vb) + ") / " + Str(Ma) + ")  / " + Str(R));
    }
    if (IsBlank(baseM)) {
      label.SetCaption("The molarity of the base is ");
      Mb = Va * Ma / Va;
      result.SetText(FormatNumber(Single(Mb / R), 3));
      line.SetText("(" + Str(Ma) + " * " + Str(Va) + ") / " + Str(Vb) + ")  / " + Str(R));
    }
    if (IsBlank(baseV)) {
      label.SetCaption("The volume of the base is ");
      // The base volume is worked out and then not used: the box shows the
      // base molarity over the ratio.
      const Single discarded = Va * Ma / Ma;
      static_cast<void>(discarded);
      result.SetText(FormatNumber(Single(Mb / R), 3));
      line.SetText("(" + Str(Ma) + " * " + Str(Va) + ") / " + Str(Mb) + ")  / " + Str(R));
    }
  });
}

void frmTitration::cmdClear_Click() {
  ResetScreen();
  ctl("Text1").SetFocus();
}

}  // namespace orv
