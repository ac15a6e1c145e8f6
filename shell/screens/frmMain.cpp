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
    {Kind::Label, "lblProblems", "Problems", {kLeft, 14, kColW, 24}, {}, {}, -1, kBold | kCenter},
    {Kind::Button, "cmdGeneral", "General", Left(0)},
    {Kind::Button, "cmdMoles", "Moles", Left(1)},
    {Kind::Button, "cmdWeights", "Weights", Left(2)},
    {Kind::Button, "cmdEquations", "Reactions", Left(3)},
    {Kind::Button, "cmdGases", "Gases", Left(4)},
    {Kind::Button, "cmdSolutions", "Solutions", Left(5)},
    {Kind::Button, "cmdAcids", "Acids", Left(6)},
    {Kind::Button, "cmdHelp", "Energy", Left(7)},
    {Kind::Button, "cmdPeriodic", "Tables", Left(8)},
    {Kind::Button, "cmdCalculator", "Calculator", Left(9), "Loads Windows calculator"},
    {Kind::Button, "cmdUserManual", "Help", Left(10)},
    {Kind::Image, "imgMain", "", {270, 56, 220, 220}},
    {Kind::Label, "lblTitle", "Orvanta", {250, 290, 260, 36}, {}, {}, -1, kBold | kLarge | kCenter},
    {Kind::Label,
     "lblSubtitle",
     "The Problem-Solving Assistant\nfor Chemistry Students",
     {250, 330, 260, 44},
     {},
     {},
     -1,
     kCenter},
    {Kind::Label, "lblData", "Reference Data", {kRight, 14, kColW, 24}, {}, {}, -1, kBold | kCenter},
    {Kind::Button, "cmdConstants", "Physical Constants", Right(0)},
    {Kind::Button, "cmdSpecificHeats", "Specific Heats", Right(1)},
    {Kind::Button, "cmdSolubility", "Solubility Constants", Right(2)},
    {Kind::Button, "cmdIonization", "Ionization Energy", Right(3)},
    {Kind::Button, "cmdGlossary", "Densities", Right(4)},
    {Kind::Button, "cmdEnergies", "Thermodynamic Data", Right(5)},
    {Kind::Button, "cmdVaporPressure", "Water Vapor Pressure", Right(6)},
    {Kind::Button, "cmdReduction", "Reduction Potentials", Right(7)},
    {Kind::Button, "cmdEnthalpies", "Enthalpies", Right(8)},
    {Kind::Button, "cmdElectronegativity", "Electronegativity", Right(9)},
    {Kind::Button, "cmdAtomicData", "Atomic Data", Right(10)},

    // The menu bar: top-level entries have no container; entries name theirs.
    {Kind::Menu, "mnuFile", "&File"},
    {Kind::Menu, "mnuExit", "E&xit", {}, {}, "mnuFile", -1, 0, nullptr, "Ctrl+X"},
    {Kind::Menu, "mnuGeneral", "&General"},
    {Kind::Menu, "mnuSignificantfigures", "Significant Figures", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuTemperatureconversions", "Temperature Conversions", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuMetricconversions", "Metric Conversions", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuEnglishMetrics", "English-Metrics", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuTime", "Time Conversions", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuDensity", "Density", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuVolume", "Volume", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuMassWeight", "Mass - Weight", {}, {}, "mnuGeneral"},
    {Kind::Menu, "mnuTable", "&Table"},
    {Kind::Menu, "mnuRegularTable", "Regular Periodic Table", {}, {}, "mnuTable"},
    {Kind::Menu, "mnuAtomicRadii", "Atomic Radii Table", {}, {}, "mnuTable"},
    {Kind::Menu, "mnuElectronegativity", "Electronegativity Table", {}, {}, "mnuTable"},
    {Kind::Menu, "mnuAffinity", "Affinity Table", {}, {}, "mnuTable"},
    {Kind::Menu, "mnuIonization", "Ionization Table", {}, {}, "mnuTable"},
    {Kind::Menu, "mnuDensityTable", "Density Table", {}, {}, "mnuTable"},
    {Kind::Menu, "mnuBoilingPointTable", "Boiling Point Table", {}, {}, "mnuTable"},
    {Kind::Menu, "mnuMoles", "&Moles"},
    {Kind::Menu, "mnuMoleCalculations", "Mole Calculations", {}, {}, "mnuMoles"},
    {Kind::Menu, "munAveAtMass", "Average Atomic Mass", {}, {}, "mnuMoles"},
    {Kind::Menu, "mnuMassEnergy", "Mass And Energy", {}, {}, "mnuMoles"},
    {Kind::Menu, "mnuBuildAnAtom", "Build An Atom", {}, {}, "mnuMoles"},
    {Kind::Menu, "mnuWeights", "&Weights"},
    {Kind::Menu, "mnuMoleculeWeight", "Molecule Weight", {}, {}, "mnuWeights"},
    {Kind::Menu, "mnuMolecularCalculations", "Molecular Calculations", {}, {}, "mnuWeights"},
    {Kind::Menu, "mnuReactions", "&Reactions"},
    {Kind::Menu, "mnuBalancingEquations", "Balancing Equations", {}, {}, "mnuReactions"},
    {Kind::Menu, "mnuMassMassRelationships", "Mass Mass Relationships", {}, {}, "mnuReactions"},
    {Kind::Menu, "mnuSolutions", "&Solutions"},
    {Kind::Menu, "mnuMolarityMolality", "Molarity/Molality", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuHenrysLaw", "Henrys Law", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuFPBPChange", "FP/BP Change", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuSolubilityConstant", "Solubility Constant", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuEquilibriumConstant", "Equilibrium Constant", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuTitration", "Titration", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuIonizationconstant", "Ionization Constant", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuMoleFraction", "Mole Fraction and Percent", {}, {}, "mnuSolutions"},
    {Kind::Menu, "mnuGases", "G&ases"},
    {Kind::Menu, "mnuCharlesLaw", "Charles Law", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuBoyleslaw", "Boyles Law", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuIdealgaslaw", "Ideal Gas Law", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuMolecularWeight", "Molecular Weight", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuGasdensity", "Gas Density", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuDaltons", "Dalton's Partial Pressure", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuCombined", "Combined Gas Law", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuMolarVolume", "Molar Volume", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuMassVolume", "Mass Gas Volume", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuVolumeVolume", "Volume - Volume", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuGayLussac", "Gay Lussac's Law", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuRaoults", "Raoult's Law", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuGrahams", "Graham's Law", {}, {}, "mnuGases"},
    {Kind::Menu, "mnuAcids", "A&cids"},
    {Kind::Menu, "mnuEnergy", "&Energy"},
    {Kind::Menu, "mnuEnergychange", "Energy Change/Transfer", {}, {}, "mnuEnergy"},
    {Kind::Menu, "mnuThermodynamics", "Thermodynamics", {}, {}, "mnuEnergy"},
    {Kind::Menu, "mnuFaradays", "Faraday's Law", {}, {}, "mnuEnergy"},
    {Kind::Menu, "mnuChangeOfState", "Energy and Change of State", {}, {}, "mnuEnergy"},
    {Kind::Menu, "mnuHalfLife", "Half Life", {}, {}, "mnuEnergy"},
    {Kind::Menu, "mnuCalculatorChoice", "Calculator"},
    {Kind::Menu, "mnuHelp", "Help"},
    {Kind::Menu, "mnuAbout", "About", {}, {}, "mnuHelp"},
    {Kind::Menu, "mnuAssistance", "Help", {}, {}, "mnuHelp"},
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
