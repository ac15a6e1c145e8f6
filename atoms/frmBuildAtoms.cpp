#include "atoms/frmBuildAtoms.h"

#include "data/store.h"
#include "shell/picture.h"
#include "shell/screen_frame.h"

namespace orv {

namespace {

constexpr Color kRed = Rgb(255, 0, 0);
constexpr Color kBlue = Rgb(0, 0, 255);
constexpr Color kYellow = Rgb(255, 255, 0);

constexpr int kRowX = 326;
constexpr int kBoxX = 432;
constexpr Rect CountLabel(int row) { return {kRowX, 20 + row * 40, 100, 22}; }
constexpr Rect CountBox(int row) { return {kBoxX, 16 + row * 40, 176, 26}; }
// The buttons stand in a grid of four columns; the last row a little apart.
constexpr Rect Button(int column, int row) {
  return {16 + column * 150, 304 + row * 38 + (row == 2 ? 10 : 0), 142, 30};
}

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Picture, .name = "Picture1", .rect = {16, 16, 292, 270}},
    {.kind = Kind::Label, .name = "Label1", .caption = "The atom is", .rect = CountLabel(0)},
    {.kind = Kind::TextBox, .name = "Text1", .rect = CountBox(0), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label2", .caption = "Protons", .rect = CountLabel(1)},
    {.kind = Kind::TextBox, .name = "Text2", .rect = CountBox(1), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label3", .caption = "Neutrons", .rect = CountLabel(2)},
    {.kind = Kind::TextBox, .name = "Text3", .rect = CountBox(2), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label4", .caption = "Electrons", .rect = CountLabel(3)},
    {.kind = Kind::TextBox, .name = "Text4", .rect = CountBox(3), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .caption = "Weight", .rect = CountLabel(4)},
    {.kind = Kind::TextBox, .name = "Text5", .rect = CountBox(4), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label6", .caption = "Energy Levels", .rect = CountLabel(5)},
    {.kind = Kind::TextBox, .name = "Text6", .rect = CountBox(5), .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .caption = "Charge", .rect = CountLabel(6)},
    {.kind = Kind::TextBox, .name = "Text7", .rect = CountBox(6), .flags = kDisabled},

    {.kind = Kind::Button, .name = "cmdProton", .caption = "Add Proton", .rect = Button(0, 0)},
    {.kind = Kind::Button, .name = "cmdNeutrons", .caption = "Add Neutron", .rect = Button(1, 0), .flags = kDisabled},
    {.kind = Kind::Button, .name = "cmdElectrons", .caption = "Add Electron", .rect = Button(2, 0), .flags = kDisabled},
    {.kind = Kind::Button,
     .name = "cmdEnergyLevel",
     .caption = "Add Energy Level",
     .rect = Button(3, 0),
     .flags = kDisabled},
    {.kind = Kind::Button,
     .name = "cmdRemoveProton",
     .caption = "Remove Proton",
     .rect = Button(0, 1),
     .flags = kDisabled},
    {.kind = Kind::Button,
     .name = "cmdRemoveNeutron",
     .caption = "Remove Neutron",
     .rect = Button(1, 1),
     .flags = kDisabled},
    {.kind = Kind::Button,
     .name = "cmdRemoveElectron",
     .caption = "Remove Electron",
     .rect = Button(2, 1),
     .flags = kDisabled},
    {.kind = Kind::Button,
     .name = "cmdRemoveEnergyLevel",
     .caption = "Remove Energy Level",
     .rect = Button(3, 1),
     .flags = kDisabled},
    {.kind = Kind::Button, .name = "cmdClear", .caption = "Clear", .rect = Button(0, 2), .flags = kDisabled},
    {.kind = Kind::Button, .name = "cmdPrint", .caption = "Print", .rect = Button(1, 2), .flags = kDisabled},
    {.kind = Kind::Button, .name = "cmdTutorial", .caption = "Help", .rect = Button(2, 2)},
    {.kind = Kind::Button, .name = "cmdClose", .caption = "Close", .rect = Button(3, 2), .flags = kCancel},
};

// Every button but cmdProton, cmdTutorial and cmdClose.
constexpr std::string_view kAtomButtons[] = {"cmdNeutrons",          "cmdElectrons",     "cmdEnergyLevel",
                                             "cmdRemoveProton",      "cmdRemoveNeutron", "cmdRemoveElectron",
                                             "cmdRemoveEnergyLevel", "cmdPrint",         "cmdClear"};

// The five proton spots and the four neutron spots of the nucleus.
struct Point {
  double x;
  double y;
};
constexpr Point kProtonSpots[5] = {{0, 0}, {0.05, -0.05}, {0.05, 0.05}, {-0.05, 0.05}, {-0.05, -0.05}};
constexpr Point kNeutronSpots[4] = {{0.05, 0}, {0, 0.05}, {-0.05, 0}, {0, -0.05}};

// The first and last electron of each shell (1 to 7).
struct Shell {
  int first;
  int last;
};
constexpr Shell kShells[7] = {{1, 2}, {3, 10}, {11, 18}, {19, 36}, {37, 54}, {55, 86}, {87, 109}};

int ShellOf(int electron) {
  for (int s = 0; s < 7; ++s) {
    if (electron >= kShells[s].first && electron <= kShells[s].last) return s + 1;
  }
  return 0;
}

// Where electron n sits, as multiples of the radius past the outermost ring
// (row n - 1). Shells 1 to 3 are filled in pairs on opposite sides, the
// others clockwise from the leftmost point.
constexpr Point kElectronSpots[109] = {
    // Shell 1
    {0.65, 0},
    {-0.65, 0},
    // Shell 2
    {0.77, 0},
    {-0.77, 0},
    {0, -0.8},
    {0, 0.8},
    {-0.56, -0.58},
    {-0.56, 0.58},
    {0.56, 0.58},
    {0.56, -0.58},
    // Shell 3
    {0.8, 0},
    {-0.8, 0},
    {0, 0.85},
    {0, -0.85},
    {0.58, 0.61},
    {-0.58, 0.61},
    {0.58, -0.61},
    {-0.58, -0.61},
    // Shell 4
    {-0.84, 0},
    {-0.789341, 0.27},
    {-0.66, 0.54},
    {-0.45, 0.77},
    {-0.16, 0.89},
    {0.16, 0.89},
    {0.45, 0.77},
    {0.66, 0.54},
    {0.789341, 0.27},
    {0.84, 0},
    {0.789341, -0.27},
    {0.66, -0.54},
    {0.45, -0.77},
    {0.16, -0.89},
    {-0.16, -0.89},
    {-0.45, -0.77},
    {-0.66, -0.54},
    {-0.789341, -0.27},
    // Shell 5
    {-0.85, 0},
    {-0.8, 0.29},
    {-0.7, 0.56},
    {-0.46, 0.78},
    {-0.16, 0.92},
    {0.16, 0.89},
    {0.46, 0.78},
    {0.7, 0.56},
    {0.8, 0.29},
    {0.85, 0},
    {0.8, -0.29},
    {0.7, -0.56},
    {0.46, -0.78},
    {0.16, -0.92},
    {-0.16, -0.92},
    {-0.46, -0.78},
    {-0.7, -0.56},
    {-0.8, -0.29},
    // Shell 6
    {-0.88, 0},
    {-0.86, 0.17},
    {-0.82, 0.33},
    {-0.76, 0.49},
    {-0.65, 0.65},
    {-0.53, 0.77},
    {-0.36, 0.86},
    {-0.18, 0.92},
    {0, 0.94},
    {0.18, 0.93},
    {0.35, 0.86},
    {0.53, 0.76},
    {0.65, 0.65},
    {0.76, 0.49},
    {0.82, 0.33},
    {0.86, 0.17},
    {0.88, 0},
    {0.86, -0.17},
    {0.82, -0.33},
    {0.76, -0.49},
    {0.65, -0.65},
    {0.53, -0.77},
    {0.36, -0.87},
    {0.18, -0.92},
    {0, -0.94},
    {-0.18, -0.92},
    {-0.36, -0.87},
    {-0.56, -0.77},
    {-0.65, -0.65},
    {-0.76, -0.49},
    {-0.82, -0.33},
    {-0.86, -0.17},
    // Shell 7
    {-0.89, 0},
    {-0.87, 0.17},
    {-0.84, 0.33},
    {-0.76, 0.51},
    {-0.65, 0.65},
    {-0.53, 0.78},
    {-0.36, 0.87},
    {-0.18, 0.95},
    {0, 0.96},
    {0.18, 0.93},
    {0.36, 0.87},
    {0.53, 0.76},
    {0.65, 0.65},
    {0.76, 0.5},
    {0.83, 0.33},
    {0.87, 0.17},
    {0.89, 0},
    {0.87, -0.18},
    {0.83, -0.34},
    {0.76, -0.5},
    {0.65, -0.65},
    {0.53, -0.77},
    {0.36, -0.87},
};

// Electron 15 is recorded a little left of where it is drawn.
constexpr int kShiftedElectron = 15;
constexpr double kShiftedElectronX = 0.55;

constexpr std::string_view kTutorial =
    "Building an atom is a simple exercise in putting together the various parts of an atom. You assemble protons, "
    "neutrons, energy levels and electrons to make the atom you want. As you build your atom, the various numbers of "
    "each subatomic particle are shown along with the name of the element, its weight and the charge. ";

}  // namespace

frmBuildAtoms::frmBuildAtoms(Program& program)
    : Form(program, {"frmBuildAtoms", "Build an atom", 624, 438}, kControls) {
  Picture1().SetBackColor(kBlack);
  Picture1().SetForeColor(kWhite);
  Bind("Form", Ev::Load, &frmBuildAtoms::Form_Load);
  Bind("cmdProton", Ev::Click, &frmBuildAtoms::cmdProton_Click);
  Bind("cmdNeutrons", Ev::Click, &frmBuildAtoms::cmdNeutrons_Click);
  Bind("cmdRemoveProton", Ev::Click, &frmBuildAtoms::cmdRemoveProton_Click);
  Bind("cmdRemoveNeutron", Ev::Click, &frmBuildAtoms::cmdRemoveNeutron_Click);
  Bind("cmdEnergyLevel", Ev::Click, &frmBuildAtoms::cmdEnergyLevel_Click);
  Bind("cmdElectrons", Ev::Click, &frmBuildAtoms::cmdElectrons_Click);
  Bind("cmdRemoveElectron", Ev::Click, &frmBuildAtoms::cmdRemoveElectron_Click);
  Bind("cmdRemoveEnergyLevel", Ev::Click, &frmBuildAtoms::cmdRemoveEnergyLevel_Click);
  Bind("cmdClear", Ev::Click, &frmBuildAtoms::cmdClear_Click);
  Bind("cmdPrint", Ev::Click, &frmBuildAtoms::cmdPrint_Click);
  Bind("cmdTutorial", Ev::Click, &frmBuildAtoms::cmdTutorial_Click);
  Bind("cmdClose", Ev::Click, &frmBuildAtoms::cmdClose_Click);
}

Picture& frmBuildAtoms::Picture1() { return ctl("Picture1").picture(); }

void frmBuildAtoms::EnableButtons(std::initializer_list<std::string_view> names, bool on) {
  for (std::string_view name : names) ctl(name).SetEnabled(on);
}

Integer frmBuildAtoms::Shown(std::string_view box) const { return CInt(ctl(box).Text()); }

void frmBuildAtoms::Form_Load() {
  ctl("Text1").SetText("");
  for (int i = 2; i <= 7; ++i) ctl("Text" + std::to_string(i)).SetText("0");
  Protons = 0;
  Neutrons = 0;
  Electrons = 0;
  EnergyLevels = 0;
  Weight = 0;
  Charge = 0;
  NextRadius = 0.2;
  ctl("cmdProton").SetEnabled(true);
  for (std::string_view name : kAtomButtons) ctl(name).SetEnabled(false);
  Picture1().Scale(-1, 1, 1, -1);
}

// --- the three update routines ---

void frmBuildAtoms::UpDateElement() {
  Trapped(kTrapWordsInfo, [&] {
    data::DataStore& store = Store(program());
    data::OpenRecordset(store, "SELECT ElementName FROM GeneralInfo WHERE AtomicNumber =" + Str(Protons));
    ctl("Text1").SetText(Str(data::CurrentRecordset(store).Field("ElementName")));
    data::CloseRecordset(store);
  });
}

void frmBuildAtoms::UpdateWeight() {
  Weight = Expr(Neutrons) + Protons;
  ctl("Text5").SetText(Str(Weight));
}

void frmBuildAtoms::UpdateCharge() {
  Charge = Expr(Protons) - Electrons;
  ctl("Text7").SetText(Str(Charge));
}

// --- the nucleus ---

void frmBuildAtoms::cmdProton_Click() {
  ctl("cmdRemoveProton").SetEnabled(true);
  if (Protons.value() >= 109) return;
  Picture& pic = Picture1();
  pic.SetFillColor(kRed);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  // Five spots only: the sixth proton lands on the first again.
  const Point spot = kProtonSpots[Protons.value() % 5];
  pic.Circle(spot.x, spot.y, 0.03);
  ProtonTable(Protons.value() + 1) = {spot.x, spot.y, 0.03};
  ++Protons;
  ctl("Text2").SetText(Str(Protons));
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  for (std::string_view name : kAtomButtons) ctl(name).SetEnabled(true);
  ctl("Text2").SetText(Str(Protons));
  UpDateElement();
  UpdateWeight();
  UpdateCharge();
}

void frmBuildAtoms::cmdNeutrons_Click() {
  ctl("cmdRemoveNeutron").SetEnabled(true);
  Picture& pic = Picture1();
  pic.SetFillColor(kBlue);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  const Point spot = kNeutronSpots[Neutrons.value() % 4];
  pic.Circle(spot.x, spot.y, 0.03);
  // The table has no room for a 201st neutron: that store fails.
  NeutronTable(Neutrons.value() + 1) = {spot.x, spot.y, 0.03};
  ++Neutrons;
  ctl("Text3").SetText(Str(Neutrons));
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  ctl("Text3").SetText(Str(Neutrons));
  UpdateWeight();
}

void frmBuildAtoms::cmdRemoveProton_Click() {
  Picture& pic = Picture1();
  if (Shown("Text2").value() == 0) {
    ctl("Text1").SetText("");
    ctl("Text3").SetText("0");
    ctl("Text5").SetText("0");
    return;
  }
  if (Shown("Text2").value() == 1) {
    // The last proton takes the whole atom with it; the ring radius stays.
    ctl("Text1").SetText("");
    for (int i = 2; i <= 7; ++i) ctl("Text" + std::to_string(i)).SetText("0");
    Protons = 0;
    Neutrons = 0;
    Electrons = 0;
    EnergyLevels = 0;
    pic.Cls();
    EnableButtons({"cmdNeutrons", "cmdElectrons", "cmdEnergyLevel", "cmdRemoveProton", "cmdRemoveNeutron",
                   "cmdRemoveElectron", "cmdRemoveEnergyLevel", "cmdPrint", "cmdClear"},
                  false);
    Weight = 0;
    Charge = 0;
    UpdateWeight();
    UpdateCharge();
    return;
  }
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  // From the sixth proton up the spot is shared: nothing is painted out.
  Spot& last = ProtonTable(Protons.value());
  if (Protons.value() < 6) pic.Circle(last.x, last.y, last.radius, kBlack);
  pic.SetFillStyle(FillStyle::Transparent);
  pic.SetForeColor(kBlack);
  pic.Circle(0, 0, last.radius);
  --Protons;
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  ctl("Text2").SetText(Str(Protons));
  // Repaint the nucleus, neutrons first, each outlined in its own colour.
  pic.SetFillColor(kBlue);
  for (int i = 1; i <= Neutrons.value(); ++i) {
    const Spot& n = NeutronTable(i);
    pic.Circle(n.x, n.y, n.radius, kBlue);
  }
  pic.SetFillColor(kRed);
  for (int i = 1; i <= Protons.value(); ++i) {
    const Spot& p = ProtonTable(i);
    pic.Circle(p.x, p.y, p.radius, kRed);
  }
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  UpDateElement();
  UpdateWeight();
  UpdateCharge();
}

void frmBuildAtoms::cmdRemoveNeutron_Click() {
  if (Shown("Text3").value() == 0) return;
  if (Shown("Text3").value() == 1) {
    ctl("Text3").SetText("0");
    UpdateWeight();
  }
  Picture& pic = Picture1();
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  // Four spots: from the fifth neutron up nothing is painted out.
  Spot& last = NeutronTable(Neutrons.value());
  if (Neutrons.value() < 5) pic.Circle(last.x, last.y, last.radius, kBlack);
  pic.SetFillStyle(FillStyle::Transparent);
  pic.SetForeColor(kBlack);
  pic.Circle(0, 0, last.radius);
  --Neutrons;
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  ctl("Text3").SetText(Str(Neutrons));
  UpdateWeight();
  if (Neutrons.value() == 0) ctl("cmdRemoveNeutron").SetEnabled(false);
  // Repaint the nucleus, protons first, each outlined in its own colour.
  pic.SetFillColor(kRed);
  for (int i = 1; i <= Protons.value(); ++i) {
    const Spot& p = ProtonTable(i);
    pic.Circle(p.x, p.y, p.radius, kRed);
  }
  pic.SetFillColor(kBlue);
  for (int i = 1; i <= Neutrons.value(); ++i) {
    const Spot& n = NeutronTable(i);
    pic.Circle(n.x, n.y, n.radius, kBlue);
  }
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
}

// --- energy levels and electrons ---

void frmBuildAtoms::cmdEnergyLevel_Click() {
  ctl("cmdRemoveEnergyLevel").SetEnabled(true);
  if (EnergyLevels.value() == 7 || Protons.value() >= 109) return;
  LevelTable(EnergyLevels.value() + 1) = {0, 0, NextRadius};
  ++EnergyLevels;
  ctl("Text6").SetText(Str(EnergyLevels));
  Picture& pic = Picture1();
  pic.SetFillStyle(FillStyle::Transparent);
  pic.SetForeColor(kWhite);
  pic.Circle(0, 0, NextRadius);
  NextRadius = Expr(NextRadius) + 0.1;
}

void frmBuildAtoms::cmdElectrons_Click() {
  if (EnergyLevels.value() == 0) {
    MsgBox("You must have an energy level before you can add electrons.", Icon::Information, kTitle);
    return;
  }
  ctl("cmdRemoveElectron").SetEnabled(true);
  if (Electrons.value() >= 109 || Protons.value() >= 109) {
    MsgBox("You cannot have more than 109  protons or electrons.", Icon::Information, kTitle);
    return;
  }
  Picture& pic = Picture1();
  pic.SetFillColor(kYellow);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  // An electron goes only on the ring of its own shell, and only while that
  // ring is the outermost.
  const int n = Electrons.value() + 1;
  if (ShellOf(n) == EnergyLevels.value()) {
    const Point m = kElectronSpots[n - 1];
    const Single x = m.x == 0 ? Single(0) : Single(Expr(NextRadius) * m.x);
    const Single y = m.y == 0 ? Single(0) : Single(Expr(NextRadius) * m.y);
    pic.Circle(x, y, 0.02);
    const Single recordedX = n == kShiftedElectron ? Single(Expr(NextRadius) * kShiftedElectronX) : x;
    ElectronTable(n) = {recordedX, y, 0.02};
    ++Electrons;
    ctl("Text4").SetText(Str(Electrons));
  }
  UpdateCharge();
}

void frmBuildAtoms::cmdRemoveElectron_Click() {
  if (Shown("Text4").value() == 0) return;
  Picture& pic = Picture1();
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  const Spot& last = ElectronTable(Electrons.value());
  pic.Circle(last.x, last.y, last.radius, kBlack);
  --Electrons;
  // Mend the ring that the black dot cut: always the outermost one.
  pic.SetFillStyle(FillStyle::Transparent);
  pic.SetForeColor(kWhite);
  pic.Circle(0, 0, LevelTable(EnergyLevels.value()).radius);
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Solid);
  pic.SetForeColor(kBlack);
  if (Electrons.value() == 0) ctl("cmdRemoveElectron").SetEnabled(false);
  UpdateCharge();
  ctl("Text4").SetText(Str(Electrons));
}

void frmBuildAtoms::cmdRemoveEnergyLevel_Click() {
  if (Shown("Text6").value() == 0) return;
  // Electrons on the outermost ring keep it in place.
  const int level = EnergyLevels.value();
  if (level >= 1 && level <= 7 && Electrons.value() >= kShells[level - 1].first &&
      Electrons.value() <= kShells[level - 1].last) {
    MsgBox("You must remove all electrons before removing an energy level.", Icon::Critical, "Orvanta 1.5");
    return;
  }
  Picture& pic = Picture1();
  pic.SetFillColor(kBlack);
  pic.SetFillStyle(FillStyle::Transparent);
  pic.SetForeColor(kBlack);
  const Spot& ring = LevelTable(level);
  pic.Circle(ring.x, ring.y, ring.radius, kBlack);
  --EnergyLevels;
  NextRadius = Expr(NextRadius) - 0.1;
  ctl("Text6").SetText(Str(EnergyLevels));
  if (EnergyLevels.value() == 0) ctl("cmdRemoveEnergyLevel").SetEnabled(false);
}

// --- the screen ---

void frmBuildAtoms::cmdClear_Click() {
  ctl("Text1").SetText("");
  for (int i = 2; i <= 7; ++i) ctl("Text" + std::to_string(i)).SetText("0");
  Protons = 0;
  Neutrons = 0;
  Electrons = 0;
  Weight = 0;
  EnergyLevels = 0;
  Charge = 0;
  NextRadius = 0.2;
  Picture1().Cls();
  ctl("cmdProton").SetEnabled(true);
  EnableButtons({"cmdNeutrons", "cmdElectrons", "cmdEnergyLevel", "cmdRemoveProton", "cmdRemoveNeutron",
                 "cmdRemoveElectron", "cmdRemoveEnergyLevel"},
                false);
}

void frmBuildAtoms::cmdPrint_Click() { PrintForm(); }

void frmBuildAtoms::cmdTutorial_Click() { MsgBox(kTutorial, Icon::Information, "Buidling Atoms"); }

void frmBuildAtoms::cmdClose_Click() {
  Unload();
  ShowForm("frmMoleChoice");
}

}  // namespace orv
