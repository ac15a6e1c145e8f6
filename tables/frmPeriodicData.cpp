#include "tables/frmPeriodicData.h"

#include "data/store.h"
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
    {.kind = Kind::Label, .name = "Label1", .caption = "Name", .rect = LabelAt(kLeftX, 0)},
    {.kind = Kind::TextBox, .name = "Text1", .rect = BoxAt(kLeftX, 0), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label2", .caption = "Symbol", .rect = LabelAt(kLeftX, 1)},
    {.kind = Kind::TextBox, .name = "Text2", .rect = BoxAt(kLeftX, 1), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label3", .caption = "Atomic Number", .rect = LabelAt(kLeftX, 2)},
    {.kind = Kind::TextBox, .name = "Text3", .rect = BoxAt(kLeftX, 2), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label4", .caption = "Atomic Weight", .rect = LabelAt(kLeftX, 3)},
    {.kind = Kind::TextBox, .name = "Text4", .rect = BoxAt(kLeftX, 3), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .caption = "State", .rect = LabelAt(kLeftX, 4)},
    {.kind = Kind::TextBox, .name = "Text5", .rect = BoxAt(kLeftX, 4), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label6", .caption = "Charge", .rect = LabelAt(kLeftX, 5)},
    {.kind = Kind::TextBox, .name = "Text6", .rect = BoxAt(kLeftX, 5), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .caption = "Configuration", .rect = LabelAt(kLeftX, 6)},
    {.kind = Kind::TextBox, .name = "Text7", .rect = BoxAt(kLeftX, 6), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label8", .caption = "Group Name", .rect = LabelAt(kRightX, 0)},
    {.kind = Kind::TextBox, .name = "Text8", .rect = BoxAt(kRightX, 0), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label9", .caption = "Protons", .rect = LabelAt(kRightX, 1)},
    {.kind = Kind::TextBox, .name = "Text9", .rect = BoxAt(kRightX, 1), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label10", .caption = "Electrons", .rect = LabelAt(kRightX, 2)},
    {.kind = Kind::TextBox, .name = "Text10", .rect = BoxAt(kRightX, 2), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label11", .caption = "Neutrons", .rect = LabelAt(kRightX, 3)},
    {.kind = Kind::TextBox, .name = "Text11", .rect = BoxAt(kRightX, 3), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label12", .caption = "Density", .rect = LabelAt(kRightX, 4)},
    {.kind = Kind::TextBox, .name = "Text12", .rect = BoxAt(kRightX, 4), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label13", .caption = "Freezing Point", .rect = LabelAt(kRightX, 5)},
    {.kind = Kind::TextBox, .name = "Text13", .rect = BoxAt(kRightX, 5), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label14", .caption = "Boiling Point", .rect = LabelAt(kRightX, 6)},
    {.kind = Kind::TextBox, .name = "Text14", .rect = BoxAt(kRightX, 6), .flags = kDisabled},
    PrintButton({kRightX + kLabelW + kBoxW - 2 * 84 - 8, kTop + 7 * kRowH + 14, 84, 30}),
    {.kind = Kind::Button,
     .name = "cmdCancel",
     .caption = "Cancel",
     .rect = {kRightX + kLabelW + kBoxW - 84, kTop + 7 * kRowH + 14, 84, 30}},
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
