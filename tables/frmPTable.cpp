#include "tables/frmPTable.h"

#include <vector>

#include "data/store.h"
#include "shell/chart.h"
#include "shell/numbers.h"
#include "shell/screen_frame.h"

namespace orv {

namespace {

constexpr int kWidth = 720;
constexpr int kHeight = 500;

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Chart, .name = "MSChart1", .rect = {12, 12, 696, 432}},
    {.kind = Kind::Button, .name = "cmdDescription", .caption = "Description", .rect = {474, 456, 112, 32}},
    CancelButton({596, 456, 112, 32}),
};

constexpr std::string_view kCategoryTitle = "Atomic Number";

constexpr PTableSpec kCharts[] = {
    {"frmPTable2", "Periodic Table - Atomic Radii", "SELECT * FROM AtomicRadii", "AtomicRadii", 92, Counter::Integer16,
     "Atomic Number v. Atomic Radius", "Atomic Radius",
     "As the attraction for electrons changes, so does the radius of the atom.",
     "The atomic radius is a function of the attraction between the nucleus and the electrons. The stronger the "
     "attraction the smaller the radius and the weaker the attraction, the larger the radius. The radius shows a "
     "distinct periodic pattern. There are ups and downs corresponding to the different periods of the table. The "
     "more energy levels an element has, the weaker the attraction and the larger the radius. "},
    {"frmPTable3", "Periodic Table - Electronegativity", "SELECT * FROM Electronegativities", "Electronegativity", 94,
     Counter::Single32, "Atomic Number v. Electronegativity", "Electronegativity",
     "Atoms tend to attract electrons from the atom they are bonded to.",
     "Electronegativity is the attraction that an atom has for an electron when it is bonded to another atom.  "},
    {"frmPTable4", "Periodic Table - Affinities", "SELECT * FROM Affinities", "Affinity", 87, Counter::Single32,
     "Atomic Number v. Affinity", "Affinity",
     "Atoms try to attract electrons in order to fill their outer energy levels.",
     "Affinity is the attraction that an atom has for an electron. The stronger the attraction, the higher  the "
     "electronegativity value. Atoms try to fill their outer energy levels in order to become more stable. "},
    {"frmPTable5", "Periodic Table - Ionization Energies", "SELECT * FROM IonizationEnergy", "FIE", 102,
     Counter::Integer16, "Atomic Number v. Ionization Energy", "Ionization Energy",
     "The ionization energy is a measure of how tightly the electron is held to the atom.",
     "Ionization energy is the energy required to remove an electron. The more tightly held the electron,  the "
     "higher the ionization energy. "},
    {"frmPTable6", "Periodic Table - Density", "SELECT * FROM GeneralInfo", "Density", 102, Counter::Integer16,
     "Atomic Number v. Density", "Density",
     "As you go through the periodic table, you have more particles in a small volume.",
     "Density is the mass divided by the volume. The more atomic particles in a tiny volume like an atom, the "
     "higher the density.  "},
    {"frmPTable7", "Periodic Table - Boiling Point", "SELECT * FROM GeneralInfo", "BoilingPoint", 102,
     Counter::Integer16, "Atomic Number v. Boiling Point", "Booiling point",
     "The ups and downs in boiling point illustrate the periodic nature of the table.",
     "The boiling point is another property of an element that shows a periodic nature.  "},
};

// The chart's data table: column 0 unused, column 1 the row's label, column 2
// its value.
constexpr int kLabelColumn = 1;
constexpr int kValueColumn = 2;
constexpr int kColumns = 3;

}  // namespace

frmPTable::frmPTable(Program& program, const PTableSpec& design)
    : Form(program, {design.name, design.caption, kWidth, kHeight}, kControls), design_(design) {
  // The chart's titles are part of its design.
  Chart& chart = ctl("MSChart1").chart();
  chart.SetTitle(std::string(design.title));
  chart.SetFootnote(std::string(design.footnote));
  chart.SetCategoryTitle(std::string(kCategoryTitle));
  chart.SetValueTitle(std::string(design.valueTitle));

  Bind("Form", Ev::Load, &frmPTable::Form_Load);
  Bind("cmdDescription", Ev::Click, &frmPTable::cmdDescription_Click);
  Bind("cmdCancel", Ev::Click, &frmPTable::cmdCancel_Click);
}

void frmPTable::Form_Load() {
  data::DataStore& store = Store(program());
  data::OpenRecordset(store, std::string(design_.sql));
  data::Recordset& records = data::CurrentRecordset(store);
  records.MoveFirst();

  // A fixed number of rows with no test for the end of the records: a table
  // with fewer fails on "No current record.", and more rows are left unread.
  std::vector<std::vector<Variant>> table(static_cast<std::size_t>(design_.lastRow) + 1,
                                          std::vector<Variant>(kColumns));
  auto readRow = [&](int i) {
    auto& row = table[static_cast<std::size_t>(i)];
    row[kValueColumn] = records.Field(std::string(design_.field));
    row[kLabelColumn] = " " + Str(records.Field("AtomicNumber"));
    records.MoveNext();
  };
  if (design_.counter == Counter::Integer16) {
    for (Integer i = 0; i.value() <= design_.lastRow; ++i) readRow(i.value());
  } else {
    for (Single i = 0; Expr(i) <= design_.lastRow; i = Expr(i) + 1.0) readRow(CInt(i).value());
  }
  data::CloseRecordset(store);

  Chart& chart = ctl("MSChart1").chart();
  chart.SetChartData(table);
  chart.SetChartType(ChartType::Line2d);
  chart.SetCategoryTicks(TickStyle::Centre);
  chart.SetLabelAtTick(true);
}

void frmPTable::cmdDescription_Click() { MsgBox(design_.description, Icon::Information, kTitle); }

void frmPTable::cmdCancel_Click() {
  ShowForm("frmTableChoice");
  Unload();
}

void RegisterTrendCharts(ScreenRegistry& r) {
  for (const PTableSpec& design : kCharts) {
    r.screens[std::string(design.name)] = [&design](Program& p) -> std::unique_ptr<Form> {
      return std::make_unique<frmPTable>(p, design);
    };
  }
}

}  // namespace orv
