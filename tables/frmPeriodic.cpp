#include "tables/frmPeriodic.h"

#include <deque>
#include <span>
#include <string>
#include <vector>

namespace orv {

namespace {

// The grid in logical pixels: a button of 33 by 33 on a pitch of 34, the
// first column at 36 and the first row at 42; the two series rows stand
// apart at 292 and 326 and begin in column 5.
constexpr int kButton = 33;
constexpr int kPitch = 34;
constexpr int kGridLeft = 36;
constexpr int kGridTop = 42;
constexpr int kLanthanideTop = 292;
constexpr int kActinideTop = 326;
constexpr int kLanthanideRow = 8;
constexpr int kActinideRow = 9;

constexpr int ColumnLeft(int column) { return kGridLeft + kPitch * (column - 1); }
constexpr int RowTop(int row) {
  if (row == kLanthanideRow) return kLanthanideTop;
  if (row == kActinideRow) return kActinideTop;
  return kGridTop + kPitch * (row - 1);
}

// The elements, row by row: the column of the first caption and the
// captions of the neighbouring buttons to its right.
struct GridRun {
  int row;
  int firstColumn;
  std::string_view captions;
};

constexpr GridRun kGrid[] = {
    {1, 1, "H"},
    {1, 18, "He"},
    {2, 1, "Li Be"},
    {2, 13, "B C N O F Ne"},
    {3, 1, "Na Mg"},
    {3, 13, "Al Si P S Cl Ar"},
    {4, 1, "K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se Br Kr"},
    {5, 1, "Rb Sr Y Zr Nb Mo Tc Ru Rh Pd Ag Cd In Sn Sb Te I Xe"},
    {6, 1, "Cs Ba La Hf Ta W Re Os Ir Pt Au Hg Tl Pb Bi Po At Rn"},
    {7, 1, "Fr Ra Ac Unq Unp Unh Uns Uno Une"},
    {kLanthanideRow, 5, "Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho Er Tm Yb Lu"},
    {kActinideRow, 5, "Th Pa U Np Pu Am Cm Bk Cf Es Fm Md No Lr"},
};

// Every element button is named cmd and its caption, but for these two.
struct Renamed {
  std::string_view caption;
  std::string_view name;
};
constexpr Renamed kRenamed[] = {{"Unq", "cmdRf"}, {"Unp", "cmdHa"}};

// The class of an element gives its button's colour; elements in none of
// these lists are solids.
constexpr int kSolidColor = 0xE0E0E0;
struct ColorClass {
  std::string_view members;
  int color;
};
constexpr ColorClass kClasses[] = {
    {"H He N O F Ne Cl Ar Kr Xe Rn", 0x00FF00},                                 // gases
    {"Br Hg", 0x00C0C0},                                                        // liquids
    {"B Si Ge As Sb Te Po At", 0x8080FF},                                       // metalloids
    {"Pm Np Pu Am Cm Bk Cf Es Fm Md No Lr Unq Unp Unh Uns Uno Une", 0xFFFF00},  // synthetic
};

// The words of a blank-separated list.
std::vector<std::string_view> Words(std::string_view list) {
  std::vector<std::string_view> out;
  std::size_t at = 0;
  while (at < list.size()) {
    const std::size_t end = std::min(list.find(' ', at), list.size());
    out.push_back(list.substr(at, end - at));
    at = end + 1;
  }
  return out;
}

int ButtonColor(std::string_view caption) {
  for (const ColorClass& c : kClasses) {
    for (std::string_view member : Words(c.members)) {
      if (member == caption) return c.color;
    }
  }
  return kSolidColor;
}

// The topmost row of each column of the main table, where its group number
// stands above.
int TopRow(int column) {
  if (column == 1 || column == 18) return 1;
  if (column >= 3 && column <= 12) return 4;
  return 2;
}

constexpr std::string_view kCancelTip = "Close the screen and return to the main screen.";
constexpr std::string_view kHeadingTip = "Click on an element to see its vital data.";

// The heading and the key, in two rows, in the gap above the transition
// metals; the series names in front of the series rows; Cancel below.
constexpr ControlSpec kFixed[] = {
    {.kind = Kind::Label,
     .name = "Label28",
     .caption = "Periodic Table Of The Elements",
     .rect = {ColumnLeft(3), 38, 10 * kPitch - 1, 30},
     .toolTip = kHeadingTip,
     .flags = kLarge | kBold | kCenter},
    {.kind = Kind::Label,
     .name = "Label29",
     .caption = "Gray = solids",
     .rect = {ColumnLeft(3) + 44, 74, 100, 20},
     .flags = kBold | kCenter},
    {.kind = Kind::Label,
     .name = "Label30",
     .caption = "Liquids",
     .rect = {ColumnLeft(3) + 160, 74, 64, 20},
     .flags = kBold | kCenter},
    {.kind = Kind::Label,
     .name = "Label31",
     .caption = "Gases",
     .rect = {ColumnLeft(3) + 240, 74, 56, 20},
     .flags = kBold | kCenter},
    {.kind = Kind::Label,
     .name = "Label32",
     .caption = "Synthetic",
     .rect = {ColumnLeft(3) + 82, 98, 76, 20},
     .flags = kBold | kCenter},
    {.kind = Kind::Label,
     .name = "Label33",
     .caption = "Metalloids",
     .rect = {ColumnLeft(3) + 174, 98, 84, 20},
     .flags = kBold | kCenter},
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "*Lanthanide Series",
     .rect = {4, kLanthanideTop + 6, ColumnLeft(5) - 10, 22},
     .flags = kRightAlign},
    {.kind = Kind::Label,
     .name = "Label2",
     .caption = "#Actinide Series",
     .rect = {4, kActinideTop + 6, ColumnLeft(5) - 10, 22},
     .flags = kRightAlign},
    {.kind = Kind::Button,
     .name = "cmdCancel",
     .caption = "Cancel",
     .rect = {ColumnLeft(18) + kButton - 84, 372, 84, 30},
     .toolTip = kCancelTip},
};

// The colours of the heading and of the key's words.
struct LabelColor {
  std::string_view name;
  int color;
};
constexpr LabelColor kLabelColors[] = {
    {"Label28", 0xFFFF00}, {"Label29", 0x404040}, {"Label30", 0x00C0C0},
    {"Label31", 0x00FF00}, {"Label32", 0xFFFF00}, {"Label33", 0x0000FF},
};

constexpr int kFormWidth = ColumnLeft(18) + kButton + 20;
constexpr int kFormHeight = 414;

// The screen's controls, made once from the grid: the element buttons, the
// period numbers Label3 to Label9 at the left edge, the group numbers
// Label10 to Label27 above each column, and the fixed controls.
class PeriodicDesign {
 public:
  PeriodicDesign() {
    for (const GridRun& run : kGrid) {
      int column = run.firstColumn;
      for (std::string_view caption : Words(run.captions)) {
        std::string_view name = Keep("cmd" + std::string(caption));
        for (const Renamed& r : kRenamed) {
          if (r.caption == caption) name = r.name;
        }
        controls_.push_back({.kind = Kind::Button,
                             .name = name,
                             .caption = caption,
                             .rect = {ColumnLeft(column), RowTop(run.row), kButton, kButton},
                             .flags = kBold});
        ++column;
      }
    }
    for (int period = 1; period <= 7; ++period) {
      controls_.push_back({.kind = Kind::Label,
                           .name = Keep("Label" + std::to_string(period + 2)),
                           .caption = Keep(std::to_string(period)),
                           .rect = {8, RowTop(period) + 6, 22, 22},
                           .flags = kCenter});
    }
    for (int group = 1; group <= 18; ++group) {
      controls_.push_back({.kind = Kind::Label,
                           .name = Keep("Label" + std::to_string(group + 9)),
                           .caption = Keep(std::to_string(group)),
                           .rect = {ColumnLeft(group), RowTop(TopRow(group)) - 18, kButton, 16},
                           .flags = kCenter | kSmall});
    }
    controls_.insert(controls_.end(), std::begin(kFixed), std::end(kFixed));
  }
  PeriodicDesign(const PeriodicDesign&) = delete;
  PeriodicDesign& operator=(const PeriodicDesign&) = delete;

