#include "shell/screens/frmMain.h"

#include <array>

namespace orv {

namespace {

constexpr int kColW = 210;
constexpr int kBtnH = 30;
constexpr int kStep = 37;
constexpr int kTop = 46;
constexpr int kLeft = 20;
constexpr int kRight = 530;

constexpr Rect Left(int row) { return {kLeft, kTop + row * kStep, kColW, kBtnH}; }
constexpr Rect Right(int row) { return {kRight, kTop + row * kStep, kColW, kBtnH}; }

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "lblProblems",
     .caption = "Problems",
     .rect = {kLeft, 14, kColW, 24},
     .flags = kBold | kCenter},
    {.kind = Kind::Button, .name = "cmdGeneral", .caption = "General", .rect = Left(0)},
    {.kind = Kind::Button, .name = "cmdMoles", .caption = "Moles", .rect = Left(1)},
    {.kind = Kind::Button, .name = "cmdWeights", .caption = "Weights", .rect = Left(2)},
    {.kind = Kind::Button, .name = "cmdEquations", .caption = "Reactions", .rect = Left(3)},
    {.kind = Kind::Button, .name = "cmdGases", .caption = "Gases", .rect = Left(4)},
    {.kind = Kind::Button, .name = "cmdSolutions", .caption = "Solutions", .rect = Left(5)},
    {.kind = Kind::Button, .name = "cmdAcids", .caption = "Acids", .rect = Left(6)},
    {.kind = Kind::Button, .name = "cmdHelp", .caption = "Energy", .rect = Left(7)},
    {.kind = Kind::Button, .name = "cmdPeriodic", .caption = "Tables", .rect = Left(8)},
    {.kind = Kind::Button,
     .name = "cmdCalculator",
     .caption = "Calculator",
     .rect = Left(9),
     .toolTip = "Loads Windows calculator"},
    {.kind = Kind::Button, .name = "cmdUserManual", .caption = "Help", .rect = Left(10)},
    {.kind = Kind::Image, .name = "imgMain", .rect = {270, 56, 220, 220}},
    {.kind = Kind::Label,
     .name = "lblTitle",
     .caption = "Orvanta",
     .rect = {250, 290, 260, 36},
     .flags = kBold | kLarge | kCenter},
    {.kind = Kind::Label,
     .name = "lblSubtitle",
     .caption = "The Problem-Solving Assistant\nfor Chemistry Students",
     .rect = {250, 330, 260, 44},
     .flags = kCenter},
    {.kind = Kind::Label,
     .name = "lblData",
     .caption = "Reference Data",
     .rect = {kRight, 14, kColW, 24},
     .flags = kBold | kCenter},
    {.kind = Kind::Button, .name = "cmdConstants", .caption = "Physical Constants", .rect = Right(0)},
    {.kind = Kind::Button, .name = "cmdSpecificHeats", .caption = "Specific Heats", .rect = Right(1)},
    {.kind = Kind::Button, .name = "cmdSolubility", .caption = "Solubility Constants", .rect = Right(2)},
    {.kind = Kind::Button, .name = "cmdIonization", .caption = "Ionization Energy", .rect = Right(3)},
    {.kind = Kind::Button, .name = "cmdGlossary", .caption = "Densities", .rect = Right(4)},
    {.kind = Kind::Button, .name = "cmdEnergies", .caption = "Thermodynamic Data", .rect = Right(5)},
    {.kind = Kind::Button, .name = "cmdVaporPressure", .caption = "Water Vapor Pressure", .rect = Right(6)},
    {.kind = Kind::Button, .name = "cmdReduction", .caption = "Reduction Potentials", .rect = Right(7)},
    {.kind = Kind::Button, .name = "cmdEnthalpies", .caption = "Enthalpies", .rect = Right(8)},
    {.kind = Kind::Button, .name = "cmdElectronegativity", .caption = "Electronegativity", .rect = Right(9)},
    {.kind = Kind::Button, .name = "cmdAtomicData", .caption = "Atomic Data", .rect = Right(10)},

