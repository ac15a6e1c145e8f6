#pragma once
// The program's shared data objects, held together in one visible struct that
// start-up creates and hands to the screens that read data: the open
// database, the one current record set with the SQL text it came from, and
// the cached table of element symbols and weights.
//
// Every reader goes the same way: OpenRecordset (which sets gSql), MoveFirst,
// walk with AtEnd / Field / MoveNext, Close. No reader keeps the record set
// open beyond the routine that opened it.

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/engine.h"
#include "shell/variant.h"

namespace orv {
class Program;
}

namespace orv::data {

// The name of the database file, which lies beside the executable.
inline constexpr std::string_view kDatabaseFileName = "OrvantaData.db";

// The tables that the program reads.
inline constexpr std::string_view kProgramTables[] = {
    "GeneralInfo",         "MolecularWeights",    "Temperatures",      "Constants",     "SpecificHeats",
    "SolubilityConstants", "IonizationEnergy",    "ThermodynamicData", "VaporPressure", "StandardReductions",
    "Enthalpies",          "Electronegativities", "AtomicRadii",       "Affinities",    "Bonds",
    "Character",           "GasDensity",          "WaterDensity",      "HalfLives"};

// Opens the program's database through the workspace. A database that holds
// none of the program's tables (an empty one, say) is taken for no database
// at all: it fails as a file of another kind does, with "Unrecognized
// database format '<path>'.". One that holds some of them opens, and a reader
// of a missing one meets the engine's words for it.
std::unique_ptr<Database> OpenProgramDatabase(const Workspace& workspace, const std::string& path);

// 109 rows (1 to 109) by 2 columns (0 and 1) of any-typed values: column 0 an
// element's symbol, column 1 its atomic weight. Indexed by row position in
// GeneralInfo, not by atomic number. Every cell starts Empty. A row outside
// 1..109 or a column outside 0..1 raises "Subscript out of range".
class ElementsTable {
 public:
  static constexpr int kFirstRow = 1;
  static constexpr int kLastRow = 109;
  static constexpr int kSymbolColumn = 0;
  static constexpr int kWeightColumn = 1;

  Variant& At(int row, int column);
  const Variant& At(int row, int column) const;

 private:
  std::array<std::array<Variant, 2>, kLastRow> cells_{};
};

struct DataStore {
  Workspace* gWorkspace = nullptr;
  std::unique_ptr<Database> gDatabase;  // null when the database could not be opened
  std::unique_ptr<Recordset> gRecordset;
  std::string gSql;
  ElementsTable Elements;
};

// Sets gSql to the text and opens gRecordset on gDatabase with it, replacing
// the record set that was there. Without an open database this raises
// "Object variable or With block variable not set"; engine failures raise as
// in Database::OpenRecordset (gSql is set in any case).
void OpenRecordset(DataStore& store, std::string sql);

// The current record set; "Object variable or With block variable not set"
// when none has been opened yet.
Recordset& CurrentRecordset(DataStore& store);

// Closes the current record set (the object stays, closed, as gRecordset).
void CloseRecordset(DataStore& store);

// Fills both columns of Elements from "SELECT Symbol, AtomicWeight FROM
// GeneralInfo", row 1 from the first record on, and closes the record set.
// A 110th record raises "Subscript out of range" with the record set left open
// and rows 1 to 109 filled.
void FillElements(DataStore& store);

// The same for column 0 alone, from "SELECT Symbol FROM GeneralInfo".
void FillElementSymbols(DataStore& store);

// Walks "SELECT * FROM MolecularWeights" from the first row until the field
// Substance equals the text (capitals count) and gives that row's Weight; the
// walk stops there and the record set is closed. No equal row gives nothing,
// and the caller's value stays as it was.
std::optional<Variant> FindMolecularWeight(DataStore& store, std::string_view substance);

// Walks "SELECT * FROM VaporPressure" for the first row whose Temperature, in
// its number-to-text form, equals the text as typed: "25" matches a stored 25,
// "25.0" and " 25" don't. Gives that row's Pressure; nothing on no match.
std::optional<Variant> FindVaporPressureByText(DataStore& store, std::string_view temperature);

// The same walk, comparing the number Temperature with a Celsius value for
// exact equality (the combined gas law's Kelvin value minus 273.0).
std::optional<Variant> FindVaporPressureByCelsius(DataStore& store, double celsius);

}  // namespace orv::data

namespace orv {

// The data objects of this run of the program, which start-up opens.
data::DataStore& Store(Program& program);

}  // namespace orv