  std::span<const ControlSpec> controls() const { return controls_; }

 private:
  std::string_view Keep(std::string text) { return texts_.emplace_back(std::move(text)); }

  std::deque<std::string> texts_;  // names and captions made here; a deque keeps them in place
  std::vector<ControlSpec> controls_;
};

std::span<const ControlSpec> PeriodicControls() {
  static const PeriodicDesign design;
  return design.controls();
}

}  // namespace

frmPeriodic::frmPeriodic(Program& program)
    : Form(program, {"frmPeriodic", "", kFormWidth, kFormHeight, kFormGrayGround}, PeriodicControls()) {
  for (const auto& c : controls()) {
    if (c->kind() == Kind::Button && c->name() != "cmdCancel") c->SetBackColor(ButtonColor(c->Caption()));
  }
  for (const LabelColor& l : kLabelColors) ctl(l.name).SetForeColor(l.color);

  Bind("Form", Ev::KeyDown, &frmPeriodic::Form_KeyDown);
  Bind("cmdCancel", Ev::Click, &frmPeriodic::cmdCancel_Click);
  // Of the element buttons only these ten have a routine; a click on any
  // other presses it and nothing follows.
  Bind("cmdH", Ev::Click, &frmPeriodic::cmdH_Click);
  Bind("cmdHe", Ev::Click, &frmPeriodic::cmdHe_Click);
  Bind("cmdLi", Ev::Click, &frmPeriodic::cmdLi_Click);
  Bind("cmdBe", Ev::Click, &frmPeriodic::cmdBe_Click);
  Bind("cmdB", Ev::Click, &frmPeriodic::cmdB_Click);
  Bind("cmdC", Ev::Click, &frmPeriodic::cmdC_Click);
  Bind("cmdN", Ev::Click, &frmPeriodic::cmdN_Click);
  Bind("cmdO", Ev::Click, &frmPeriodic::cmdO_Click);
  Bind("cmdF", Ev::Click, &frmPeriodic::cmdF_Click);
  Bind("cmdNe", Ev::Click, &frmPeriodic::cmdNe_Click);
}

void frmPeriodic::Form_KeyDown(int& KeyCode, int /*Shift*/) {
  if (KeyCode == kKeyF1) ShowForm("frmHelp");
}

void frmPeriodic::cmdCancel_Click() { Unload(); }

void frmPeriodic::ShowElement(std::string_view button) {
  Periodic(program()).SelectedSymbol = ctl(button).Caption();
  ShowForm("frmPeriodicData");
}

void frmPeriodic::cmdH_Click() { ShowElement("cmdH"); }
void frmPeriodic::cmdHe_Click() { ShowElement("cmdHe"); }
void frmPeriodic::cmdLi_Click() { ShowElement("cmdLi"); }
void frmPeriodic::cmdBe_Click() { ShowElement("cmdBe"); }
void frmPeriodic::cmdB_Click() { ShowElement("cmdB"); }
void frmPeriodic::cmdC_Click() { ShowElement("cmdC"); }
void frmPeriodic::cmdN_Click() { ShowElement("cmdN"); }
void frmPeriodic::cmdO_Click() { ShowElement("cmdO"); }
void frmPeriodic::cmdF_Click() { ShowElement("cmdF"); }
void frmPeriodic::cmdNe_Click() { ShowElement("cmdNe"); }

}  // namespace orv