    // The menu bar: top-level entries have no container; entries name theirs.
    {.kind = Kind::Menu, .name = "mnuFile", .caption = "&File"},
    {.kind = Kind::Menu, .name = "mnuExit", .caption = "E&xit", .container = "mnuFile", .shortcut = "Ctrl+X"},
    {.kind = Kind::Menu, .name = "mnuGeneral", .caption = "&General"},
    {.kind = Kind::Menu, .name = "mnuSignificantfigures", .caption = "Significant Figures", .container = "mnuGeneral"},
    {.kind = Kind::Menu,
     .name = "mnuTemperatureconversions",
     .caption = "Temperature Conversions",
     .container = "mnuGeneral"},
    {.kind = Kind::Menu, .name = "mnuMetricconversions", .caption = "Metric Conversions", .container = "mnuGeneral"},
    {.kind = Kind::Menu, .name = "mnuEnglishMetrics", .caption = "English-Metrics", .container = "mnuGeneral"},
    {.kind = Kind::Menu, .name = "mnuTime", .caption = "Time Conversions", .container = "mnuGeneral"},
    {.kind = Kind::Menu, .name = "mnuDensity", .caption = "Density", .container = "mnuGeneral"},
    {.kind = Kind::Menu, .name = "mnuVolume", .caption = "Volume", .container = "mnuGeneral"},
    {.kind = Kind::Menu, .name = "mnuMassWeight", .caption = "Mass - Weight", .container = "mnuGeneral"},
    {.kind = Kind::Menu, .name = "mnuTable", .caption = "&Table"},
    {.kind = Kind::Menu, .name = "mnuRegularTable", .caption = "Regular Periodic Table", .container = "mnuTable"},
    {.kind = Kind::Menu, .name = "mnuAtomicRadii", .caption = "Atomic Radii Table", .container = "mnuTable"},
    {.kind = Kind::Menu, .name = "mnuElectronegativity", .caption = "Electronegativity Table", .container = "mnuTable"},
    {.kind = Kind::Menu, .name = "mnuAffinity", .caption = "Affinity Table", .container = "mnuTable"},
    {.kind = Kind::Menu, .name = "mnuIonization", .caption = "Ionization Table", .container = "mnuTable"},
    {.kind = Kind::Menu, .name = "mnuDensityTable", .caption = "Density Table", .container = "mnuTable"},
    {.kind = Kind::Menu, .name = "mnuBoilingPointTable", .caption = "Boiling Point Table", .container = "mnuTable"},
    {.kind = Kind::Menu, .name = "mnuMoles", .caption = "&Moles"},
    {.kind = Kind::Menu, .name = "mnuMoleCalculations", .caption = "Mole Calculations", .container = "mnuMoles"},
    {.kind = Kind::Menu, .name = "munAveAtMass", .caption = "Average Atomic Mass", .container = "mnuMoles"},
    {.kind = Kind::Menu, .name = "mnuMassEnergy", .caption = "Mass And Energy", .container = "mnuMoles"},
    {.kind = Kind::Menu, .name = "mnuBuildAnAtom", .caption = "Build An Atom", .container = "mnuMoles"},
    {.kind = Kind::Menu, .name = "mnuWeights", .caption = "&Weights"},
    {.kind = Kind::Menu, .name = "mnuMoleculeWeight", .caption = "Molecule Weight", .container = "mnuWeights"},
    {.kind = Kind::Menu,
     .name = "mnuMolecularCalculations",
     .caption = "Molecular Calculations",
     .container = "mnuWeights"},
    {.kind = Kind::Menu, .name = "mnuReactions", .caption = "&Reactions"},
    {.kind = Kind::Menu,
     .name = "mnuBalancingEquations",
     .caption = "Balancing Equations",
     .container = "mnuReactions"},
    {.kind = Kind::Menu,
     .name = "mnuMassMassRelationships",
     .caption = "Mass Mass Relationships",
     .container = "mnuReactions"},
    {.kind = Kind::Menu, .name = "mnuSolutions", .caption = "&Solutions"},
    {.kind = Kind::Menu, .name = "mnuMolarityMolality", .caption = "Molarity/Molality", .container = "mnuSolutions"},
    {.kind = Kind::Menu, .name = "mnuHenrysLaw", .caption = "Henrys Law", .container = "mnuSolutions"},
    {.kind = Kind::Menu, .name = "mnuFPBPChange", .caption = "FP/BP Change", .container = "mnuSolutions"},
    {.kind = Kind::Menu,
     .name = "mnuSolubilityConstant",
     .caption = "Solubility Constant",
     .container = "mnuSolutions"},
    {.kind = Kind::Menu,
     .name = "mnuEquilibriumConstant",
     .caption = "Equilibrium Constant",
     .container = "mnuSolutions"},
    {.kind = Kind::Menu, .name = "mnuTitration", .caption = "Titration", .container = "mnuSolutions"},
    {.kind = Kind::Menu,
     .name = "mnuIonizationconstant",
     .caption = "Ionization Constant",
     .container = "mnuSolutions"},
    {.kind = Kind::Menu,
     .name = "mnuMoleFraction",
     .caption = "Mole Fraction and Percent",
     .container = "mnuSolutions"},
    {.kind = Kind::Menu, .name = "mnuGases", .caption = "G&ases"},
    {.kind = Kind::Menu, .name = "mnuCharlesLaw", .caption = "Charles Law", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuBoyleslaw", .caption = "Boyles Law", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuIdealgaslaw", .caption = "Ideal Gas Law", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuMolecularWeight", .caption = "Molecular Weight", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuGasdensity", .caption = "Gas Density", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuDaltons", .caption = "Dalton's Partial Pressure", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuCombined", .caption = "Combined Gas Law", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuMolarVolume", .caption = "Molar Volume", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuMassVolume", .caption = "Mass Gas Volume", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuVolumeVolume", .caption = "Volume - Volume", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuGayLussac", .caption = "Gay Lussac's Law", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuRaoults", .caption = "Raoult's Law", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuGrahams", .caption = "Graham's Law", .container = "mnuGases"},
    {.kind = Kind::Menu, .name = "mnuAcids", .caption = "A&cids"},
    {.kind = Kind::Menu, .name = "mnuEnergy", .caption = "&Energy"},
    {.kind = Kind::Menu, .name = "mnuEnergychange", .caption = "Energy Change/Transfer", .container = "mnuEnergy"},
    {.kind = Kind::Menu, .name = "mnuThermodynamics", .caption = "Thermodynamics", .container = "mnuEnergy"},
    {.kind = Kind::Menu, .name = "mnuFaradays", .caption = "Faraday's Law", .container = "mnuEnergy"},
    {.kind = Kind::Menu, .name = "mnuChangeOfState", .caption = "Energy and Change of State", .container = "mnuEnergy"},
    {.kind = Kind::Menu, .name = "mnuHalfLife", .caption = "Half Life", .container = "mnuEnergy"},
    {.kind = Kind::Menu, .name = "mnuCalculatorChoice", .caption = "Calculator"},
    {.kind = Kind::Menu, .name = "mnuHelp", .caption = "Help"},
    {.kind = Kind::Menu, .name = "mnuAbout", .caption = "About", .container = "mnuHelp"},
    {.kind = Kind::Menu, .name = "mnuAssistance", .caption = "Help", .container = "mnuHelp"},
};

// Buttons and menu entries that show a screen, with the screen they show.
struct Route {
  std::string_view control;
  std::string_view target;
};

constexpr std::array kRoutes = {
    Route{"cmdGeneral", "frmGeneralChoice"},
    Route{"cmdMoles", "frmMoleChoice"},
    Route{"cmdWeights", "frmWeightChoice"},
    Route{"cmdEquations", "frmReactionChoice"},
    Route{"cmdGases", "frmGasLaws"},
    Route{"cmdSolutions", "frmSolutions"},
    Route{"cmdAcids", "frmAcids"},
    Route{"cmdHelp", "frmEnergy"},
    Route{"cmdPeriodic", "frmTableChoice"},
    Route{"cmdConstants", "frmConstants"},
    Route{"cmdSpecificHeats", "frmSpecificHeats"},
    Route{"cmdSolubility", "frmSolConstants"},
    Route{"cmdIonization", "frmIonization"},
    Route{"cmdGlossary", "frmMiscellaneous"},
    Route{"cmdEnergies", "frmThermodynamics"},
    Route{"cmdVaporPressure", "frmVaporPressure"},
    Route{"cmdReduction", "frmStandard"},
    Route{"cmdEnthalpies", "frmEnthalpies"},
    Route{"cmdElectronegativity", "frmelectronegativities"},
    Route{"cmdAtomicData", "frmAtomicData"},
    Route{"mnuSignificantfigures", "frmSigfig"},
    Route{"mnuTemperatureconversions", "frmTemperatures"},
    Route{"mnuMetricconversions", "frmMetrics"},
    Route{"mnuEnglishMetrics", "frmEnglish"},
    Route{"mnuTime", "frmTime"},
    Route{"mnuDensity", "frmDensity"},
    Route{"mnuVolume", "frmVolume"},
    Route{"mnuMassWeight", "frmMassToWeight"},
    Route{"mnuRegularTable", "frmPeriodic"},
    Route{"mnuAtomicRadii", "frmPTable2"},
    Route{"mnuElectronegativity", "frmPTable3"},
    Route{"mnuAffinity", "frmPTable4"},
    Route{"mnuIonization", "frmPTable5"},
    Route{"mnuDensityTable", "frmPTable6"},
    Route{"mnuBoilingPointTable", "frmPTable7"},
    Route{"mnuMoleCalculations", "fmrMoles"},
    Route{"munAveAtMass", "frmAverageMass"},
    Route{"mnuMassEnergy", "frmMassEnergy"},
    Route{"mnuBuildAnAtom", "frmBuildAtoms"},
    Route{"mnuMoleculeWeight", "frmWeights"},
    Route{"mnuMolecularCalculations", "frmWeightCalculations"},
    Route{"mnuBalancingEquations", "frmReactions"},
    Route{"mnuMassMassRelationships", "frmMass"},
    Route{"mnuMolarityMolality", "frmMolarity"},
    Route{"mnuHenrysLaw", "frmHenrys"},
    Route{"mnuFPBPChange", "frmFreezing"},
    Route{"mnuSolubilityConstant", "frmSolubilityConstants"},
    Route{"mnuEquilibriumConstant", "frmEquilibriumConstant"},
    Route{"mnuTitration", "frmTitration"},
    Route{"mnuIonizationconstant", "frmionizationConstant"},
    Route{"mnuMoleFraction", "frmMoleFraction"},
    Route{"mnuCharlesLaw", "frmCharlesLaw"},
    Route{"mnuBoyleslaw", "frmBoyles"},
    Route{"mnuIdealgaslaw", "frmIdeal"},
    Route{"mnuMolecularWeight", "frmMolecularWeight"},
    Route{"mnuGasdensity", "frmGasDensity"},
    Route{"mnuDaltons", "frmDalton"},
    Route{"mnuCombined", "frmCombinedLaws"},
    Route{"mnuMolarVolume", "frmMolarVolume"},
    Route{"mnuMassVolume", "frmMassVolume"},
    Route{"mnuVolumeVolume", "frmVolumeVolume"},
    Route{"mnuGayLussac", "frmGayLussac"},
    Route{"mnuRaoults", "frmRaoults"},
    Route{"mnuGrahams", "frmGrahams"},
    Route{"mnuAcids", "frmAcids"},
    Route{"mnuEnergychange", "frmEnergyChange"},
    Route{"mnuThermodynamics", "frmThermoData"},
    Route{"mnuFaradays", "frmFaradays"},
    Route{"mnuChangeOfState", "frmChangeOfState"},
    Route{"mnuHalfLife", "frmHalfLife"},
    Route{"mnuAbout", "frmAbout"},
    Route{"mnuAssistance", "frmHelp"},
};

}  // namespace

