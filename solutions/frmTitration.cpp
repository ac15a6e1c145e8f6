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
    {Kind::Frame, "Frame1", "Select one of the following", {16, 8, 448, 56}},
    {Kind::Option, "opt1", "Molarity", {16, 24, 140, 24}, {}, "Frame1"},
    {Kind::Option, "opt2", "Molality", {200, 24, 140, 24}, {}, "Frame1"},
    {Kind::Label, "Label1", "Leave one of the first four boxes empty.", {16, 76, 448, 22}, {}, {}, -1, kBold},
    {Kind::Label, "Label2", "", {16, 112, 244, 22}},
    {Kind::TextBox, "Text1", "", {264, 108, 200, 26}, kMolarityTip, {}, -1, 0, &kAcidFilter},
    {Kind::Label, "Label3", "", {16, 148, 244, 22}},
    {Kind::TextBox, "Text2", "", {264, 144, 200, 26}, kVolumeTip, {}, -1, 0, &kAcidFilter},
    {Kind::Label, "Label4", "", {16, 184, 244, 22}},
    {Kind::TextBox, "Text3", "", {264, 180, 200, 26}, kMolarityTip, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label5", "", {16, 220, 244, 22}},
    {Kind::TextBox, "Text4", "", {264, 216, 200, 26}, kVolumeTip, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label7", "", {16, 256, 244, 22}},
    {Kind::TextBox,
     "Text6",
     "",
     {264, 252, 200, 26},
     "Enter a number that represents the moles of base for each mole of acid.",
     {},
     -1,
     0,
     &kFilterPoint},
    // A thin sunken rule between the entries and the answer.
    {Kind::Label, "Line1", "", {16, 292, 448, 2}, {}, {}, -1, kBorder},
    {Kind::Label, "Label6", "", {16, 310, 244, 22}},
    {Kind::TextBox, "Text5", "", {264, 306, 200, 26}, {}, {}, -1, kDisabled},
    {Kind::TextBox, "Text7", "", {16, 342, 448, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {16, 386, 80, 30}, "Press to calculate your answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {104, 386, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {192, 386, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {280, 386, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {432, 388, 32, 26}, "Press for help", {}, -1, kSmall},
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
  for (const char* box : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}) ctl(box).SetText("");
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

void frmTitration::cmdOk_Click() {
  Trapped(kTrapDataEntryCapsPoint, [&] {
    Control& acidM = ctl("Text1");
    Control& acidV = ctl("Text2");
    Control& baseM = ctl("Text3");
    Control& baseV = ctl("Text4");
    const Control* boxes[] = {&acidM, &acidV, &baseM, &baseV};
    int empty = 0;
    bool zero = false;
    for (const Control* box : boxes) {
      if (IsBlank(*box)) ++empty;
      if (box->Text() == "0") zero = true;
    }
    if (empty == 4) {
      MsgBox("Enter data into all but 1 of the data boxes.", Icon::Information, kTitle);
      return;
    }
    if (empty == 0) {
      MsgBox("You must leave 1 of the data boxes empty.", Icon::Information, kTitle);
      return;
    }
    if (zero) {
      MsgBox("You must enter non-zero numbers. ", Icon::Information, kTitle);
      return;
    }
    // The ratio is converted before it is tested: an empty box fails here.
    const Double ratio = CDbl(ctl("Text6").Text());
    if (ratio <= 0) {
      MsgBox("Enter a valid number for the ratio.", Icon::Information, kTitle);
      return;
    }
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
