#include "atoms/fmrMoles.h"

#include "data/store.h"

namespace orv {

namespace {

constexpr std::string_view kMoles = "Moles";

// Two columns on the left (the amount, the list, the weight), the units and
// the answer on the right, the buttons in a row below.
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "lblMoles1", .caption = "Enter an amount", .rect = {16, 20, 108, 22}},
    {.kind = Kind::TextBox,
     .name = "txtMoles1",
     .rect = {128, 16, 142, 26},
     .toolTip = "Enter a number of grams, atoms or moles for elements only.",
     .filter = &kFilterPlusPointE},
    {.kind = Kind::Label, .name = "lblMoles2", .caption = "Select an element", .rect = {16, 54, 254, 22}},
    {.kind = Kind::ListBox,
     .name = "lstList1",
     .rect = {16, 78, 254, 176},
     .toolTip = "Select an element whose weight you want to work with.",
     .flags = kFixedPitch},
    {.kind = Kind::Label, .name = "lblMoles3", .caption = "At. Wt.", .rect = {16, 270, 108, 22}},
    {.kind = Kind::TextBox,
     .name = "txtMoles2",
     .rect = {128, 266, 142, 26},
     .toolTip = "This is the atomic weight of the element you chose.",
     .flags = kDisabled},

    {.kind = Kind::Frame,
     .name = "Frame1",
     .caption = "From",
     .rect = {290, 10, 134, 118},
     .toolTip = "Select a unit for the mass you entered."},
    {.kind = Kind::Option, .name = "optMoles1", .caption = "Moles", .rect = {14, 28, 106, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "optMoles2", .caption = "Grams", .rect = {14, 56, 106, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "optMoles3", .caption = "Atoms", .rect = {14, 84, 106, 24}, .container = "Frame1"},
    {.kind = Kind::Frame,
     .name = "Frame2",
     .caption = "To",
     .rect = {434, 10, 134, 118},
     .toolTip = "Select the unit you want to convert the mass to."},
    {.kind = Kind::Option,
     .name = "optMoles4",
     .caption = "Moles",
     .rect = {14, 28, 106, 24},
     .toolTip = "Select what unit you want to convert the mass to.",
     .container = "Frame2"},
    {.kind = Kind::Option, .name = "optMoles5", .caption = "Grams", .rect = {14, 56, 106, 24}, .container = "Frame2"},
    {.kind = Kind::Option, .name = "optMoles6", .caption = "Atoms", .rect = {14, 84, 106, 24}, .container = "Frame2"},

    {.kind = Kind::Label, .name = "lblMoles4", .caption = "The result is", .rect = {290, 146, 278, 22}},
    {.kind = Kind::TextBox,
     .name = "txtMoles3",
     .rect = {290, 170, 184, 26},
     .toolTip = "This is your final answer.",
     .flags = kDisabled},
    {.kind = Kind::Label, .name = "lblMoles5", .rect = {482, 172, 86, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {290, 208, 278, 26}, .flags = kDisabled},

    OkButton({16, 312, 84, 30}, kOkTip),
    {.kind = Kind::Button,
     .name = "cmdClear",
     .caption = "Clear",
     .rect = {108, 312, 84, 30},
     .toolTip = "Clear all entries to start over."},
    {.kind = Kind::Button,
     .name = "cmdCancel",
     .caption = "Cancel",
     .rect = {200, 312, 84, 30},
     .toolTip = "Close this screen and return to the main screen."},
    PrintButton({292, 312, 84, 30}),
    HelpButton({536, 314, 32, 26}),
};

constexpr std::string_view kHelp =
    "A mole is a convenient unit of measurement in chemistry. It is equivalent to 1 gram molecular weight of that "
    "element. It is also equal to 6.02E23 atoms of that element. For example, 1 mole of carbon is equal to 12.011 "
    "grams of carbon. 1 mole of carbon is also equal to 6.02E23 atoms of carbon. The three are equal to each other. "
    "55.847 grams of iron is equal to 1 mole and equal to 6.02E23 atoms. 6.02E23 atoms of hydrogen is equal to 1.007 "
    "grams and equal to 1 mole. 1 dozen is equal to 12 no matter what you are talking about. The weight of that 12 "
    "depends upon what objects you have. The same is true with moles, their weight and 6.02E23.";

// Avogadro's number as the conversions compute with it.
constexpr double kAvogadro = 6.023E+23;

constexpr const char* kOptions[] = {"optMoles1", "optMoles2", "optMoles3", "optMoles4", "optMoles5", "optMoles6"};

// A text of fixed width: cut at that width or padded with blanks on the right.
std::string FixedWidth(const std::string& text, int width) {
  std::string out = Left(text, width);
  out.append(static_cast<std::size_t>(width - CharCount(out)), ' ');
  return out;
}

}  // namespace

fmrMoles::fmrMoles(Program& program)
    : CalculatorScreen(program, {"fmrMoles", "Mole Calculations - Elements Only", 584, 358}, kControls,
                       {"frmMoleChoice", "txtMoles1", kHelp}) {
  Bind("Form", Ev::Load, &fmrMoles::Form_Load);
  Bind("cmdOk", Ev::Click, &fmrMoles::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &fmrMoles::cmdClear_Click);
  Bind("lstList1", Ev::Click, &fmrMoles::lstList1_Click);
  Bind("optMoles1", Ev::Click, &fmrMoles::optMoles1_Click);
  Bind("optMoles2", Ev::Click, &fmrMoles::optMoles2_Click);
  Bind("optMoles3", Ev::Click, &fmrMoles::optMoles3_Click);
  Bind("txtMoles1", Ev::Change, &fmrMoles::txtMoles1_Change);
  Bind("txtMoles1", Ev::KeyDown, &fmrMoles::txtMoles1_KeyDown);
}

void fmrMoles::Form_Load() {
  Trapped(kTrapWordsInfo, [&] {
    DisableOkAndPrint();
    for (const char* name : kOptions) ctl(name).SetEnabled(false);
    data::DataStore& store = Store(program());
    data::OpenRecordset(store, "SELECT Symbol, ElementName FROM GeneralInfo");
    data::Recordset& rs = data::CurrentRecordset(store);
    rs.MoveFirst();
    Control& lstList1 = ctl("lstList1");
    while (!rs.AtEnd()) {
      lstList1.AddItem(FixedWidth(Str(rs.Field("Symbol")), 2) + "  " + FixedWidth(Str(rs.Field("ElementName")), 12));
      rs.MoveNext();
    }
    data::CloseRecordset(store);
    ctl("Text1").SetText("");
  });
}

void fmrMoles::lstList1_Click() {
  Trapped({"List Selection Error", Icon::Information, kTitle}, [&] {
    const int index = ctl("lstList1").ListIndex();
    data::DataStore& store = Store(program());
    data::OpenRecordset(store, "SELECT AtomicWeight  FROM GeneralInfo");
    data::Recordset& rs = data::CurrentRecordset(store);
    rs.MoveFirst();
    for (int i = 1; i <= index; ++i) rs.MoveNext();
    ctl("txtMoles2").SetText(Str(rs.Field("AtomicWeight")));
    data::CloseRecordset(store);
  });
}

// Choosing a From unit disables the To button of the same unit; nothing
// enables it again but an edit of the amount or Clear.
void fmrMoles::optMoles1_Click() { ctl("optMoles4").SetEnabled(false); }
void fmrMoles::optMoles2_Click() { ctl("optMoles5").SetEnabled(false); }
void fmrMoles::optMoles3_Click() { ctl("optMoles6").SetEnabled(false); }

void fmrMoles::txtMoles1_Change() {
  ctl("cmdOk").SetEnabled(true);
  ctl("cmdPrint").SetEnabled(true);
  for (const char* name : kOptions) ctl(name).SetEnabled(true);
}

void fmrMoles::txtMoles1_KeyDown(int& KeyCode, int /*Shift*/) {
  if (KeyCode == kKeyReturn) cmdOk_Click();
  if (KeyCode == kKeyF1) ShowForm("frmHelp");
}

void fmrMoles::cmdOk_Click() {
  Trapped(kTrapDataEntryCaps, [&] {
    Control& txtMoles1 = ctl("txtMoles1");
    Control& txtMoles2 = ctl("txtMoles2");
    Control& txtMoles3 = ctl("txtMoles3");
    if (txtMoles1.Text() == "0" || txtMoles1.Text().empty()) {
      MsgBox("You must enter a value.", Icon::None, kMoles);
      return;
    }
    const bool fromMoles = ctl("optMoles1").Value();
    const bool fromGrams = ctl("optMoles2").Value();
    const bool fromAtoms = ctl("optMoles3").Value();
    if (!fromMoles && !fromGrams && !fromAtoms) {
      MsgBox("You must make a selection in the From category.", Icon::None, kMoles);
      return;
    }
    const bool toMoles = ctl("optMoles4").Value();
    const bool toGrams = ctl("optMoles5").Value();
    const bool toAtoms = ctl("optMoles6").Value();
    if (!toMoles && !toGrams && !toAtoms) {
      MsgBox("You must make a selection in the To category.", Icon::None, kMoles);
      return;
    }
    if (ctl("lstList1").ListIndex() == -1) {
      MsgBox("You must select an element from the list.", Icon::Information, kMoles);
      return;
    }
    const std::string& A = txtMoles1.Text();
    const std::string& W = txtMoles2.Text();
    // Each conversion shows its answer in a form of its own; from atoms,
    // and from a unit to itself, nothing is computed.
    if (fromMoles && toGrams) {
      ctl("optMoles4").SetEnabled(false);
      txtMoles3.SetText(Str(Double(CDbl(A) * CDbl(W))));
      ctl("Text1").SetText(A + "   X   " + W);
      ctl("lblMoles5").SetCaption("Grams");
    } else if (fromMoles && toAtoms) {
      ctl("optMoles4").SetEnabled(false);
      txtMoles3.SetText(Format(Double(CDbl(A) * kAvogadro), "Scientific"));
      ctl("Text1").SetText(A + "   X   " + "6.023E+23  =  " + txtMoles3.Text());
      ctl("lblMoles5").SetCaption("Atoms");
    } else if (fromGrams && toMoles) {
      ctl("optMoles5").SetEnabled(false);
      txtMoles3.SetText(FormatNumber(Double(CDbl(A) / CDbl(W)), 3));
      ctl("Text1").SetText(A + "   /   " + W);
      ctl("lblMoles5").SetCaption("Moles");
    } else if (fromGrams && toAtoms) {
      ctl("optMoles5").SetEnabled(false);
      txtMoles3.SetText(Format(Double(CDbl(A) / CDbl(W) * kAvogadro), "Scientific"));
      ctl("Text1").SetText(A + "   /   " + W + " x  6.023E23");
      ctl("lblMoles5").SetCaption("Atoms");
    }
  });
}

void fmrMoles::cmdClear_Click() {
  ctl("lstList1").SetListIndex(-1);
  EmptyBoxes({"txtMoles1", "txtMoles2", "txtMoles3"});
  ctl("txtMoles1").SetFocus();
  for (const char* name : kOptions) ctl(name).SetEnabled(true);
  ctl("lblMoles5").SetCaption("");
  ctl("Text1").SetText("");
}

}  // namespace orv
