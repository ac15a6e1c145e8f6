#include "solutions/frmFreezing.h"

#include "data/padded_row.h"
#include "data/store.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "The freezing point and the boiling point of a solution can be changed by adding a quantity of a solute to it. "
    "How much the freezing point and the boiling point change depends upon the substance involved. The molality of "
    "the substance is one factor in determining the amount of change. The other factor is the freezing point "
    "depression and the boiling point elevation of the substance.  The elevation or depression times the molality "
    "determine the total temperature change. ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {16, 8, 528, 56}},
    {.kind = Kind::Option,
     .name = "opt1",
     .caption = "Freezing point",
     .rect = {16, 24, 160, 24},
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt2",
     .caption = "Boiling point",
     .rect = {220, 24, 160, 24},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "Label6",
     .caption = " Substance                        F.P.           Depression         B.P.       Elevation",
     .rect = {16, 74, 528, 22}},
    {.kind = Kind::ListBox, .name = "lstList1", .rect = {16, 98, 528, 150}, .flags = kFixedPitch},
    {.kind = Kind::Label,
     .name = "Label2",
     .caption = "Enter one of the above temperature changes.",
     .rect = {16, 266, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {324, 262, 220, 26},
     .toolTip = "Enter a temperature change.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label3",
     .caption = "Enter the original temperature in Celsius",
     .rect = {16, 302, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {324, 298, 220, 26},
     .toolTip = "Enter a valid temperature.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .caption = "Enter the molality", .rect = {16, 338, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {324, 334, 220, 26},
     .toolTip = "Enter a valid molality.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label5", .caption = "The final temperature is ", .rect = {16, 378, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {324, 374, 156, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label1", .caption = "Celsius", .rect = {488, 378, 56, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {16, 410, 528, 26}, .flags = kDisabled},
    OkButton({16, 454, 80, 30}, kOkTip),
    ClearButton({104, 454, 80, 30}),
    CancelButton({192, 454, 80, 30}),
    PrintButton({280, 454, 80, 30}),
    HelpButton({512, 456, 32, 26}),
};

// The list's columns: the compound's name, then the freezing point, its
// depression constant, the boiling point and its elevation constant.
constexpr PaddedColumn kColumns[] = {
    {"Compound", "000000000000", "0000000000000", "   "},
    {"FreezingPoint", "000.00", "Standard", "   "},
    {"FPDepression", "00000", "Standard", "   "},
    {"BoilingPoint", "00000", "Standard", "   "},
    {"BPElevation", "00000000", "Standard"},
};

}  // namespace

frmFreezing::frmFreezing(Program& program)
    : CalculatorScreen(program, {"frmFreezing", "Freezing Point / Boiling Point Changes", 560, 500}, kControls,
                       {"frmSolutions", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmFreezing::Form_Load);
  Bind("cmdOk", Ev::Click, &frmFreezing::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmFreezing::cmdClear_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
  ctl("Label6").SetColumnHeader("lstList1", ColumnStarts(kColumns));
}

// Filling the list is not trapped: a failure there ends the program.
void frmFreezing::Form_Load() {
  HideForm("frmSolutions");
  ctl("opt1").SetValue(true);
  data::DataStore& store = Store(program());
  data::OpenRecordset(store, "SELECT *  FROM Temperatures");
  data::Recordset& rs = data::CurrentRecordset(store);
  rs.MoveFirst();
  Control& list = ctl("lstList1");
  while (!rs.AtEnd()) {
    list.AddItem(PaddedRow(rs, kColumns));
    rs.MoveNext();
  }
  data::CloseRecordset(store);
  ctl("Text4").SetText("");
  DisableOkAndPrint();
}

void frmFreezing::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const std::string& change = ctl("Text1").Text();
    const std::string& original = ctl("Text2").Text();
    const std::string& molality = ctl("Text3").Text();
    if (change.empty() || original.empty() || molality.empty()) {
      MsgBox("You must enter data into all three boxes.", Icon::None, kTitle);
      return;
    }
    // The original temperature may be 0.
    if (change == "0" || molality == "0") {
      MsgBox("You must enter valid data into all boxes.", Icon::None, kTitle);
      return;
    }
    const Single dt = CSng(change);
    const Single t = CSng(original);
    const Single m = CSng(molality);
    // The boiling point mode has no calculation.
    if (ctl("opt1").Value()) {
      const Single final = t - (dt * m);
      ctl("Text4").SetText(FormatNumber(final, 3));
      ctl("Text5").SetText(Str(t) + " - (" + Str(dt) + " * " + Str(m) + ")");
    }
  });
}

void frmFreezing::cmdClear_Click() {
  ctl("lstList1").SetListIndex(-1);
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