frmMain::frmMain(Program& program)
    : Form(program, {"frmMain", "Halveron Software - Orvanta", 760, 470, kFormMain}, kControls) {
  for (const Route& r : kRoutes) {
    On(r.control, Ev::Click, [this, target = r.target](EventArgs&) { ShowForm(target); });
  }
  Bind("Form", Ev::KeyDown, &frmMain::Form_KeyDown);
  Bind("Form", Ev::KeyPress, &frmMain::Form_KeyPress);
  Bind("Form", Ev::QueryUnload, &frmMain::Form_QueryUnload);
  Bind("cmdCalculator", Ev::Click, &frmMain::cmdCalculator_Click);
  Bind("cmdUserManual", Ev::Click, &frmMain::cmdUserManual_Click);
  Bind("mnuExit", Ev::Click, &frmMain::mnuExit_Click);
  Bind("mnuCalculatorChoice", Ev::Click, &frmMain::mnuCalculatorChoice_Click);
}

void frmMain::Form_KeyDown(int& KeyCode, int /*Shift*/) {
  if (KeyCode == kKeyF1) ShowForm("frmHelp");
}

void frmMain::Form_KeyPress(int& KeyAscii) {
  // Esc is looked at here and does nothing.
  [[maybe_unused]] bool escape = false;
  if (KeyAscii == kKeyEscape) escape = true;
}

void frmMain::Form_QueryUnload(int& /*Cancel*/, int /*UnloadMode*/) {
  // Closing the main screen closes every screen and ends the program.
  for (Form* f : program().LoadedForms()) {
    if (f != this) program().Unload(*f);
  }
  program().End();
}

void frmMain::cmdCalculator_Click() { program().launcher().LaunchCalculator(); }

void frmMain::mnuCalculatorChoice_Click() { program().launcher().LaunchCalculator(); }

void frmMain::cmdUserManual_Click() {
  // The line breaks are a line feed then a carriage return.
  MsgBox("For Help, read the User Manual\n\ror press the ? button.\n\ror press F1.", Icon::Information, kTitle);
}

void frmMain::mnuExit_Click() { Unload(); }

}  // namespace orv
