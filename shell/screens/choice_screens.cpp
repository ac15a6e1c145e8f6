#include "shell/screens/choice_screens.h"

#include <array>

namespace orv {

namespace {

constexpr int kMargin = 16;
constexpr int kButtonW = 230;
constexpr int kButtonH = 30;
constexpr int kStep = 36;
constexpr int kColumnGap = 12;
constexpr int kPerColumn = 7;

// Buttons stand in one column, or in two when there are many.
int Columns(std::size_t n) { return n > kPerColumn + 1 ? 2 : 1; }
int Rows(std::size_t n) { return static_cast<int>((n + static_cast<std::size_t>(Columns(n)) - 1) / Columns(n)); }
int Width(std::size_t n) { return 2 * kMargin + Columns(n) * kButtonW + (Columns(n) - 1) * kColumnGap; }
int Height(std::size_t n) { return 2 * kMargin + Rows(n) * kStep + 14 + kButtonH; }

std::vector<ControlSpec> ButtonControls(const ChoiceSpec& design) {
  std::vector<ControlSpec> out;
  const std::size_t n = design.buttons.size();
  const int rows = Rows(n);
  for (std::size_t i = 0; i < n; ++i) {
    const int col = static_cast<int>(i) / rows;
    const int row = static_cast<int>(i) % rows;
    out.push_back({.kind = Kind::Button,
                   .name = design.buttons[i].control,
                   .caption = design.buttons[i].caption,
                   .rect = {kMargin + col * (kButtonW + kColumnGap), kMargin + row * kStep, kButtonW, kButtonH}});
  }
  const int closerW = 96;
  out.push_back({.kind = Kind::Button,
                 .name = design.closer,
                 .caption = design.closerCaption,
                 .rect = {Width(n) - kMargin - closerW, kMargin + rows * kStep + 14, closerW, kButtonH},
                 .toolTip = design.closerToolTip});
  return out;
}

// --- the screens ---

constexpr std::array kGeneral = {
    ChoiceButton{"cmdSigfigs", "Significant Figures", "frmSigfig"},
    ChoiceButton{"cmdTemperatures", "Temperature Conversions", "frmTemperatures"},
    ChoiceButton{"cmdDensity", "Density", "frmDensity"},
    ChoiceButton{"cmdMetrics", "Metric Conversions", "frmMetrics"},
    ChoiceButton{"cmdVolume", "Volumes", "frmVolume"},
    ChoiceButton{"cmdEnglish", "English - Metrics", "frmEnglish"},
    ChoiceButton{"cmdTime", "Time Conversions", "frmTime"},
    ChoiceButton{"cmdMass", "Mass And Weight", "frmMassToWeight"},
};
constexpr std::array kGases = {
    ChoiceButton{"cmdCharles", "Charles's Law", "frmCharlesLaw"},
    ChoiceButton{"cmdBoyles", "Boyle's Law", "frmBoyles"},
    ChoiceButton{"cmdIdeal", "Ideal Gas Law", "frmIdeal"},
    ChoiceButton{"cmdGasDensity", "Gas Density", "frmGasDensity"},
    ChoiceButton{"cmdDaltons", "Dalton's Law", "frmDalton"},
    ChoiceButton{"cmdCombined", "Combined Gas Law", "frmCombinedLaws"},
    ChoiceButton{"cmdMolarVolume", "Molar Volume", "frmMolarVolume"},
    ChoiceButton{"cmdMolecular", "Molecular Weight", "frmMolecularWeight"},
    ChoiceButton{"cmdMassGas", "Mass-Gas Volume", "frmMassVolume"},
    ChoiceButton{"cmdVolumeVolume", "Volume - Volume", "frmVolumeVolume"},
    ChoiceButton{"cmdGayLussac", "Gay-Lussac's Law", "frmGayLussac"},
    ChoiceButton{"cmdRaoults", "Raoult's Law", "frmRaoults"},
    ChoiceButton{"cmdGrahams", "Graham's Law", "frmGrahams"},
};
constexpr std::array kSolutions = {
    ChoiceButton{"cmdMolarity", "Molarity / Molality", "frmMolarity"},
    ChoiceButton{"cmdHenrys", "Henry's Law", "frmHenrys"},
    // frmFreezing hides this screen itself when it loads.
    ChoiceButton{"cmdFp", "FP / BP Changes", "frmFreezing", Leave::Stay},
    ChoiceButton{"cmdSolubility", "Solubility Constant", "frmSolubilityConstants"},
    ChoiceButton{"cmdEquilibrium", "Equilibrium Constant", "frmEquilibriumConstant"},
    ChoiceButton{"cmdTitration", "Titration", "frmTitration"},
    ChoiceButton{"cmdIonization", "Ionization Constant", "frmionizationConstant"},
    ChoiceButton{"cmdMoleFraction", "Mole Fraction / Percent", "frmMoleFraction"},
};
constexpr std::array kEnergy = {
    ChoiceButton{"cmdExchange", "Energy Exchange / Transfer", "frmEnergyChange"},
    ChoiceButton{"cmdThermodynamics", "Thermodynamics", "frmThermoData"},
    ChoiceButton{"cmdFaradays", "Faraday's Law", "frmFaradays"},
    ChoiceButton{"cmdChangeOfState", "Energy And Change Of State", "frmChangeOfState", Leave::Unload},
    ChoiceButton{"cmdHalfLife", "Half Life Calculations", "frmHalfLife"},
};
constexpr std::array kReactions = {
    ChoiceButton{"cmdBalancing", "Balancing Reactions", "frmReactions"},
    ChoiceButton{"cmdMassMass", "Mass/Mass Relationships", "frmMass"},
};
constexpr std::array kTables = {
    ChoiceButton{"cmdRegular", "Regular Periodic Table", "frmPeriodic", Leave::Stay},
    ChoiceButton{"cmdAtomicRadii", "Atomic Radii Table", "frmPTable2", Leave::Stay},
    // These five have no routine: the tables are reached from the main menu.
    ChoiceButton{"cmdElectronegativity", "Electronegativity Table", ""},
    ChoiceButton{"cmdAffinity", "Affinity Table", ""},
    ChoiceButton{"cmdIonization", "Ionization Table", ""},
    ChoiceButton{"cmdDensity", "Density Table", ""},
    ChoiceButton{"cmdBoing", "Boiling Point Table", ""},
};
constexpr std::array kMoles = {
    ChoiceButton{"cmdMoles", "Moles - Elements", "fmrMoles"},
    ChoiceButton{"cmdAveAtMass", "Average Atomic Mass", "frmAverageMass"},
    ChoiceButton{"cmdMassEnergy", "Mass - Energy", "frmMassEnergy"},
    ChoiceButton{"cmdAtom", "Build An Atom", "frmBuildAtoms"},
};
constexpr std::array kWeights = {
    ChoiceButton{"cmdCalculateWeight", "Calculate MolecularWeight", "frmWeights", Leave::Unload},
    ChoiceButton{"cmdCalculate", "Weight Calculations", "frmWeightCalculations", Leave::Unload},
};

constexpr ChoiceSpec kChoiceScreens[] = {
    {"frmGeneralChoice", "General Problems", "cmdCancel", "Cancel", "", false, kGeneral},
    {"frmGasLaws", "Gas Laws", "cmdCancel", "Cancel", "", false, kGases},
    {"frmSolutions", "Solutions", "cmdCancel", "Cancel", "", false, kSolutions},
    {"frmEnergy", "Energy Calculations", "cmdCancel", "Cancel", "", true, kEnergy},
    {"frmReactionChoice", "Reaction Problems", "cmdCancel", "Cancel", "", false, kReactions},
    {"frmTableChoice", "Versions of Periodic Table", "cmdCancel", "Cancel", "", true, kTables},
    {"frmMoleChoice", "Mole Calculations", "cmdCancel", "Cancel", "", false, kMoles},
    {"frmWeightChoice", "Molecular Weight Calculations", "cmdClose", "Close", "", false, kWeights},
};

constexpr std::array kAtomicData = {
    OptionChoice{"opt1", "Atomic Radii", "frmRadii"}, OptionChoice{"opt2", "Bond Lengths", "frmBonds"},
    OptionChoice{"opt3", "Electron Affinities", ""},  OptionChoice{"opt4", "Bond Characters", ""},
    OptionChoice{"opt5", "Half Lives", ""},
};
constexpr std::array kMiscellaneous = {
    OptionChoice{"opt1", "Gas Density", "frmExtraData"},
    OptionChoice{"opt2", "Water Density", "frmExtra2"},
};

constexpr OptionChoiceSpec kOptionScreens[] = {
    {"frmAtomicData", "Atomic Data", "Select one of the following.", "Select an option and press Ok.",
     "Press to go to the selected option screen.", "Close screen and return the main screen.", true, kAtomicData},
    {"frmMiscellaneous", "Miscellaneous Data", "Select one of the following", "", "", "", false, kMiscellaneous},
};

constexpr int kOptionH = 28;

std::vector<ControlSpec> OptionControls(const OptionChoiceSpec& design) {
  std::vector<ControlSpec> out;
  const int n = static_cast<int>(design.options.size());
  const int frameH = 34 + n * kOptionH;
  out.push_back({.kind = Kind::Frame,
                 .name = "Frame1",
                 .caption = design.frameCaption,
                 .rect = {kMargin, kMargin, 260, frameH},
                 .toolTip = design.frameToolTip});
  for (int i = 0; i < n; ++i) {
    const OptionChoice& o = design.options[static_cast<std::size_t>(i)];
    out.push_back({.kind = Kind::Option,
                   .name = o.control,
                   .caption = o.caption,
                   .rect = {16, 26 + i * kOptionH, 228, 24},
                   .container = "Frame1"});
  }
  const int y = kMargin + frameH + 14;
  out.push_back({.kind = Kind::Button,
                 .name = "cmdOk",
                 .caption = "Ok",
                 .rect = {kMargin + 260 - 2 * 96 - 8, y, 96, kButtonH},
                 .toolTip = design.okToolTip});
  out.push_back({.kind = Kind::Button,
                 .name = "cmdCancel",
                 .caption = "Cancel",
                 .rect = {kMargin + 260 - 96, y, 96, kButtonH},
                 .toolTip = design.cancelToolTip});
  return out;
}

}  // namespace

ChoiceScreen::ChoiceScreen(Program& program, const ChoiceSpec& design)
    : Form(program, {design.name, design.caption, Width(design.buttons.size()), Height(design.buttons.size())},
           ButtonControls(design)),
      design_(design) {
  Bind("Form", Ev::Load, &ChoiceScreen::Form_Load);
  for (const ChoiceButton& b : design.buttons) {
    if (!b.target.empty()) On(b.control, Ev::Click, [this, &b](EventArgs&) { Go(b); });
  }
  Bind(design.closer, Ev::Click, &ChoiceScreen::Close_Click);
}

void ChoiceScreen::Form_Load() { ctl(design_.buttons.front().control).SetDefault(true); }

void ChoiceScreen::Go(const ChoiceButton& button) {
  switch (button.leave) {
    case Leave::Hide: Hide(); break;
    case Leave::Unload: Unload(); break;
    case Leave::Stay: break;
  }
  ShowForm(button.target);
}

void ChoiceScreen::Close_Click() {
  Unload();
  if (design_.closerShowsMain) ShowForm("frmMain");
}

OptionChoiceScreen::OptionChoiceScreen(Program& program, const OptionChoiceSpec& design)
    : Form(program,
           {design.name, design.caption, 2 * kMargin + 260,
            2 * kMargin + 34 + static_cast<int>(design.options.size()) * kOptionH + 14 + kButtonH},
           OptionControls(design)),
      design_(design) {
  Bind("Form", Ev::Load, &OptionChoiceScreen::Form_Load);
  Bind("cmdOk", Ev::Click, &OptionChoiceScreen::cmdOk_Click);
  Bind("cmdCancel", Ev::Click, &OptionChoiceScreen::cmdCancel_Click);
}

void OptionChoiceScreen::Form_Load() {
  ctl("cmdOk").SetDefault(true);
  ctl("opt1").SetValue(true);
}

void OptionChoiceScreen::cmdOk_Click() {
  for (const OptionChoice& o : design_.options) {
    if (!ctl(o.control).Value()) continue;
    // The first selected option decides; one without a screen does nothing.
    if (!o.target.empty()) {
      Unload();
      ShowForm(o.target);
    }
    return;
  }
}

void OptionChoiceScreen::cmdCancel_Click() {
  Unload();
  if (design_.cancelShowsMain) ShowForm("frmMain");
}

void RegisterChoiceScreens(ScreenRegistry& r) {
  for (const ChoiceSpec& design : kChoiceScreens) {
    r.screens[std::string(design.name)] = [&design](Program& p) -> std::unique_ptr<Form> {
      return std::make_unique<ChoiceScreen>(p, design);
    };
  }
  for (const OptionChoiceSpec& design : kOptionScreens) {
    r.screens[std::string(design.name)] = [&design](Program& p) -> std::unique_ptr<Form> {
      return std::make_unique<OptionChoiceScreen>(p, design);
    };
  }
}

}  // namespace orv
