// The data store: the engine's eight operations, the shared objects and the
// look-ups that walk a table, the orvanta-mkdb build tool, and whether the
// contents of OrvantaData.db hang together as chemistry.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <ostream>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "data/engine.h"
#include "data/store.h"
#include "shell/errors.h"
#include "shell/variant.h"
#include "tests/unit/screen_run.h"

namespace orv {

// Failure messages show a value as what it holds.
[[maybe_unused]] static void PrintTo(const Variant& v, std::ostream* os) {
  if (v.IsNumber()) return void(*os << v.Number());
  *os << (v.IsEmpty() ? "Empty" : v.IsNull() ? "Null" : '"' + v.Text() + '"');
}

namespace data {
namespace {

namespace fs = std::filesystem;

const std::string kBinDir = ORVANTA_BIN_DIR;

// "<error number>: <words>" of the error that a call raises.
std::string Raised(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return std::to_string(static_cast<int>(e.code())) + ": " + e.words();
  }
  return "nothing raised";
}

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

using test::MakeDatabase;
using TempDir = test::ScratchDir;

void WriteFile(const fs::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

using Row = std::map<std::string, Variant>;

// The standard read: open, move to the first record, read every field and
// move on until the end, close.
std::vector<Row> ReadAll(DataStore& store, const std::string& sql) {
  OpenRecordset(store, sql);
  Recordset& records = CurrentRecordset(store);
  std::vector<Row> rows;
  for (records.MoveFirst(); !records.AtEnd(); records.MoveNext()) {
    Row& row = rows.emplace_back();
    for (const std::string& name : records.FieldNames()) row[name] = records.Field(name);
  }
  CloseRecordset(store);
  return rows;
}

// A field as a number or a text; NAN or "(not a text)" fail the checks made with them.
double Num(const Row& row, const std::string& field) { return row.at(field).IsNumber() ? row.at(field).Number() : NAN; }
std::string Txt(const Row& row, const std::string& field) {
  return row.at(field).IsText() ? row.at(field).Text() : "(not a text)";
}

class DataStoreTest : public ::testing::Test {
 protected:
  void SetUp() override { test::OpenRealDatabase(store); }
  std::vector<Row> Table(const std::string& name) { return ReadAll(store, "SELECT * FROM " + name); }

  DataStore store;
};

// The engine and the shared objects

// SQLite would create a missing file, make a temporary database of an empty
// name, and take a file of no bytes or with no tables for an empty database:
// none of them is the program's database, and nothing is created.
TEST(DatabaseOpen, OnlyADatabaseHoldingTheProgramsTablesOpens) {
  TempDir dir;
  const std::string missing = (dir / "OrvantaData.db").string(), text = (dir / "text.db").string(),
                    zero = (dir / "zero.db").string(), header = (dir / "header.db").string(),
                    empty = (dir / "empty.db").string(), other = (dir / "other.db").string(),
                    one = (dir / "one.db").string();
  WriteFile(text, "Symbol,AtomicWeight\nH,1.008\nThis is no database file.\n");
  WriteFile(zero, "");
  WriteFile(header, std::string("SQLite format 3\0", 16));  // the header alone, no pages
  MakeDatabase(empty, "PRAGMA user_version = 1;");
  MakeDatabase(other, "CREATE TABLE Other (X TEXT);");
  MakeDatabase(one, "CREATE TABLE Bonds (Bond TEXT, Energy REAL, Length REAL);");
  auto unrecognized = [](const std::string& file) { return "3000: Unrecognized database format '" + file + "'."; };
  const std::pair<std::string, std::string> cases[] = {{missing, "3000: Could not find file '" + missing + "'."},
                                                       {"", "3000: Could not find file ''."},
                                                       {text, unrecognized(text)},
                                                       {zero, unrecognized(zero)},
                                                       {header, unrecognized(header)},
                                                       {empty, unrecognized(empty)},
                                                       {other, unrecognized(other)},
                                                       {one, "nothing raised"},
                                                       {kBinDir + "/OrvantaData.db", "nothing raised"}};
  for (const auto& c : cases) {
    EXPECT_EQ(Raised([&] { OpenProgramDatabase(DefaultWorkspace(), c.first); }), c.second);
  }
  EXPECT_FALSE(fs::exists(missing));
  // The engine alone opens any real database; a text or a file of no bytes is none.
  EXPECT_EQ(Raised([&] { Database::Open(other); }), "nothing raised");
  EXPECT_EQ(Raised([&] { Database::Open(text); }), unrecognized(text));
  EXPECT_EQ(Raised([&] { Database::Open(zero); }), unrecognized(zero));
  EXPECT_EQ(fs::file_size(zero), 0u);
}

// A database in WAL mode would have SQLite create its -wal and -shm files
// beside it, even to read; the program writes nothing. Names with blanks and
// the characters of a URI are opened as they stand.
TEST(DatabaseOpen, AWalModeDatabaseIsReadWithoutAFileWritten) {
  TempDir dir;
  for (const std::string name : {"OrvantaData.db", "a b?c=1#d%20.db", ":memory:"}) {
    SCOPED_TRACE(name);
    const fs::path folder = dir / ("f" + std::to_string(name.size()));
    fs::create_directory(folder);
    fs::copy_file(kBinDir + "/OrvantaData.db", folder / name);
    MakeDatabase(folder / name, "PRAGMA journal_mode = WAL;");
    fs::remove(folder / (name + "-wal"));
    fs::remove(folder / (name + "-shm"));
    {
      DataStore store;
      store.gDatabase = OpenProgramDatabase(DefaultWorkspace(), (folder / name).string());
      FillElements(store);
      EXPECT_EQ(store.Elements.At(1, 0), Variant("H"));
      EXPECT_EQ(FindMolecularWeight(store, "SO4"), Variant(96.056));
    }
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(folder)) files.push_back(entry.path().filename().string());
    EXPECT_EQ(files, std::vector<std::string>{name});
  }
}

// The rows of a query text are kept: a record set opened again holds the same
// rows and walks them on its own, and closing one leaves the other whole.
TEST_F(DataStoreTest, AQueryRunAgainGivesTheSameRowsEachWalkedOnItsOwn) {
  auto first = store.gDatabase->OpenRecordset("SELECT Symbol FROM GeneralInfo");
  first->MoveFirst();
  first->MoveNext();
  auto second = store.gDatabase->OpenRecordset("SELECT Symbol FROM GeneralInfo");
  EXPECT_EQ(second->Field("Symbol"), Variant("H"));
  EXPECT_EQ(first->Field("Symbol"), Variant("He"));
  second->Close();
  EXPECT_EQ(Raised([&] { second->Field("Symbol"); }), "3000: Object invalid or no longer set.");
  EXPECT_TRUE(second->FieldNames().empty());
  first->MoveNext();
  EXPECT_EQ(first->Field("Symbol"), Variant("Li"));
  // A text that failed fails again, with the same words.
  for (int i = 0; i < 2; ++i) {
    EXPECT_PRED2(Contains, Raised([&] { store.gDatabase->OpenRecordset("SELECT * FROM Elementz"); }),
                 "cannot find the input table");
  }
}

TEST_F(DataStoreTest, EngineErrorsCarryWordsAndLeaveTheSqlText) {
  const std::pair<const char*, const char*> cases[] = {
      {"SELECT * FROM Elementz", "3000: The database engine cannot find the input table or query 'Elementz'"},
      {"SELECT Symbl FROM GeneralInfo", "3000: The database engine does not recognize 'Symbl' as a valid field"},
      {"SELECT * FRM GeneralInfo", "3000: Syntax error"},
      {"DELETE FROM Constants", "3000: Cannot update. Database or object is read-only."}};
  for (const auto& c : cases) {
    EXPECT_PRED2(Contains, Raised([&] { OpenRecordset(store, c.first); }), c.second);
    EXPECT_EQ(store.gSql, c.first);
  }
}

TEST_F(DataStoreTest, RecordSetWalkFieldsAndNulls) {
  // Opened, a record set stands on its first row: the element data screen
  // reads it without moving there.
  OpenRecordset(store, "SELECT * FROM GeneralInfo WHERE Symbol = 'He'");
  Recordset& records = CurrentRecordset(store);
  EXPECT_EQ(records.Field("ElementName"), Variant("Helium"));
  EXPECT_EQ(records.Field("atomicnumber"), Variant(2.0));      // names match whatever the case
  EXPECT_EQ(records.Field("FreezingPoint"), Variant(Null{}));  // helium does not freeze at 1 atm
  EXPECT_EQ(records.Field("Charge"), Variant(Null{}));
  EXPECT_EQ(Raised([&] { records.Field("Units"); }), "3000: Item not found in this collection.");
  records.MoveNext();
  EXPECT_TRUE(records.AtEnd());
  EXPECT_EQ(Raised([&] { records.Field("Symbol"); }), "3021: No current record.");
  EXPECT_EQ(Raised([&] { records.MoveNext(); }), "3021: No current record.");
  CloseRecordset(store);
  EXPECT_EQ(Raised([&] { records.AtEnd(); }), "3000: Object invalid or no longer set.");

  OpenRecordset(store, "SELECT * FROM GeneralInfo WHERE Symbol = 'Xx'");
  EXPECT_TRUE(CurrentRecordset(store).AtEnd());
  EXPECT_EQ(Raised([&] { CurrentRecordset(store).MoveFirst(); }), "3021: No current record.");
}

TEST(SharedObjects, WithoutADatabaseEveryReaderFailsWithObjectNotSet) {
  DataStore store;
  const std::function<void()> readers[] = {[&] { CurrentRecordset(store); },
                                           [&] { OpenRecordset(store, "SELECT * FROM Constants"); },
                                           [&] { FindMolecularWeight(store, "OH"); },
                                           [&] { FindVaporPressureByText(store, "25"); }, [&] { FillElements(store); }};
  for (const auto& reader : readers) EXPECT_EQ(Raised(reader), "91: Object variable or With block variable not set");
  EXPECT_EQ(store.gSql, "SELECT Symbol, AtomicWeight FROM GeneralInfo");
}

TEST_F(DataStoreTest, ElementsHoldGeneralInfoInRecordOrder) {
  store.Elements.At(5, 1) = Variant(99.0);
  FillElementSymbols(store);  // column 0 alone
  EXPECT_EQ(store.gSql, "SELECT Symbol FROM GeneralInfo");
  EXPECT_EQ(store.Elements.At(5, 0), Variant("B"));
  EXPECT_EQ(store.Elements.At(5, 1), Variant(99.0));

  FillElements(store);
  EXPECT_EQ(store.gSql, "SELECT Symbol, AtomicWeight FROM GeneralInfo");
  EXPECT_FALSE(CurrentRecordset(store).IsOpen());
  const auto table = Table("GeneralInfo");
  for (std::size_t row = 1; row <= 109 && row <= table.size(); ++row) {
    EXPECT_EQ(store.Elements.At(row, 0), table[row - 1].at("Symbol")) << row;
    EXPECT_EQ(store.Elements.At(row, 1), table[row - 1].at("AtomicWeight")) << row;
  }
}

TEST(ElementsTable, OutsideRows1To109AndColumns0To1IsASubscriptError) {
  ElementsTable elements;
  for (const auto& cell : std::vector<std::pair<int, int>>{{0, 0}, {110, 0}, {1, 2}, {1, -1}}) {
    EXPECT_EQ(Raised([&] { elements.At(cell.first, cell.second); }), "9: Subscript out of range") << cell.first;
  }
  // A 110th record in GeneralInfo fails the fill after 109 rows, before its Close.
  TempDir dir;
  std::string sql = "BEGIN; CREATE TABLE GeneralInfo (Symbol TEXT, AtomicWeight REAL);";
  for (int i = 1; i <= 110; ++i) sql += "INSERT INTO GeneralInfo VALUES ('E" + std::to_string(i) + "', 1);";
  MakeDatabase(dir / "g.db", sql + "COMMIT;");
  DataStore store;
  store.gDatabase = Database::Open((dir / "g.db").string());
  EXPECT_EQ(Raised([&] { FillElements(store); }), "9: Subscript out of range");
  EXPECT_EQ(store.Elements.At(109, 0), Variant("E109"));
  EXPECT_TRUE(CurrentRecordset(store).IsOpen());
}

// The look-ups by walking

TEST_F(DataStoreTest, LookUpsMatchExactText) {
  // Each case: by typed temperature in VaporPressure (true) or by substance in MolecularWeights.
  const std::tuple<bool, const char*, std::optional<Variant>> cases[] = {
      {false, "SO4", 96.056}, {false, "NH4", 18.039}, {false, "so4", {}},  {false, "SO4 ", {}},
      {false, "XY2", {}},     {true, "25", 3.1697},   {true, "0", 0.6112}, {true, "100", 101.418},
      {true, "25.0", {}},     {true, " 25", {}},      {true, "025", {}},   {true, "101", {}}};
  for (const auto& [vapour, text, expected] : cases) {
    EXPECT_EQ(vapour ? FindVaporPressureByText(store, text) : FindMolecularWeight(store, text), expected)
        << '"' << text << '"';
    EXPECT_EQ(store.gSql, vapour ? "SELECT * FROM VaporPressure" : "SELECT * FROM MolecularWeights");
    EXPECT_FALSE(CurrentRecordset(store).IsOpen());
  }
  // The combined gas law compares its Kelvin value minus 273.0 as a number.
  EXPECT_EQ(FindVaporPressureByCelsius(store, 298.0 - 273.0), Variant(3.1697));
  EXPECT_FALSE(FindVaporPressureByCelsius(store, 298.15 - 273.0));
}

TEST(LookUps, TheFirstEqualRowWinsAndNullsEqualNothing) {
  TempDir dir;
  MakeDatabase(dir / "w.db",
               "CREATE TABLE MolecularWeights (Substance TEXT, Weight REAL);"
               "INSERT INTO MolecularWeights VALUES (NULL, 1), ('OH', 17), ('OH', 99), ('', 5);"
               "CREATE TABLE VaporPressure (Temperature INTEGER, Pressure REAL);"
               "INSERT INTO VaporPressure VALUES (NULL, 7), (30, 4.2), (30, 99);");
  DataStore store;
  store.gDatabase = Database::Open((dir / "w.db").string());
  EXPECT_EQ(FindMolecularWeight(store, "OH"), Variant(17.0));
  EXPECT_EQ(FindMolecularWeight(store, ""), Variant(5.0));
  EXPECT_EQ(FindVaporPressureByText(store, "30"), Variant(4.2));
  EXPECT_FALSE(FindVaporPressureByText(store, ""));
}

// The tables of the real data

// Every table with its fields as the readers name them, at least as many rows
// as its readers take, and a number field within a plausible range. The chart
// screens read a fixed count (93, 95, 88, 103) with no test for the end: that
// many reads succeed, and a read past the table's last row fails.
TEST_F(DataStoreTest, EveryTableHasItsFieldsRowsAndPlausibleValues) {
  const std::string general_info =
      "AtomicNumber,Symbol,ElementName,AtomicWeight,State,Charge,Configuration,GroupName,Density,FreezingPoint,"
      "BoilingPoint";
  const std::tuple<const char*, std::string, int, const char*, double, double> cases[] = {
      {"GeneralInfo", general_info, 109, "BoilingPoint", -273.15, 6000},
      {"IonizationEnergy", "Substance,FIE,AtomicNumber", 103, "FIE", 350, 2400},  // kJ/mol
      {"Electronegativities", "Element,Electronegativity,AtomicNumber", 95, "Electronegativity", 0.7, 4.0},
      {"AtomicRadii", "Substance,AtomicRadii,AtomicNumber", 93, "AtomicRadii", 25, 270},  // pm
      {"Affinities", "Element,Affinity,AtomicNumber", 88, "Affinity", -120, 350},         // kJ/mol
      {"MolecularWeights", "Substance,Weight", 1, "Weight", 2, 400},
      {"Temperatures", "Compound,FreezingPoint,FPDepression,BoilingPoint,BPElevation", 1, "FPDepression", 1, 50},
      {"Constants", "Constant,value", 1, "value", -1e30, 1e30},                 // a number, whatever its size
      {"SpecificHeats", "Substance,SpecificHeat", 1, "SpecificHeat", 0.1, 15},  // J/(g K)
      {"SolubilityConstants", "Substance,Ksp", 1, "Ksp", 1e-60, 1e-3},
      {"ThermodynamicData", "Substance,Hf,Gf,S", 1, "S", 0, 400},  // J/(mol K)
      {"VaporPressure", "Temperature,Pressure", 1, "Pressure", 0.6, 102},
      {"StandardReductions", "HalfReaction,Volts", 1, "Volts", -3.1, 2.9},
      {"Enthalpies", "Element,EofFusion,EofVaporization", 1, "EofFusion", 0.1, 60},  // kJ/mol
      {"Bonds", "Bond,Energy,Length", 1, "Length", 60, 300},                         // pm
      {"Character", "Difference,Ionic,Covalent", 1, "Ionic", 0, 100},
      {"GasDensity", "Gas,Density", 1, "Density", 0.05, 10},  // g/L
      {"WaterDensity", "Temperature,Density", 1, "Density", 0.95, 1.0},
      {"HalfLives", "Substance,HalfLife,HalfLifeUnit,DecayMode", 1, "HalfLife", 1e-3, 1e6}};
  for (const auto& [table, fields, count, field, low, high] : cases) {
    SCOPED_TRACE(table);
    OpenRecordset(store, std::string("SELECT * FROM ") + table);
    Recordset& records = CurrentRecordset(store);
    std::string names;
    for (const std::string& name : records.FieldNames()) names += (names.empty() ? "" : ",") + name;
    EXPECT_EQ(names, fields);
    records.MoveFirst();
    for (int i = 0; i < count; ++i, records.MoveNext()) ASSERT_FALSE(records.AtEnd()) << "row " << i + 1;
    for (records.MoveFirst(); !records.AtEnd(); records.MoveNext()) {
      const Variant value = records.Field(field);
      EXPECT_TRUE(value.IsNull() || (value.IsNumber() && value.Number() >= low && value.Number() <= high))
          << field << " " << testing::PrintToString(value);
    }
    EXPECT_EQ(Raised([&] { records.Field(records.FieldNames()[0]); }), "3021: No current record.");
  }
}

// Consistency of the element data

// The electrons of a configuration such as "[Ar] 3d10 4s2 4p3": those of the
// noble-gas core and of each subshell, which must hold no more than it can.
int Electrons(const std::string& configuration) {
  const std::map<std::string, int> cores = {{"[He]", 2},  {"[Ne]", 10}, {"[Ar]", 18},
                                            {"[Kr]", 36}, {"[Xe]", 54}, {"[Rn]", 86}};
  int electrons = cores.count(configuration.substr(0, 4)) ? cores.at(configuration.substr(0, 4)) : 0;
  const std::regex subshell("[1-7]([spdf])([0-9]+)");
  for (std::sregex_iterator it(configuration.begin(), configuration.end(), subshell), end; it != end; ++it) {
    electrons += std::stoi((*it)[2]);
    EXPECT_LE(std::stoi((*it)[2]), 2 + 4 * int(std::string("spdf").find((*it)[1]))) << configuration;
  }
  return electrons;
}

TEST_F(DataStoreTest, GeneralInfoHoldsElements1To109InOrder) {
  const auto rows = Table("GeneralInfo");
  ASSERT_EQ(rows.size(), 109u);
  const std::set<std::string> nullable = {"Charge", "Configuration", "Density", "FreezingPoint", "BoilingPoint"};
  const std::set<std::string> gases = {"H", "He", "N", "O", "F", "Ne", "Cl", "Ar", "Kr", "Xe", "Rn"};
  const std::regex symbol("[A-Z][a-z]?"), name("[A-Z][a-z]+"), charge("[+-][1-8](, [+-][1-8])*");
  std::set<std::string> symbols, names;
  double previous_weight = 0;
  for (int z = 1; z <= 109; ++z) {
    const Row& row = rows[z - 1u];
    const std::string sym = Txt(row, "Symbol"), state = Txt(row, "State");
    SCOPED_TRACE(sym);
    EXPECT_EQ(Num(row, "AtomicNumber"), z);
    EXPECT_TRUE(std::regex_match(sym, symbol) && symbols.insert(sym).second);
    EXPECT_TRUE(std::regex_match(Txt(row, "ElementName"), name) && names.insert(Txt(row, "ElementName")).second);
    for (const auto& [field, value] : row) EXPECT_TRUE(nullable.count(field) || !value.IsNull()) << field;
    // Weights rise with the number, a few neighbours (Ar-K, Co-Ni, Te-I, Th-Pa) inverted by little.
    const double weight = Num(row, "AtomicWeight");
    EXPECT_TRUE(weight >= z && weight <= 2.6 * z && weight > previous_weight - 1.5) << weight;
    previous_weight = weight;
    const char* usual_state = gases.count(sym) ? "Gas" : (sym == "Br" || sym == "Hg") ? "Liquid" : "Solid";
    EXPECT_EQ(state, z > 103 ? "Unknown" : usual_state);
    EXPECT_TRUE(row.at("Charge").IsNull() || std::regex_match(Txt(row, "Charge"), charge)) << Txt(row, "Charge");
    EXPECT_EQ(row.at("Configuration").IsNull() ? z : Electrons(Txt(row, "Configuration")), z);
    // Gases in g/L at 0 degrees C and 1 atm, everything else in g/cm3.
    const double density = row.at("Density").IsNull() ? 1 : Num(row, "Density");
    EXPECT_TRUE(state == "Gas" ? density > 0.05 && density < 10 : density > 0.5 && density < 23) << density;
    // Melting below boiling, and both agree with the state at 25 degrees C.
    const double mp = row.at("FreezingPoint").IsNull() ? NAN : Num(row, "FreezingPoint");
    const double bp = row.at("BoilingPoint").IsNull() ? NAN : Num(row, "BoilingPoint");
    EXPECT_FALSE(mp >= bp) << mp << " " << bp;
    EXPECT_TRUE(std::isnan(mp) || (mp < 25) == (state != "Solid")) << mp;
    EXPECT_TRUE(std::isnan(bp) || (bp < 25) == (state == "Gas")) << bp;
  }
}

TEST_F(DataStoreTest, TrendTablesFollowTheElements) {
  std::map<int, std::string> names;
  for (const Row& row : Table("GeneralInfo")) names[int(Num(row, "AtomicNumber"))] = Txt(row, "ElementName");
  std::map<std::string, std::map<int, double>> values;
  const char* const tables[][3] = {{"IonizationEnergy", "Substance", "FIE"},
                                   {"AtomicRadii", "Substance", "AtomicRadii"},
                                   {"Electronegativities", "Element", "Electronegativity"},
                                   {"Affinities", "Element", "Affinity"}};
  for (const auto& [table, name_field, value_field] : tables) {
    int previous = 0;
    for (const Row& row : Table(table)) {
      const int z = static_cast<int>(Num(row, "AtomicNumber"));
      EXPECT_GT(z, previous) << table;  // by rising atomic number, no repeats
      EXPECT_EQ(Txt(row, name_field), names[z]) << table;
      previous = z;
      values[table][z] = Num(row, value_field);
    }
  }
  // In each period the alkali metal has the lowest first ionization energy
  // and the noble gas the highest; fluorine is the most electronegative.
  auto& ie = values["IonizationEnergy"];
  for (const auto& [first, last] : std::vector<std::pair<int, int>>{{3, 10}, {11, 18}, {19, 36}, {37, 54}, {55, 86}}) {
    for (int z = first; z <= last; ++z) EXPECT_TRUE(ie[first] <= ie[z] && ie[z] <= ie[last]) << z;
  }
  for (const auto& [z, value] : values["Electronegativities"]) EXPECT_LE(value, values["Electronegativities"][9]) << z;
}

// Consistency of the other tables

// The formula weight of symbols with counts ("C2H3O2"), NAN for an unknown
// symbol. Brackets are not read, so a formula with them does not add up.
double FormulaWeight(const std::string& formula, const std::map<std::string, double>& weights) {
  const std::regex part("([A-Z][a-z]?)([0-9]*)");
  double total = 0;
  for (auto it = std::sregex_iterator(formula.begin(), formula.end(), part); it != std::sregex_iterator(); ++it) {
    if (!weights.count((*it)[1])) return NAN;
    total += weights.at((*it)[1]) * ((*it)[2].length() ? std::stoi((*it)[2]) : 1);
  }
  return total;
}

TEST_F(DataStoreTest, MolecularWeightsAgreeWithAtomicWeights) {
  std::map<std::string, double> weights;
  for (const Row& row : Table("GeneralInfo")) weights[Txt(row, "Symbol")] = Num(row, "AtomicWeight");
  std::set<std::string> seen;
  for (const Row& row : Table("MolecularWeights")) {
    const std::string substance = Txt(row, "Substance");
    EXPECT_TRUE(seen.insert(substance).second) << substance << " listed twice";
    EXPECT_NEAR(Num(row, "Weight"), FormulaWeight(substance, weights), 1e-3) << substance;
  }
  // The groups that students type between brackets.
  for (const char* group : {"SO4", "NO3", "OH", "PO4", "CO3", "NH4", "C2H3O2"}) EXPECT_TRUE(seen.count(group)) << group;
}

TEST_F(DataStoreTest, SmallTablesAgreeWithPhysics) {
  // IAPWS-IF97 saturation pressure of water from its temperature, in kPa.
  const double n[] = {0.11670521452767e4,  -0.72421316703206e6, -0.17073846940092e2, 0.12020824702470e5,
                      -0.32325550322333e7, 0.14915108613530e2,  -0.48232657361591e4, 0.40511340542057e6,
                      -0.23855557567849,   0.65017534844798e3};
  auto kpa = [&](double celsius) {
    const double t = celsius + 273.15, th = t + n[8] / (t - n[9]);
    const double a = th * th + n[0] * th + n[1], b = n[2] * th * th + n[3] * th + n[4],
                 c = n[5] * th * th + n[6] * th + n[7];
    return std::pow(2 * c / (-b + std::sqrt(b * b - 4 * a * c)), 4) * 1000;
  };
  const auto pressures = Table("VaporPressure");
  ASSERT_EQ(pressures.size(), 101u);  // one row per degree, 0 to 100
  for (std::size_t i = 0; i < pressures.size(); ++i) {
    EXPECT_EQ(Num(pressures[i], "Temperature"), i);
    EXPECT_NEAR(Num(pressures[i], "Pressure"), kpa(i), 1e-4 * kpa(i) + 1e-4) << i;
  }
  // Water is densest at 4 degrees C.
  std::map<double, double> by_density;
  for (const Row& row : Table("WaterDensity")) by_density[Num(row, "Density")] = Num(row, "Temperature");
  EXPECT_EQ(by_density.rbegin()->second, 4.0);
  // Solvents freeze below their boiling point; elements melt with less heat than they boil.
  for (const Row& row : Table("Temperatures")) EXPECT_LT(Num(row, "FreezingPoint"), Num(row, "BoilingPoint"));
  for (const Row& row : Table("Enthalpies")) EXPECT_LT(Num(row, "EofFusion"), Num(row, "EofVaporization"));
  // Bond character by Pauling's rule: % ionic = 100 (1 - exp(-d^2 / 4)).
  double previous = -1;
  for (const Row& row : Table("Character")) {
    const double d = Num(row, "Difference"), ionic = Num(row, "Ionic");
    EXPECT_GT(d, previous);
    previous = d;
    EXPECT_NEAR(ionic + Num(row, "Covalent"), 100.0, 1e-9) << d;
    EXPECT_NEAR(ionic, 100 * (1 - std::exp(-d * d / 4)), 0.051) << d;
  }
  // Reduction potentials from the strongest oxidiser down, hydrogen at zero.
  previous = 10;
  std::optional<double> hydrogen;  // the reference electrode
  for (const Row& row : Table("StandardReductions")) {
    EXPECT_LE(Num(row, "Volts"), previous) << Txt(row, "HalfReaction");
    previous = Num(row, "Volts");
    if (Txt(row, "HalfReaction") == "2H+ + 2e- -> H2(g)") hydrogen = previous;
  }
  EXPECT_EQ(hydrogen, 0.0);
}

TEST_F(DataStoreTest, FreeEnergiesAgreeWithEnthalpiesAndEntropies) {
  std::map<std::string, Row> data;
  for (Row& row : Table("ThermodynamicData")) EXPECT_TRUE(data.emplace(Txt(row, "Substance"), row).second);
  // Elements in their standard states are the zero of formation.
  for (const char* element : {"H2(g)", "O2(g)", "N2(g)", "C(graphite)", "Na(s)"}) {
    EXPECT_TRUE(Num(data[element], "Hf") == 0 && Num(data[element], "Gf") == 0) << element;
  }
  // Gf = Hf - T (S - the elements' S) at 298.15 K, within rounding.
  const std::pair<const char*, std::vector<std::pair<const char*, double>>> cases[] = {
      {"H2O(l)", {{"H2(g)", 1}, {"O2(g)", 0.5}}},
      {"NH3(g)", {{"N2(g)", 0.5}, {"H2(g)", 1.5}}},
      {"SO3(g)", {{"S(rhombic)", 1}, {"O2(g)", 1.5}}},
      {"NaCl(s)", {{"Na(s)", 1}, {"Cl2(g)", 0.5}}},
      {"C6H12O6(s)", {{"C(graphite)", 6}, {"H2(g)", 6}, {"O2(g)", 3}}},
      {"CaCO3(s)", {{"Ca(s)", 1}, {"C(graphite)", 1}, {"O2(g)", 1.5}}}};
  for (const auto& [compound, elements] : cases) {
    Row& row = data[compound];
    double s_elements = 0;
    for (const auto& [element, moles] : elements) s_elements += moles * Num(data[element], "S");
    EXPECT_NEAR(Num(row, "Gf"), Num(row, "Hf") - 298.15 * (Num(row, "S") - s_elements) / 1000, 1.0) << compound;
  }
}

TEST_F(DataStoreTest, BondsAndHalfLivesAreConsistent) {
  // Bonds: single "-", double "=", triple "#"; multiple bonds are stronger and shorter.
  std::map<std::string, std::pair<double, double>> bonds;
  for (const Row& row : Table("Bonds")) {
    const std::pair<double, double> energy_length(Num(row, "Energy"), Num(row, "Length"));
    EXPECT_TRUE(bonds.emplace(Txt(row, "Bond"), energy_length).second) << Txt(row, "Bond") << " listed twice";
  }
  for (const std::string pair : {"C-C", "C-N", "N-N"}) {
    const auto &single = bonds[pair], &twin = bonds[pair.substr(0, 1) + "=" + pair.substr(2)],
               &triple = bonds[pair.substr(0, 1) + "#" + pair.substr(2)];
    EXPECT_TRUE(single.first < twin.first && twin.first < triple.first) << pair;
    EXPECT_TRUE(single.second > twin.second && twin.second > triple.second) << pair;
  }
  // Half lives: a number in one of the known units, and a known decay mode.
  const std::set<std::string> units = {"microseconds", "seconds", "minutes", "hours", "days", "years", "million years"};
  const std::set<std::string> modes = {"Alpha", "Beta", "Positron", "Elec capture", "Gamma"};
  for (const Row& row : Table("HalfLives")) {
    EXPECT_TRUE(units.count(Txt(row, "HalfLifeUnit")) && modes.count(Txt(row, "DecayMode"))) << Txt(row, "Substance");
  }
}

// The build tool

// Runs orvanta-mkdb on a schema and table files into dir/out.db; gives the
// exit status and what the tool wrote to stderr.
std::pair<int, std::string> RunMkdb(const TempDir& dir, const std::string& schema,
                                    const std::map<std::string, std::string>& files) {
  fs::create_directories(dir / "tables");
  WriteFile(dir / "schema.sql", schema);
  for (const auto& [name, text] : files) WriteFile(dir / "tables" / name, text);
  const std::string command = "\"" + kBinDir + "/orvanta-mkdb\" \"" + (dir / "schema.sql").string() + "\" \"" +
                              (dir / "tables").string() + "\" \"" + (dir / "out.db").string() + "\" 2> \"" +
                              (dir / "stderr.txt").string() + "\"";
  const int status = std::system(command.c_str());
  std::ifstream in(dir / "stderr.txt");
  return {status, std::string(std::istreambuf_iterator<char>(in), {})};
}

const std::string kSchema =
    "CREATE TABLE T (Name TEXT NOT NULL, Charge TEXT, N INTEGER NOT NULL, X REAL);\n"
    "CREATE TABLE U (Label TEXT);\n";

TEST(Mkdb, RejectsMalformedTablesAndLeavesNoDatabase) {
  // Each case: more schema, the text of T.csv (nullptr: no such file), the message.
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"", "Name,Charge,N,X\na,b,1,2\nc,+1, +2,3,4\n", "T.csv:3: expected 4 fields, found 5"},
      {"", "Name,Charge,N,X\na,b,1, 2\n", "T.csv:2: field X must be a number, found \" 2\""},
      {"", "Name,Charge,N,X\na,b,25.0,2\n", "T.csv:2: field N must be a whole number"},
      {"", "Name,Charge,N,X\na,\"+1, +2,1,2\n", "T.csv:2: unterminated quoted field"},
      {"", "Name,Charges,N,X\n", "T.csv:1: the header must be \"Name,Charge,N,X\""},
      {"", nullptr, "T.csv: missing"},
      {"CREATE INDEX ByName ON T (Name);", "Name,Charge,N,X\n", "index ByName"}};
  for (const auto& [extra_schema, t_csv, expected] : cases) {
    TempDir dir;
    WriteFile(dir / "out.db", "an older database");  // must not survive a failed build
    std::map<std::string, std::string> files = {{"U.csv", "Label\nu\n"}};
    if (t_csv) files["T.csv"] = t_csv;
    const auto [status, message] = RunMkdb(dir, kSchema + extra_schema, files);
    EXPECT_NE(status, 0) << expected;
    EXPECT_PRED2(Contains, message, expected);
    EXPECT_FALSE(fs::exists(dir / "out.db") || fs::exists(dir / "out.db.tmp")) << expected;
  }
}

