#include "tables/data_tables.h"

#include <vector>

#include "data/store.h"

namespace orv {

namespace {

// Columns: field, width template (only its length counts), format pattern,
// and the blanks that follow.
constexpr PaddedColumn kConstants[] = {
    {"Constant", "0000000000000000000000000", "0000000000000000000000000", "      "},
    {"value", "###.#############", "Scientific"},
};
constexpr PaddedColumn kSpecificHeats[] = {
    {"Substance", "000000000000000", "000000000000000", "    "},
    {"SpecificHeat", "#.#####", "Standard"},
};
constexpr PaddedColumn kSolConstants[] = {
    {"Substance", "0000000000", "0000000000", "   "},
    {"Ksp", "000000000000", "Scientific"},
};
constexpr PaddedColumn kIonization[] = {
    {"Substance", "0000000000", "0000000000", "        "},
    {"FIE", "000000000000", "Standard"},
};
constexpr PaddedColumn kThermodynamics[] = {
    {"Substance", "000000000000", "000000000000", "   "},
    {"Hf", "000000000000", "Standard", "  "},
    {"Gf", "000000000000", "Standard", "  "},
    {"S", "000000000000", "Standard"},
};
constexpr PaddedColumn kVaporPressure[] = {
    {"Temperature", "###", "General Number", "           "},
    {"Pressure", "###.##", "Standard"},
};
// A potential of 0 takes a gap one blank shorter (StandardRow).
constexpr PaddedColumn kStandard[] = {
    {"HalfReaction", "000000000000000000000000000000000000000000000", "000000000000000000000000000000000000000000000",
     "    "},
    {"Volts", "##.####", "##.####"},
};
constexpr PaddedColumn kEnthalpies[] = {
    {"Element", "000000000000", "000000000000", "    "},
    {"EofFusion", "000000000000", "Standard", "       "},
    {"EofVaporization", "000000000000", "Standard"},
};
constexpr PaddedColumn kElectronegativities[] = {
    {"Element", "000000000000", "000000000000", "      "},
    {"Electronegativity", "000000000000", "Standard"},
};
constexpr PaddedColumn kRadii[] = {
    {"Substance", "0000000000000", "0000000000000", "  "},
    {"AtomicRadii", "###.#", "Standard"},
};
constexpr PaddedColumn kAffinities[] = {
    {"Element", "000000000000", "00000", "     "},
    {"Affinity", "###.##", "Standard"},
};
constexpr PaddedColumn kBonds[] = {
    {"Bond", "0000000", "0000000", "    "},
    {"Energy", "###", "Standard", "        "},
    {"Length", "###", "Standard"},
};
constexpr PaddedColumn kCharacter[] = {
    {"Difference", "0000", "Standard", "       "},
    {"Ionic", "0000", "Standard", "       "},
    {"Covalent", "0000", "Standard"},
};
constexpr PaddedColumn kExtraData[] = {
    {"Gas", "00000000000000000000", "00000000000000000000", "  "},
    {"Density", "#.#####", "Standard"},
};
constexpr PaddedColumn kExtra2[] = {
    {"Temperature", "#.###", "General Number", "         "},
    {"Density", "#.######", "#.#####"},
};
constexpr PaddedColumn kHalfLives[] = {
    {"Substance", "0000000000", "0000000000", "  "},
    {"HalfLife", "000000000000", "Standard", "    "},
    {"DecayMode", "000000000000", "Standard"},
};

// A potential of 0 would come out of its pattern as a lone point, so such a
// row shows "0.000" instead, one place further left.
std::string StandardRow(const data::Recordset& rs, std::span<const PaddedColumn> columns) {
  const std::string reaction = PaddedRow(rs, columns.first(1));  // with its gap of four blanks
  const std::string volts = PaddedRow(rs, columns.subspan(1));
  if (CDbl(rs.Field("Volts")).value() == 0) return reaction.substr(0, reaction.size() - 1) + "0.000";
  return reaction + volts;
}

constexpr DataTableSpec kTables[] = {
    {"frmConstants",
     "Common Physical Constants",
     "Constants",
     kConstants,
     "Label1",
     " Constant                                                                     Value",
     "frmMain",
     {},
     {},
     420},
    {"frmSpecificHeats", "Specific Heat Values", "SpecificHeats", kSpecificHeats, "Label1",
     " Substance                               J/g*C", ""},
    {"frmSolConstants", "Solubility Constants", "SolubilityConstants", kSolConstants, "Label1",
     " Substance                   Solubility", ""},
    {"frmIonization", "First Ionization Energy", "IonizationEnergy", kIonization, "Label1",
     " Substance                                 Energy (kJ/mol)", ""},
    {"frmThermodynamics",
     "Thermodynamic Data",
     "ThermodynamicData",
     kThermodynamics,
     "Label1",
     "Substance                               Hf                              Gf                                 S",
     "",
     {},
     {},
     520},
    {"frmVaporPressure", "Vapor Pressure of Water", "VaporPressure", kVaporPressure, "Label1",
     "Temperature (C)         Pressure kPa", ""},
    {"frmStandard",
     "Standard Reduction Potentials",
     "StandardReductions",
     kStandard,
     "Label2",
     "  Half-Reactions                                                                                                 "
     "            Volts",
     "",
     {},
     {},
     580,
     &StandardRow},
    {"frmEnthalpies",
     "Enthalpies",
     "Enthalpies",
     kEnthalpies,
     "Label1",
     "  Element          Heat of Fusion (kJ/mol)     Heat of Vaporization (kJ/mol)",
     "frmMain",
     {},
     {},
     460},
    {"frmelectronegativities", "Electronegativities", "Electronegativities", kElectronegativities, "Label1",
     " Element               Electronegativity(kJ/mol)", "frmMain"},
    {"frmRadii", "Atomic Radii", "AtomicRadii", kRadii, "Label1", " Element                           Radius (pm)",
     "frmAtomicData"},
    {"frmAffinities", "Electron Affinities", "Affinities", kAffinities, "Label1",
     " Element                         KiloJoules/Mole", "frmAtomicData", "Close screen and return to the main screen.",
     "Look up the affinity for the element you chose."},
    {"frmBonds", "Bond Length and Energy", "Bonds", kBonds, "Label1",
     "  Bond                 KJ/Mole             Length(pm)", "frmAtomicData",
     "Close the screen and return to the Atomic Data screen.",
     "Find the energy and bond length for the type of bond you chose."},
    {"frmCharacter", "Bond Character", "Character", kCharacter, "Label1",
     "Difference               %Ionic              % Covalent", "frmAtomicData",
     "Close screen and return to the main screen.",
     "Shows the difference in electronegativities and the precent of each type of bond."},
    {"frmExtraData", "Extra Data", "GasDensity", kExtraData, "Label1",
     "Gas                                                    Density", "frmMiscellaneous"},
    {"frmExtra2", "Water Density", "WaterDensity", kExtra2, "Label1", "Temperature                    Density",
     "frmMiscellaneous"},
    {"frmHalfLives",
     "Half Lives",
     "HalfLives",
     kHalfLives,
     "Label1",
     "  Element                          Half Life                            Decay Mode",
     "frmAtomicData",
     {},
     {},
     460},
};

constexpr int kMargin = 16;
constexpr int kHeaderH = 22;
constexpr int kListTop = kMargin + kHeaderH + 4;
constexpr int kListH = 320;
constexpr int kButtonW = 96;
constexpr int kButtonH = 30;
constexpr int kButtonTop = kListTop + kListH + 14;

std::vector<ControlSpec> Controls(const DataTableSpec& design) {
  const int w = design.listWidth;
  return {
      {.kind = Kind::Label,
       .name = design.headerLabel,
       .caption = design.header,
       .rect = {kMargin, kMargin, w, kHeaderH}},
      {.kind = Kind::ListBox,
       .name = "List1",
       .rect = {kMargin, kListTop, w, kListH},
       .toolTip = design.listToolTip,
       .flags = kFixedPitch},
      {.kind = Kind::Button,
       .name = "cmdCancel",
       .caption = "Cancel",
       .rect = {kMargin + w - kButtonW, kButtonTop, kButtonW, kButtonH},
       .toolTip = design.cancelToolTip,
       .flags = kCancel},
  };
}

}  // namespace

DataTableScreen::DataTableScreen(Program& program, const DataTableSpec& design)
    : Form(program, {design.name, design.caption, design.listWidth + 2 * kMargin, kButtonTop + kButtonH + kMargin},
           Controls(design)),
      design_(design) {
  Bind("Form", Ev::Load, &DataTableScreen::Form_Load);
  Bind("cmdCancel", Ev::Click, &DataTableScreen::cmdCancel_Click);
  ctl(design.headerLabel).SetColumnHeader("List1", ColumnStarts(design.columns));
}

// Nothing here is trapped: no database, an empty table or a field with no
// value ends the program.
void DataTableScreen::Form_Load() {
  data::DataStore& store = Store(program());
  data::OpenRecordset(store, "SELECT * FROM " + std::string(design_.table));
  data::Recordset& rs = data::CurrentRecordset(store);
  rs.MoveFirst();
  Control& list = ctl("List1");
  const auto row = design_.row != nullptr ? design_.row : &PaddedRow;
  while (!rs.AtEnd()) {
    list.AddItem(row(rs, design_.columns));
    rs.MoveNext();
  }
  data::CloseRecordset(store);
}

// The main screen is never disabled, so showing it is all it needs.
void DataTableScreen::cmdCancel_Click() {
  if (!design_.parent.empty()) ShowForm(design_.parent);
  Unload();
}

void RegisterDataTableScreens(ScreenRegistry& r) {
  for (const DataTableSpec& design : kTables) {
    r.screens[std::string(design.name)] = [&design](Program& p) -> std::unique_ptr<Form> {
      return std::make_unique<DataTableScreen>(p, design);
    };
  }
}

}  // namespace orv
