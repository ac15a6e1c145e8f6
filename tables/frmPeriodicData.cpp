#include "tables/frmPeriodicData.h"

#include "data/store.h"
#include "shell/screens/module1.h"
#include "tables/frmPeriodic.h"

namespace orv {

namespace {

// Two columns of seven labelled boxes: the record on the left, the group
// and the counts and measures on the right; the buttons below.
constexpr int kLabelW = 104;
constexpr int kBoxW = 190;
constexpr int kRowH = 32;
constexpr int kTop = 16;
constexpr int kLeftX = 16;
constexpr int kRightX = kLeftX + kLabelW + kBoxW + 24;

constexpr Rect LabelAt(int x, int row) { return {x, kTop + row * kRowH + 2, kLabelW - 6, 22}; }
constexpr Rect BoxAt(int x, int row) { return {x + kLabelW, kTop + row * kRowH, kBoxW, 26}; }

constexpr ControlSpec kControls[] = {
    {Kind::Label, "Label1", "Name", LabelAt(kLeftX, 0)},
    {Kind::TextBox, "Text1", "", BoxAt(kLeftX, 0), {}, {}, -1, kDisabled},
    {Kind::Label, "Label2", "Symbol", LabelAt(kLeftX, 1)},
    {Kind::TextBox, "Text2", "", BoxAt(kLeftX, 1), {}, {}, -1, kDisabled},
    {Kind::Label, "Label3", "Atomic Number", LabelAt(kLeftX, 2)},
    {Kind::TextBox, "Text3", "", BoxAt(kLeftX, 2), {}, {}, -1, kDisabled},
    {Kind::Label, "Label4", "Atomic Weight", LabelAt(kLeftX, 3)},
    {Kind::TextBox, "Text4", "", BoxAt(kLeftX, 3), {}, {}, -1, kDisabled},
    {Kind::Label, "Label5", "State", LabelAt(kLeftX, 4)},
    {Kind::TextBox, "Text5", "", BoxAt(kLeftX, 4), {}, {}, -1, kDisabled},
    {Kind::Label, "Label6", "Charge", LabelAt(kLeftX, 5)},
    {Kind::TextBox, "Text6", "", BoxAt(kLeftX, 5), {}, {}, -1, kDisabled},
    {Kind::Label, "Label7", "Configuration", LabelAt(kLeftX, 6)},
    {Kind::TextBox, "Text7", "", BoxAt(kLeftX, 6), {}, {}, -1, kDisabled},
    {Kind::Label, "Label8", "Group Name", LabelAt(kRightX, 0)},
    {Kind::TextBox, "Text8", "", BoxAt(kRightX, 0), {}, {}, -1, kDisabled},
    {Kind::Label, "Label9", "Protons", LabelAt(kRightX, 1)},
    {Kind::TextBox, "Text9", "", BoxAt(kRightX, 1), {}, {}, -1, kDisabled},
    {Kind::Label, "Label10", "Electrons", LabelAt(kRightX, 2)},
    {Kind::TextBox, "Text10", "", BoxAt(kRightX, 2), {}, {}, -1, kDisabled},
    {Kind::Label, "Label11", "Neutrons", LabelAt(kRightX, 3)},
    {Kind::TextBox, "Text11", "", BoxAt(kRightX, 3), {}, {}, -1, kDisabled},
    {Kind::Label, "Label12", "Density", LabelAt(kRightX, 4)},
    {Kind::TextBox, "Text12", "", BoxAt(kRightX, 4), {}, {}, -1, kDisabled},
    {Kind::Label, "Label13", "Freezing Point", LabelAt(kRightX, 5)},
    {Kind::TextBox, "Text13", "", BoxAt(kRightX, 5), {}, {}, -1, kDisabled},
    {Kind::Label, "Label14", "Boiling Point", LabelAt(kRightX, 6)},
    {Kind::TextBox, "Text14", "", BoxAt(kRightX, 6), {}, {}, -1, kDisabled},
    {Kind::Button, "cmdPrint", "Print", {kRightX + kLabelW + kBoxW - 2 * 84 - 8, kTop + 7 * kRowH + 14, 84, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {kRightX + kLabelW + kBoxW - 84, kTop + 7 * kRowH + 14, 84, 30}},
};

constexpr int kFormWidth = kRightX + kLabelW + kBoxW + 16;
constexpr int kFormHeight = kTop + 7 * kRowH + 14 + 30 + 16;

constexpr Form::Trap kPeriodicDataTrap{"", Icon::Information, "Periodic Data"};

// A field written into a box as it stands: an absent value cannot be.
std::string Shown(const Variant& field) {
  if (field.IsNull()) Raise(ErrorCode::InvalidUseOfNull);
  return Str(field);
}

// A field compared with the empty text: an absent value never differs, a
// number always does.
bool DiffersFromEmpty(const Variant& field) {
  if (field.IsNull() || field.IsEmpty()) return false;
  return !field.IsText() || !field.Text().empty();
}

}  // namespace

frmPeriodicData::frmPeriodicData(Program& program)
    : Form(program, {"frmPeriodicData", "Periodic Table Data", kFormWidth, kFormHeight}, kControls) {
  Bind("Form", Ev::Load, &frmPeriodicData::Form_Load);
  Bind("cmdPrint", Ev::Click, &frmPeriodicData::cmdPrint_Click);
  Bind("cmdCancel", Ev::Click, &frmPeriodicData::cmdCancel_Click);
}

// A failure anywhere ends the filling where it stands, with the record set
// left open.
void frmPeriodicData::Form_Load() {
  Trapped(kPeriodicDataTrap, [&] {
    data::DataStore& store = Store(program());
    data::OpenRecordset(store, "SELECT * FROM GeneralInfo WHERE Symbol = '" + Periodic(program()).SelectedSymbol + "'");
    data::Recordset& rs = data::CurrentRecordset(store);
    ctl("Text1").SetText(Shown(rs.Field("ElementName")));
    ctl("Text2").SetText(Shown(rs.Field("Symbol")));
    ctl("Text3").SetText(Shown(rs.Field("AtomicNumber")));
    ctl("Text4").SetText(Shown(rs.Field("AtomicWeight")));
    ctl("Text5").SetText(Shown(rs.Field("State")));
    if (const Variant charge = rs.Field("Charge"); DiffersFromEmpty(charge)) ctl("Text6").SetText(Str(charge));
    if (const Variant config = rs.Field("Configuration"); DiffersFromEmpty(config)) ctl("Text7").SetText(Str(config));
    ctl("Text8").SetText(Shown(rs.Field("GroupName")));
    // Protons and electrons of the neutral atom are its atomic number; the
    // neutrons follow from the mean atomic weight rounded to a whole number.
    ctl("Text9").SetText(Shown(rs.Field("AtomicNumber")));
    ctl("Text10").SetText(Shown(rs.Field("AtomicNumber")));
    const std::string massNumber = FormatNumber(CDbl(rs.Field("AtomicWeight")), 0);
    ctl("Text11").SetText(Str(Double(CDbl(massNumber) - CDbl(rs.Field("AtomicNumber")))));
    if (const Variant density = rs.Field("Density"); DiffersFromEmpty(density)) ctl("Text12").SetText(Str(density));
    if (const Variant fp = rs.Field("FreezingPoint"); DiffersFromEmpty(fp)) ctl("Text13").SetText(Str(fp));
    if (const Variant bp = rs.Field("BoilingPoint"); DiffersFromEmpty(bp)) ctl("Text14").SetText(Str(bp));
    data::CloseRecordset(store);
  });
}

void frmPeriodicData::cmdPrint_Click() { PrintForm(); }

void frmPeriodicData::cmdCancel_Click() { Unload(); }

}  // namespace orv