TEST(Mkdb, StoresRowsInFileOrderWithQuotedFieldsAndNulls) {
  TempDir dir;
  WriteFile(dir / "out.db", "an older database");  // replaced by the new one
  // Windows line ends, a blank line, quoted commas and quotes, NULLs.
  const std::string t_csv =
      "Name,Charge,N,X\r\nzinc,\"+2\",30,65.38\r\nargon,,18,"
      "\r\n\"say \"\"hi\"\"\",\"+1, -1\",1,-1.5E-3\r\n\r\nboron,\"\",5,10\r\n";
  const auto [status, message] = RunMkdb(dir, kSchema, {{"U.csv", "Label\n"}, {"T.csv", t_csv}});
  ASSERT_EQ(status, 0) << message;
  DataStore store;
  store.gDatabase = Database::Open((dir / "out.db").string());
  const std::vector<Row> expected = {
      {{"Name", "zinc"}, {"Charge", "+2"}, {"N", 30.0}, {"X", 65.38}},
      {{"Name", "argon"}, {"Charge", Null{}}, {"N", 18.0}, {"X", Null{}}},
      {{"Name", "say \"hi\""}, {"Charge", "+1, -1"}, {"N", 1.0}, {"X", -1.5E-3}},
      {{"Name", "boron"}, {"Charge", ""}, {"N", 5.0}, {"X", 10.0}}};  // "" is an empty text, not NULL
  EXPECT_EQ(ReadAll(store, "SELECT * FROM T"), expected);
}

}  // namespace
}  // namespace data
}  // namespace orv
