// The data store: the engine's eight operations, the shared objects and their
// look-ups, the contents of OrvantaData.db, and the build tool's refusal of
// malformed table files.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "data/csv.h"
#include "data/engine.h"
#include "data/store.h"
#include "shell/errors.h"
#include "shell/variant.h"

namespace orv::data {
namespace {

namespace fs = std::filesystem;

const std::string kBinDir = ORVANTA_BIN_DIR;
const std::string kDatabasePath = kBinDir + "/" + std::string(kDatabaseFileName);
const std::string kMkdb = kBinDir + "/orvanta-mkdb";

// The error a call raises, or nothing.
std::optional<RuntimeError> ErrorOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e;
  }
  return std::nullopt;
}

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

// A private directory that goes away with the test.
class TempDir {
 public:
  TempDir() {
    std::string pattern = (fs::temp_directory_path() / "orvanta-data-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
    path_ = pattern;
  }
  ~TempDir() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

void WriteFile(const fs::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
}

std::string ReadFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// A small database written straight through SQLite, for cases that the real
// data must not have (an empty table, a 110th element, duplicate rows).
void MakeDatabase(const fs::path& path, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(path.string().c_str(), &db), SQLITE_OK);
  char* message = nullptr;
  const int result = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &message);
  const std::string words = message ? message : "";
  sqlite3_free(message);
  sqlite3_close(db);
  ASSERT_EQ(result, SQLITE_OK) << words;
}

using Row = std::map<std::string, Variant>;

// Reads a whole table through the standard read: set gSql and open, move to
// the first record, read every field and move on until the end, close.
std::vector<Row> ReadAll(DataStore& store, const std::string& table) {
  OpenRecordset(store, "SELECT * FROM " + table);
  Recordset& records = CurrentRecordset(store);
  std::vector<Row> rows;
  records.MoveFirst();
  while (!records.AtEnd()) {
    Row row;
    for (const std::string& name : records.FieldNames()) row[name] = records.Field(name);
    rows.push_back(std::move(row));
    records.MoveNext();
  }
  CloseRecordset(store);
  return rows;
}

double Num(const Row& row, const std::string& field) {
  const Variant& v = row.at(field);
  EXPECT_TRUE(v.IsNumber()) << field;
  return v.IsNumber() ? v.Number() : NAN;
}

std::string Txt(const Row& row, const std::string& field) {
  const Variant& v = row.at(field);
  EXPECT_TRUE(v.IsText()) << field;
  return v.IsText() ? v.Text() : std::string();
}

class DataStoreTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(fs::exists(kDatabasePath)) << kDatabasePath;
    store.gWorkspace = &DefaultWorkspace();
    store.gDatabase = store.gWorkspace->OpenDatabase(kDatabasePath);
  }

  std::vector<Row> Table(const std::string& name) { return ReadAll(store, name); }

  // Element name and weight by atomic number.
  std::map<int, Row> ElementsByNumber() {
    std::map<int, Row> elements;
    for (Row& row : Table("GeneralInfo")) elements[static_cast<int>(Num(row, "AtomicNumber"))] = row;
    return elements;
  }

  DataStore store;
};

// ---------------------------------------------------------------------------
// Opening a database

TEST(DatabaseOpen, MissingFileFailsAndIsNotCreated) {
  TempDir dir;
  const fs::path missing = dir.path() / "OrvantaData.db";
  const auto error = ErrorOf([&] { Database::Open(missing.string()); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->code(), ErrorCode::Engine);
  EXPECT_EQ(error->words(), "Could not find file '" + missing.string() + "'.");
  EXPECT_FALSE(fs::exists(missing));
  EXPECT_TRUE(fs::is_empty(dir.path()));
}

TEST(DatabaseOpen, NamesThatSqliteTreatsSpeciallyAreOnlyFiles) {
  for (const std::string name : {"", ":memory:", "file::memory:"}) {
    SCOPED_TRACE(name);
    const auto error = ErrorOf([&] { DefaultWorkspace().OpenDatabase(name); });
    ASSERT_TRUE(error);
    EXPECT_TRUE(Contains(error->words(), "Could not find file")) << error->words();
  }
}

TEST(DatabaseOpen, FileThatIsNoDatabaseFails) {
  TempDir dir;
  const fs::path path = dir.path() / "OrvantaData.db";
  WriteFile(path, "Symbol,AtomicWeight\nH,1.008\nThis is not a database file at all, just some text.\n");
  const auto error = ErrorOf([&] { Database::Open(path.string()); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->code(), ErrorCode::Engine);
  EXPECT_TRUE(Contains(error->words(), "Unrecognized database format")) << error->words();
}

TEST(DatabaseOpen, NothingIsWrittenThroughTheEngine) {
  TempDir dir;
  const fs::path path = dir.path() / "t.db";
  MakeDatabase(path, "CREATE TABLE T (A INTEGER); INSERT INTO T VALUES (1);");
  auto db = Database::Open(path.string());
  for (const std::string sql : {"DELETE FROM T", "INSERT INTO T VALUES (2)", "DROP TABLE T"}) {
    SCOPED_TRACE(sql);
    const auto error = ErrorOf([&] { db->OpenRecordset(sql); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code(), ErrorCode::Engine);
    EXPECT_TRUE(Contains(error->words(), "read-only")) << error->words();
  }
  auto records = db->OpenRecordset("SELECT * FROM T");
  EXPECT_EQ(records->Field("A"), Variant(1.0));
  records->MoveNext();
  EXPECT_TRUE(records->AtEnd());
}

// ---------------------------------------------------------------------------
// The record set's operations

TEST_F(DataStoreTest, EngineErrorsCarryWords) {
  struct Case {
    const char* sql;
    const char* words;
  };
  const Case cases[] = {
      {"SELECT * FROM Elementz", "cannot find the input table or query 'Elementz'"},
      {"SELECT Symbl FROM GeneralInfo", "does not recognize 'Symbl' as a valid field name"},
      {"SELECT * FROM GeneralInfo WHERE Sym = 'H'", "does not recognize 'Sym'"},
      {"SELECT * FRM GeneralInfo", "Syntax error"},
      {"SELECT * FROM GeneralInfo WHERE Symbol = 'H", "unrecognized token"},
      {"", "Invalid SQL statement"},
      {"SELECT * FROM Bonds; SELECT * FROM Constants", "Characters found after end of SQL statement."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.sql);
    const auto error = ErrorOf([&] { OpenRecordset(store, c.sql); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code(), ErrorCode::Engine);
    EXPECT_TRUE(Contains(error->words(), c.words)) << error->words();
    EXPECT_EQ(store.gSql, c.sql);
  }
}

TEST_F(DataStoreTest, EmptyResultHasNoCurrentRecord) {
  OpenRecordset(store, "SELECT * FROM GeneralInfo WHERE Symbol = 'Xx'");
  Recordset& records = CurrentRecordset(store);
  EXPECT_TRUE(records.AtEnd());
  for (const auto& operation : std::vector<std::function<void()>>{
           [&] { records.MoveFirst(); }, [&] { records.MoveNext(); }, [&] { records.Field("Symbol"); }}) {
    const auto error = ErrorOf(operation);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code(), ErrorCode::NoCurrentRecord);
    EXPECT_EQ(error->words(), "No current record.");
  }
}

TEST_F(DataStoreTest, EmptyTableFailsAtMoveFirst) {
  TempDir dir;
  MakeDatabase(dir.path() / "e.db", "CREATE TABLE Bonds (Bond TEXT, Energy REAL, Length REAL);");
  store.gDatabase = Database::Open((dir.path() / "e.db").string());
  OpenRecordset(store, "SELECT * FROM Bonds");
  const auto error = ErrorOf([&] { CurrentRecordset(store).MoveFirst(); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->words(), "No current record.");
}

TEST_F(DataStoreTest, OpenedRecordSetStandsOnItsFirstRow) {
  // The element data screen reads the first record without moving there.
  OpenRecordset(store, "SELECT * FROM GeneralInfo WHERE Symbol = 'O'");
  Recordset& records = CurrentRecordset(store);
  EXPECT_EQ(records.Field("ElementName"), Variant("Oxygen"));
  EXPECT_EQ(records.Field("AtomicNumber"), Variant(8.0));
  records.MoveNext();
  EXPECT_TRUE(records.AtEnd());
}

TEST_F(DataStoreTest, FieldsByNameWhateverTheCase) {
  OpenRecordset(store, "SELECT * FROM Constants");
  Recordset& records = CurrentRecordset(store);
  records.MoveFirst();
  EXPECT_EQ(records.Field("value"), records.Field("Value"));
  EXPECT_EQ(records.Field("constant"), records.Field("Constant"));
  const auto error = ErrorOf([&] { records.Field("Units"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->words(), "Item not found in this collection.");
}

TEST_F(DataStoreTest, ValuesComeAsNullNumberOrText) {
  OpenRecordset(store, "SELECT * FROM GeneralInfo WHERE AtomicNumber =2");
  Recordset& records = CurrentRecordset(store);
  records.MoveFirst();
  EXPECT_TRUE(records.Field("FreezingPoint").IsNull());  // helium does not freeze at normal pressure
  EXPECT_TRUE(records.Field("Charge").IsNull());
  EXPECT_TRUE(records.Field("BoilingPoint").IsNumber());
  EXPECT_TRUE(records.Field("AtomicNumber").IsNumber());
  EXPECT_EQ(records.Field("Symbol"), Variant("He"));
}

TEST_F(DataStoreTest, ClosedRecordSetIsNoLongerUsable) {
  OpenRecordset(store, "SELECT * FROM Bonds");
  CloseRecordset(store);
  Recordset& records = CurrentRecordset(store);
  EXPECT_FALSE(records.IsOpen());
  for (const auto& operation : std::vector<std::function<void()>>{
           [&] { records.MoveFirst(); }, [&] { records.AtEnd(); }, [&] { records.Field("Bond"); }}) {
    const auto error = ErrorOf(operation);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->words(), "Object invalid or no longer set.");
  }
}

TEST(SharedObjects, NoDatabaseMeansObjectNotSet) {
  DataStore store;
  const auto open = ErrorOf([&] { OpenRecordset(store, "SELECT * FROM Constants"); });
  ASSERT_TRUE(open);
  EXPECT_EQ(open->code(), ErrorCode::ObjectNotSet);
  EXPECT_EQ(open->words(), "Object variable or With block variable not set");
  EXPECT_EQ(store.gSql, "SELECT * FROM Constants");
  const auto current = ErrorOf([&] { CurrentRecordset(store); });
  ASSERT_TRUE(current);
  EXPECT_EQ(current->code(), ErrorCode::ObjectNotSet);
  const auto lookup = ErrorOf([&] { FindMolecularWeight(store, "SO4"); });
  ASSERT_TRUE(lookup);
  EXPECT_EQ(lookup->code(), ErrorCode::ObjectNotSet);
}

// ---------------------------------------------------------------------------
// Elements

TEST_F(DataStoreTest, ElementsHoldsTheTableInRecordOrder) {
  FillElements(store);
  EXPECT_FALSE(CurrentRecordset(store).IsOpen());
  EXPECT_EQ(store.gSql, "SELECT Symbol, AtomicWeight FROM GeneralInfo");
  const auto table = Table("GeneralInfo");
  ASSERT_EQ(table.size(), 109u);
  for (int row = 1; row <= 109; ++row) {
    EXPECT_EQ(store.Elements.At(row, 0), table[static_cast<std::size_t>(row - 1)].at("Symbol")) << row;
    EXPECT_EQ(store.Elements.At(row, 1), table[static_cast<std::size_t>(row - 1)].at("AtomicWeight")) << row;
  }
}

TEST_F(DataStoreTest, ElementSymbolsRefillColumnZeroOnly) {
  store.Elements.At(5, 1) = Variant(99.0);
  FillElementSymbols(store);
  EXPECT_EQ(store.gSql, "SELECT Symbol FROM GeneralInfo");
  EXPECT_EQ(store.Elements.At(5, 0), Variant("B"));
  EXPECT_EQ(store.Elements.At(5, 1), Variant(99.0));
  EXPECT_TRUE(store.Elements.At(6, 1).IsEmpty());
}

TEST(ElementsTable, IndexesOutsideTheTableAreSubscriptErrors) {
  ElementsTable elements;
  EXPECT_TRUE(elements.At(1, 0).IsEmpty());
  EXPECT_TRUE(elements.At(109, 1).IsEmpty());
  const std::pair<int, int> outside[] = {{0, 0}, {110, 0}, {-1, 1}, {1, 2}, {1, -1}, {110, 1}};
  for (const auto& [row, column] : outside) {
    SCOPED_TRACE(std::to_string(row) + "," + std::to_string(column));
    const auto error = ErrorOf([&] { elements.At(row, column); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code(), ErrorCode::SubscriptOutOfRange);
  }
}

TEST(ElementsTable, A110thElementIsASubscriptError) {
  TempDir dir;
  std::string sql = "BEGIN; CREATE TABLE GeneralInfo (Symbol TEXT, AtomicWeight REAL);";
  for (int i = 1; i <= 110; ++i)
    sql += "INSERT INTO GeneralInfo VALUES ('E" + std::to_string(i) + "', " + std::to_string(i) + ");";
  sql += "COMMIT;";
  MakeDatabase(dir.path() / "g.db", sql);
  DataStore store;
  store.gDatabase = Database::Open((dir.path() / "g.db").string());
  const auto error = ErrorOf([&] { FillElements(store); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->code(), ErrorCode::SubscriptOutOfRange);
  EXPECT_EQ(store.Elements.At(109, 0), Variant("E109"));
  EXPECT_TRUE(CurrentRecordset(store).IsOpen());
}

// ---------------------------------------------------------------------------
// The look-ups by walking

TEST_F(DataStoreTest, MolecularWeightLookUp) {
  struct Case {
    const char* substance;
    std::optional<double> weight;
  };
  const Case cases[] = {
      {"SO4", 96.056},        {"NO3", 62.004},       {"OH", 17.007},
      {"NH4", 18.039},        {"so4", std::nullopt},  // capitals count
      {"SO4 ", std::nullopt}, {"", std::nullopt},    {"XY2", std::nullopt},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.substance);
    const auto found = FindMolecularWeight(store, c.substance);
    EXPECT_EQ(store.gSql, "SELECT * FROM MolecularWeights");
    EXPECT_FALSE(CurrentRecordset(store).IsOpen());
    ASSERT_EQ(found.has_value(), c.weight.has_value());
    if (c.weight) {
      EXPECT_NEAR(found->Number(), *c.weight, 1e-9);
    }
  }
}

TEST_F(DataStoreTest, VaporPressureLookUpComparesText) {
  struct Case {
    const char* typed;
    std::optional<double> kpa;
  };
  const Case cases[] = {
      {"25", 3.1697},         {"0", 0.6112},         {"100", 101.418},      {"37", 6.2818},
      {"25.0", std::nullopt}, {" 25", std::nullopt}, {"25 ", std::nullopt}, {"025", std::nullopt},
      {"101", std::nullopt},  {"-1", std::nullopt},  {"", std::nullopt},    {"2.5E1", std::nullopt},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    const auto found = FindVaporPressureByText(store, c.typed);
    EXPECT_EQ(store.gSql, "SELECT * FROM VaporPressure");
    EXPECT_FALSE(CurrentRecordset(store).IsOpen());
    ASSERT_EQ(found.has_value(), c.kpa.has_value());
    if (c.kpa) {
      EXPECT_NEAR(found->Number(), *c.kpa, 1e-9);
    }
  }
}

TEST_F(DataStoreTest, VaporPressureLookUpByCelsiusValue) {
  EXPECT_NEAR(FindVaporPressureByCelsius(store, 298.0 - 273.0).value().Number(), 3.1697, 1e-9);
  EXPECT_NEAR(FindVaporPressureByCelsius(store, 373.0 - 273.0).value().Number(), 101.418, 1e-9);
  EXPECT_FALSE(FindVaporPressureByCelsius(store, 298.15 - 273.0));
  EXPECT_FALSE(FindVaporPressureByCelsius(store, 250.0 - 273.0));
  EXPECT_FALSE(CurrentRecordset(store).IsOpen());
}

TEST(LookUps, TheFirstEqualRowWinsAndNullsEqualNothing) {
  TempDir dir;
  MakeDatabase(dir.path() / "w.db",
               "CREATE TABLE MolecularWeights (Substance TEXT, Weight REAL);"
               "INSERT INTO MolecularWeights VALUES (NULL, 1), ('OH', 17), ('OH', 99), ('', 5);"
               "CREATE TABLE VaporPressure (Temperature INTEGER, Pressure REAL);"
               "INSERT INTO VaporPressure VALUES (NULL, 7), (30, 4.2), (30, 99), (25.5, 3.3);");
  DataStore store;
  store.gDatabase = Database::Open((dir.path() / "w.db").string());
  EXPECT_EQ(FindMolecularWeight(store, "OH"), Variant(17.0));
  EXPECT_EQ(FindMolecularWeight(store, ""), Variant(5.0));
  EXPECT_EQ(FindVaporPressureByText(store, "30"), Variant(4.2));
  EXPECT_EQ(FindVaporPressureByText(store, "25.5"), Variant(3.3));
  EXPECT_FALSE(FindVaporPressureByText(store, ""));
  EXPECT_EQ(FindVaporPressureByCelsius(store, 30.0), Variant(4.2));
}

// ---------------------------------------------------------------------------
// The readers' queries on the real data

TEST_F(DataStoreTest, EveryTableHasItsFieldsSpelledExactly) {
  const std::map<std::string, std::vector<std::string>> tables = {
      {"GeneralInfo",
       {"AtomicNumber", "Symbol", "ElementName", "AtomicWeight", "State", "Charge", "Configuration", "GroupName",
        "Density", "FreezingPoint", "BoilingPoint"}},
      {"MolecularWeights", {"Substance", "Weight"}},
      {"Temperatures", {"Compound", "FreezingPoint", "FPDepression", "BoilingPoint", "BPElevation"}},
      {"Constants", {"Constant", "value"}},
      {"SpecificHeats", {"Substance", "SpecificHeat"}},
      {"SolubilityConstants", {"Substance", "Ksp"}},
      {"IonizationEnergy", {"Substance", "FIE", "AtomicNumber"}},
      {"ThermodynamicData", {"Substance", "Hf", "Gf", "S"}},
      {"VaporPressure", {"Temperature", "Pressure"}},
      {"StandardReductions", {"HalfReaction", "Volts"}},
      {"Enthalpies", {"Element", "EofFusion", "EofVaporization"}},
      {"Electronegativities", {"Element", "Electronegativity", "AtomicNumber"}},
      {"AtomicRadii", {"Substance", "AtomicRadii", "AtomicNumber"}},
      {"Affinities", {"Element", "Affinity", "AtomicNumber"}},
      {"Bonds", {"Bond", "Energy", "Length"}},
      {"Character", {"Difference", "Ionic", "Covalent"}},
      {"GasDensity", {"Gas", "Density"}},
      {"WaterDensity", {"Temperature", "Density"}},
      {"HalfLives", {"Substance", "HalfLife", "HalfLifeUnit", "DecayMode"}},
  };
  for (const auto& [table, fields] : tables) {
    SCOPED_TRACE(table);
    OpenRecordset(store, "SELECT * FROM " + table);
    EXPECT_EQ(CurrentRecordset(store).FieldNames(), fields);
    CloseRecordset(store);
  }
}

TEST_F(DataStoreTest, RowCounts) {
  struct Case {
    const char* table;
    std::size_t least;
    std::size_t most;
  };
  const Case cases[] = {
      {"GeneralInfo", 109, 109},
      {"VaporPressure", 101, 101},
      {"IonizationEnergy", 103, 120},
      {"Electronegativities", 95, 120},
      {"AtomicRadii", 93, 120},
      {"Affinities", 88, 120},
      {"MolecularWeights", 60, 400},
      {"Temperatures", 8, 50},
      {"Constants", 15, 60},
      {"SpecificHeats", 20, 100},
      {"SolubilityConstants", 30, 150},
      {"ThermodynamicData", 40, 200},
      {"StandardReductions", 30, 100},
      {"Enthalpies", 20, 120},
      {"Bonds", 30, 100},
      {"Character", 20, 60},
      {"GasDensity", 15, 60},
      {"WaterDensity", 30, 120},
      {"HalfLives", 30, 120},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.table);
    const std::size_t rows = Table(c.table).size();
    EXPECT_GE(rows, c.least);
    EXPECT_LE(rows, c.most);
  }
}

// The chart screens read a fixed number of rows with no test for the end.
// That many succeed; one read beyond the table's last row fails.
TEST_F(DataStoreTest, FixedCountChartReads) {
  struct Case {
    const char* table;
    const char* field;
    int count;
  };
  const Case cases[] = {
      {"AtomicRadii", "AtomicRadii", 93}, {"Electronegativities", "Electronegativity", 95},
      {"Affinities", "Affinity", 88},     {"IonizationEnergy", "FIE", 103},
      {"GeneralInfo", "Density", 103},    {"GeneralInfo", "BoilingPoint", 103},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.table);
    const int rows = static_cast<int>(Table(c.table).size());
    ASSERT_GE(rows, c.count);
    OpenRecordset(store, std::string("SELECT * FROM ") + c.table);
    Recordset& records = CurrentRecordset(store);
    records.MoveFirst();
    std::vector<std::string> labels;
    for (int i = 0; i < c.count; ++i) {
      records.Field(c.field);
      labels.push_back(" " + std::to_string(static_cast<int>(records.Field("AtomicNumber").Number())));
      records.MoveNext();
    }
    EXPECT_EQ(labels.front(), " 1");
    // Going on to the table's real end, the next read is the failure.
    for (int i = c.count; i < rows; ++i) records.MoveNext();
    const auto error = ErrorOf([&] { records.Field(c.field); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code(), ErrorCode::NoCurrentRecord);
    EXPECT_EQ(error->words(), "No current record.");
    records.Close();
  }
}

TEST_F(DataStoreTest, ElementListAndWeightWalkAgree) {
  // The moles screen lists symbols and names, then finds a weight by moving
  // forward as many rows as the list index; both queries keep one order.
  OpenRecordset(store, "SELECT Symbol, ElementName FROM GeneralInfo");
  std::vector<std::string> symbols;
  Recordset& list = CurrentRecordset(store);
  while (!list.AtEnd()) {
    symbols.push_back(list.Field("Symbol").Text());
    list.MoveNext();
  }
  CloseRecordset(store);
  const auto elements = Table("GeneralInfo");
  for (const int index : {0, 7, 25, 78, 108}) {
    SCOPED_TRACE(index);
    OpenRecordset(store, "SELECT AtomicWeight  FROM GeneralInfo");
    Recordset& records = CurrentRecordset(store);
    records.MoveFirst();
    for (int i = 0; i < index; ++i) records.MoveNext();
    const auto& element = elements[static_cast<std::size_t>(index)];
    EXPECT_EQ(Txt(element, "Symbol"), symbols[static_cast<std::size_t>(index)]);
    EXPECT_EQ(records.Field("AtomicWeight"), element.at("AtomicWeight"));
    CloseRecordset(store);
  }
}

TEST_F(DataStoreTest, BuildAtomsNameQueryForEveryNumber) {
  for (int protons = 1; protons <= 109; ++protons) {
    OpenRecordset(store, "SELECT ElementName FROM GeneralInfo WHERE AtomicNumber =" + std::to_string(protons));
    Recordset& records = CurrentRecordset(store);
    ASSERT_FALSE(records.AtEnd()) << protons;
    records.MoveNext();
    EXPECT_TRUE(records.AtEnd()) << protons;  // one row per number
    CloseRecordset(store);
  }
}

TEST_F(DataStoreTest, FreezingListQueryWithTwoBlanks) {
  OpenRecordset(store, "SELECT *  FROM Temperatures");
  Recordset& records = CurrentRecordset(store);
  records.MoveFirst();
  EXPECT_EQ(records.Field("Compound"), Variant("Water"));
  EXPECT_EQ(records.Field("FreezingPoint"), Variant(0.0));
}

// ---------------------------------------------------------------------------
// Consistency of the element data

TEST_F(DataStoreTest, GeneralInfoByRisingAtomicNumberWithProperSymbols) {
  const auto rows = Table("GeneralInfo");
  const std::regex symbol("[A-Z][a-z]?");
  std::set<std::string> symbols, names;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Row& row = rows[i];
    SCOPED_TRACE(Txt(row, "Symbol"));
    EXPECT_EQ(Num(row, "AtomicNumber"), static_cast<double>(i + 1));
    EXPECT_TRUE(std::regex_match(Txt(row, "Symbol"), symbol));
    EXPECT_TRUE(symbols.insert(Txt(row, "Symbol")).second);
    EXPECT_TRUE(names.insert(Txt(row, "ElementName")).second);
    const std::string name = Txt(row, "ElementName");
    EXPECT_TRUE(std::regex_match(name, std::regex("[A-Z][a-z]+")));
  }
  // The later elements carry their IUPAC symbols, not placeholder ones.
  const std::map<int, std::string> late = {{104, "Rf"}, {105, "Db"}, {106, "Sg"},
                                           {107, "Bh"}, {108, "Hs"}, {109, "Mt"}};
  for (const auto& [number, sym] : late) EXPECT_EQ(Txt(rows[static_cast<std::size_t>(number - 1)], "Symbol"), sym);
}

TEST_F(DataStoreTest, AtomicWeightsRiseRoughlyWithNumber) {
  const auto rows = Table("GeneralInfo");
  double previous = 0;
  for (const Row& row : rows) {
    SCOPED_TRACE(Txt(row, "Symbol"));
    const double z = Num(row, "AtomicNumber");
    const double w = Num(row, "AtomicWeight");
    EXPECT_GE(w, z);
    EXPECT_LE(w, 2.6 * z);
    // A few neighbours are inverted (Ar-K, Co-Ni, Te-I, Th-Pa), never by much.
    EXPECT_GT(w, previous - 1.5);
    previous = w;
  }
}

TEST_F(DataStoreTest, ElementFieldsAreNullOnlyWhereAllowedAndPlausible) {
  const std::set<std::string> nullable = {"Charge", "Configuration", "Density", "FreezingPoint", "BoilingPoint"};
  const std::set<std::string> gases = {"H", "He", "N", "O", "F", "Ne", "Cl", "Ar", "Kr", "Xe", "Rn"};
  const std::set<std::string> liquids = {"Br", "Hg"};
  const std::regex charge("[+-][1-8](, [+-][1-8])*");
  for (const Row& row : Table("GeneralInfo")) {
    const std::string sym = Txt(row, "Symbol");
    SCOPED_TRACE(sym);
    for (const auto& [field, value] : row) {
      if (!nullable.count(field)) {
        EXPECT_FALSE(value.IsNull()) << field;
      }
    }
    const std::string state = Txt(row, "State");
    if (gases.count(sym)) {
      EXPECT_EQ(state, "Gas");
    } else if (liquids.count(sym)) {
      EXPECT_EQ(state, "Liquid");
    } else {
      EXPECT_TRUE(state == "Solid" || state == "Unknown") << state;
    }
    if (!row.at("Charge").IsNull()) {
      EXPECT_TRUE(std::regex_match(row.at("Charge").Text(), charge)) << row.at("Charge").Text();
    }
    if (!row.at("Density").IsNull()) {
      // Gases in g/L at 0 degrees C and 1 atm, everything else in g/cm3.
      const double density = row.at("Density").Number();
      EXPECT_GT(density, state == "Gas" ? 0.05 : 0.5);
      EXPECT_LT(density, state == "Gas" ? 10.0 : 23.0);
    }
    const Variant& mp = row.at("FreezingPoint");
    const Variant& bp = row.at("BoilingPoint");
    if (!mp.IsNull()) {
      EXPECT_GT(mp.Number(), -273.15);
    }
    if (!mp.IsNull() && !bp.IsNull()) {
      EXPECT_LT(mp.Number(), bp.Number());
    }
    if (state == "Gas" && !bp.IsNull()) {
      EXPECT_LT(bp.Number(), 25.0);
    }
    if (state == "Solid" && !mp.IsNull()) {
      EXPECT_GT(mp.Number(), 25.0);
    }
    if (state == "Liquid") {
      EXPECT_LT(mp.Number(), 25.0);
    }
  }
}

TEST_F(DataStoreTest, ConfigurationsHoldAsManyElectronsAsProtons) {
  const std::map<std::string, int> cores = {{"[He]", 2},  {"[Ne]", 10}, {"[Ar]", 18},
                                            {"[Kr]", 36}, {"[Xe]", 54}, {"[Rn]", 86}};
  const std::regex subshell("([1-7])([spdf])([0-9]+)");
  const std::map<char, int> capacity = {{'s', 2}, {'p', 6}, {'d', 10}, {'f', 14}};
  for (const Row& row : Table("GeneralInfo")) {
    SCOPED_TRACE(Txt(row, "Symbol"));
    std::istringstream parts(Txt(row, "Configuration"));
    std::string part;
    int electrons = 0;
    while (parts >> part) {
      std::smatch m;
      if (cores.count(part)) {
        electrons += cores.at(part);
      } else if (std::regex_match(part, m, subshell)) {
        const int count = std::stoi(m[3]);
        EXPECT_LE(count, capacity.at(m[2].str()[0])) << part;
        electrons += count;
      } else {
        ADD_FAILURE() << "unreadable part " << part;
      }
    }
    EXPECT_EQ(electrons, static_cast<int>(Num(row, "AtomicNumber")));
  }
}

TEST_F(DataStoreTest, TrendTablesFollowTheElements) {
  struct Case {
    const char* table;
    const char* name_field;
    const char* value_field;
    double low;
    double high;
  };
  const Case cases[] = {
      {"IonizationEnergy", "Substance", "FIE", 350, 2400},
      {"Electronegativities", "Element", "Electronegativity", 0.7, 4.0},
      {"AtomicRadii", "Substance", "AtomicRadii", 25, 270},
      {"Affinities", "Element", "Affinity", -120, 350},
  };
  const auto elements = ElementsByNumber();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.table);
    double previous = 0;
    for (const Row& row : Table(c.table)) {
      const double number = Num(row, "AtomicNumber");
      EXPECT_GT(number, previous);  // stored by rising atomic number, no repeats
      previous = number;
      ASSERT_TRUE(elements.count(static_cast<int>(number)));
      EXPECT_EQ(Txt(row, c.name_field), Txt(elements.at(static_cast<int>(number)), "ElementName"));
      EXPECT_GE(Num(row, c.value_field), c.low) << number;
      EXPECT_LE(Num(row, c.value_field), c.high) << number;
    }
  }
}

TEST_F(DataStoreTest, TrendTablesShowThePeriodicPattern) {
  // Noble gases have the highest ionization energies of their periods, the
  // alkali metals the lowest; fluorine is the most electronegative element.
  std::map<int, double> ie, en;
  for (const Row& row : Table("IonizationEnergy")) ie[static_cast<int>(Num(row, "AtomicNumber"))] = Num(row, "FIE");
  for (const Row& row : Table("Electronegativities"))
    en[static_cast<int>(Num(row, "AtomicNumber"))] = Num(row, "Electronegativity");
  const std::pair<int, int> periods[] = {{3, 10}, {11, 18}, {19, 36}, {37, 54}, {55, 86}};
  for (const auto& [first, last] : periods) {
    for (int z = first; z <= last; ++z) {
      EXPECT_GE(ie.at(last), ie.at(z)) << z;
      EXPECT_LE(ie.at(first), ie.at(z)) << z;
    }
  }
  for (const auto& [z, value] : en) EXPECT_LE(value, en.at(9)) << z;
}

// ---------------------------------------------------------------------------
// Consistency of the other tables

// The formula weight of a formula of symbols and counts, from GeneralInfo.
double FormulaWeight(const std::string& formula, const std::map<std::string, double>& weights) {
  const std::regex part("([A-Z][a-z]?)([0-9]*)");
  double total = 0;
  std::string rebuilt;
  for (auto it = std::sregex_iterator(formula.begin(), formula.end(), part); it != std::sregex_iterator(); ++it) {
    const std::string symbol = (*it)[1];
    const std::string count = (*it)[2];
    rebuilt += it->str();
    if (!weights.count(symbol)) return NAN;
    total += weights.at(symbol) * (count.empty() ? 1 : std::stoi(count));
  }
  return rebuilt == formula ? total : NAN;
}

TEST_F(DataStoreTest, MolecularWeightsAgreeWithAtomicWeights) {
  std::map<std::string, double> weights;
  for (const Row& row : Table("GeneralInfo")) weights[Txt(row, "Symbol")] = Num(row, "AtomicWeight");
  std::set<std::string> seen;
  for (const Row& row : Table("MolecularWeights")) {
    const std::string substance = Txt(row, "Substance");
    SCOPED_TRACE(substance);
    EXPECT_TRUE(seen.insert(substance).second) << "listed twice";
    EXPECT_NEAR(Num(row, "Weight"), FormulaWeight(substance, weights), 1e-3);
  }
  for (const char* group : {"SO4",   "NO3",  "OH",     "PO4",  "CO3",  "NH4", "ClO3", "ClO4", "MnO4",  "CrO4",
                            "Cr2O7", "HCO3", "C2H3O2", "CN",   "SO3",  "NO2", "PO3",  "HSO4", "H2PO4", "HPO4",
                            "ClO",   "ClO2", "SCN",    "S2O3", "C2O4", "BO3", "SiO3", "IO3",  "BrO3",  "O2"}) {
    EXPECT_TRUE(seen.count(group)) << group;
  }
}

TEST_F(DataStoreTest, VaporPressureOfWaterFollowsTheSaturationCurve) {
  // IAPWS-IF97, the saturation pressure of water from its temperature.
  const double n[] = {0,
                      0.11670521452767e4,
                      -0.72421316703206e6,
                      -0.17073846940092e2,
                      0.12020824702470e5,
                      -0.32325550322333e7,
                      0.14915108613530e2,
                      -0.48232657361591e4,
                      0.40511340542057e6,
                      -0.23855557567849,
                      0.65017534844798e3};
  auto kpa = [&](double celsius) {
    const double t = celsius + 273.15;
    const double th = t + n[9] / (t - n[10]);
    const double a = th * th + n[1] * th + n[2];
    const double b = n[3] * th * th + n[4] * th + n[5];
    const double c = n[6] * th * th + n[7] * th + n[8];
    return std::pow(2 * c / (-b + std::sqrt(b * b - 4 * a * c)), 4) * 1000;
  };
  const auto rows = Table("VaporPressure");
  ASSERT_EQ(rows.size(), 101u);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(Num(rows[i], "Temperature"), static_cast<double>(i));
    EXPECT_NEAR(Num(rows[i], "Pressure"), kpa(static_cast<double>(i)), 1e-4 * kpa(static_cast<double>(i)) + 1e-4);
  }
}

TEST_F(DataStoreTest, WaterIsDensestAtFourDegrees) {
  const auto rows = Table("WaterDensity");
  double previous = -1;
  double densest = 0, at = -1;
  for (const Row& row : rows) {
    const double t = Num(row, "Temperature");
    EXPECT_GT(t, previous);
    previous = t;
    const double d = Num(row, "Density");
    EXPECT_GT(d, 0.95);
    EXPECT_LT(d, 1.0);
    if (d > densest) {
      densest = d;
      at = t;
    }
  }
  EXPECT_EQ(at, 4.0);
}

TEST_F(DataStoreTest, BondCharacterFollowsPaulingsRule) {
  double previous = -1;
  for (const Row& row : Table("Character")) {
    const double d = Num(row, "Difference");
    SCOPED_TRACE(d);
    EXPECT_GT(d, previous);
    previous = d;
    const double ionic = Num(row, "Ionic");
    EXPECT_NEAR(ionic + Num(row, "Covalent"), 100.0, 1e-9);
    EXPECT_NEAR(ionic, 100 * (1 - std::exp(-d * d / 4)), 0.051);
  }
}

TEST_F(DataStoreTest, FreeEnergiesAgreeWithEnthalpiesAndEntropies) {
  std::map<std::string, Row> data;
  for (Row& row : Table("ThermodynamicData")) {
    const std::string substance = Txt(row, "Substance");
    EXPECT_TRUE(data.emplace(substance, row).second) << substance << " listed twice";
  }
  // Elements in their standard states are the zero of formation.
  for (const char* element : {"H2(g)", "O2(g)", "N2(g)", "Cl2(g)", "C(graphite)", "Fe(s)", "Na(s)"}) {
    EXPECT_EQ(Num(data.at(element), "Hf"), 0.0) << element;
    EXPECT_EQ(Num(data.at(element), "Gf"), 0.0) << element;
  }
  // Gf = Hf - T (S - sum of the elements' S) at 298.15 K, within rounding.
  struct Case {
    const char* compound;
    std::vector<std::pair<const char*, double>> elements;
  };
  const Case cases[] = {
      {"H2O(l)", {{"H2(g)", 1}, {"O2(g)", 0.5}}},
      {"H2O(g)", {{"H2(g)", 1}, {"O2(g)", 0.5}}},
      {"CO2(g)", {{"C(graphite)", 1}, {"O2(g)", 1}}},
      {"CH4(g)", {{"C(graphite)", 1}, {"H2(g)", 2}}},
      {"NH3(g)", {{"N2(g)", 0.5}, {"H2(g)", 1.5}}},
      {"NO2(g)", {{"N2(g)", 0.5}, {"O2(g)", 1}}},
      {"SO3(g)", {{"S(rhombic)", 1}, {"O2(g)", 1.5}}},
      {"C6H12O6(s)", {{"C(graphite)", 6}, {"H2(g)", 6}, {"O2(g)", 3}}},
      {"NaCl(s)", {{"Na(s)", 1}, {"Cl2(g)", 0.5}}},
      {"CaCO3(s)", {{"Ca(s)", 1}, {"C(graphite)", 1}, {"O2(g)", 1.5}}},
      {"Fe2O3(s)", {{"Fe(s)", 2}, {"O2(g)", 1.5}}},
      {"Al2O3(s)", {{"Al(s)", 2}, {"O2(g)", 1.5}}},
      {"C2H5OH(l)", {{"C(graphite)", 2}, {"H2(g)", 3}, {"O2(g)", 0.5}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.compound);
    const Row& row = data.at(c.compound);
    double s_elements = 0;
    for (const auto& [element, moles] : c.elements) s_elements += moles * Num(data.at(element), "S");
    const double g = Num(row, "Hf") - 298.15 * (Num(row, "S") - s_elements) / 1000;
    EXPECT_NEAR(Num(row, "Gf"), g, 1.0);
  }
}

TEST_F(DataStoreTest, ReductionPotentialsFromStrongestOxidiserDown) {
  const auto rows = Table("StandardReductions");
  double previous = 10;
  bool hydrogen = false;
  for (const Row& row : rows) {
    const std::string reaction = Txt(row, "HalfReaction");
    SCOPED_TRACE(reaction);
    const double volts = Num(row, "Volts");
    EXPECT_LE(volts, previous);
    previous = volts;
    EXPECT_TRUE(Contains(reaction, " -> ") && Contains(reaction, "e-"));
    if (reaction == "2H+ + 2e- -> H2(g)") {
      hydrogen = true;
      EXPECT_EQ(volts, 0.0);
    }
  }
  EXPECT_TRUE(hydrogen);
  EXPECT_GE(rows.front().at("Volts").Number(), 2.8);  // fluorine
  EXPECT_LE(rows.back().at("Volts").Number(), -3.0);  // lithium
}

TEST_F(DataStoreTest, MultipleBondsAreShorterAndStronger) {
  std::map<std::string, std::pair<double, double>> bonds;
  std::set<std::string> symbols;
  for (const Row& row : Table("GeneralInfo")) symbols.insert(Txt(row, "Symbol"));
  const std::regex bond("([A-Z][a-z]?)([-=#])([A-Z][a-z]?)");
  for (const Row& row : Table("Bonds")) {
    const std::string text = Txt(row, "Bond");
    SCOPED_TRACE(text);
    std::smatch m;
    ASSERT_TRUE(std::regex_match(text, m, bond));
    EXPECT_TRUE(symbols.count(m[1]) && symbols.count(m[3]));
    EXPECT_TRUE(bonds.emplace(text, std::make_pair(Num(row, "Energy"), Num(row, "Length"))).second);
    EXPECT_GT(Num(row, "Energy"), 100);
    EXPECT_LT(Num(row, "Energy"), 1000);
    EXPECT_GT(Num(row, "Length"), 60);
    EXPECT_LT(Num(row, "Length"), 300);
  }
  for (const char* pair : {"C?C", "C?N", "N?N"}) {
    std::string single = pair, twin = pair, triple = pair;
    single[1] = '-', twin[1] = '=', triple[1] = '#';
    SCOPED_TRACE(pair);
    EXPECT_LT(bonds.at(single).first, bonds.at(twin).first);
    EXPECT_LT(bonds.at(twin).first, bonds.at(triple).first);
    EXPECT_GT(bonds.at(single).second, bonds.at(twin).second);
    EXPECT_GT(bonds.at(twin).second, bonds.at(triple).second);
  }
}

TEST_F(DataStoreTest, SmallTablesHoldPlausibleValues) {
  for (const Row& row : Table("Temperatures")) {
    SCOPED_TRACE(Txt(row, "Compound"));
    EXPECT_LT(Num(row, "FreezingPoint"), Num(row, "BoilingPoint"));
    EXPECT_GT(Num(row, "FPDepression"), 0);
    EXPECT_GT(Num(row, "BPElevation"), 0);
  }
  for (const Row& row : Table("SpecificHeats")) {
    EXPECT_GT(Num(row, "SpecificHeat"), 0.1) << Txt(row, "Substance");
    EXPECT_LT(Num(row, "SpecificHeat"), 15) << Txt(row, "Substance");
  }
  for (const Row& row : Table("SolubilityConstants")) {
    EXPECT_GT(Num(row, "Ksp"), 0) << Txt(row, "Substance");
    EXPECT_LT(Num(row, "Ksp"), 1e-3) << Txt(row, "Substance");
  }
  const auto elements = ElementsByNumber();
  std::set<std::string> names;
  for (const auto& [number, row] : elements) names.insert(Txt(row, "ElementName"));
  for (const Row& row : Table("Enthalpies")) {
    SCOPED_TRACE(Txt(row, "Element"));
    EXPECT_TRUE(names.count(Txt(row, "Element")));
    EXPECT_GT(Num(row, "EofFusion"), 0);
    EXPECT_LT(Num(row, "EofFusion"), Num(row, "EofVaporization"));
  }
  for (const Row& row : Table("GasDensity")) {
    EXPECT_GT(Num(row, "Density"), 0.05) << Txt(row, "Gas");
    EXPECT_LT(Num(row, "Density"), 10) << Txt(row, "Gas");
  }
  for (const Row& row : Table("Constants")) EXPECT_FALSE(Txt(row, "Constant").empty());
}

TEST_F(DataStoreTest, HalfLivesNameNuclideUnitAndMode) {
  std::set<std::string> symbols;
  for (const Row& row : Table("GeneralInfo")) symbols.insert(Txt(row, "Symbol"));
  const std::set<std::string> units = {"microseconds", "seconds", "minutes", "hours", "days", "years", "million years"};
  const std::set<std::string> modes = {"Alpha", "Beta", "Positron", "Elec capture", "Gamma"};
  const std::regex nuclide("([A-Z][a-z]?)-([0-9]{1,3})m?");
  for (const Row& row : Table("HalfLives")) {
    const std::string substance = Txt(row, "Substance");
    SCOPED_TRACE(substance);
    std::smatch m;
    ASSERT_TRUE(std::regex_match(substance, m, nuclide));
    EXPECT_TRUE(symbols.count(m[1]));
    EXPECT_GT(Num(row, "HalfLife"), 0);
    EXPECT_TRUE(units.count(Txt(row, "HalfLifeUnit")));
    EXPECT_TRUE(modes.count(Txt(row, "DecayMode")));
  }
}

// ---------------------------------------------------------------------------
// The CSV reader and the build tool

TEST(CsvLine, SplitsQuotedAndPlainFields) {
  struct Case {
    const char* line;
    std::vector<std::string> texts;
    std::vector<bool> quoted;
  };
  const Case cases[] = {
      {"a,b,c", {"a", "b", "c"}, {false, false, false}},
      {"1,H,\"+1, -1\",x", {"1", "H", "+1, -1", "x"}, {false, false, true, false}},
      {"\"say \"\"hi\"\"\",2", {"say \"hi\"", "2"}, {true, false}},
      {",,", {"", "", ""}, {false, false, false}},
      {"\"\",x", {"", "x"}, {true, false}},
      {"", {""}, {false}},
      {" a , b", {" a ", " b"}, {false, false}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.line);
    const auto fields = SplitCsvLine(c.line);
    ASSERT_EQ(fields.size(), c.texts.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
      EXPECT_EQ(fields[i].text, c.texts[i]);
      EXPECT_EQ(fields[i].quoted, c.quoted[i]);
    }
  }
  for (const char* bad : {"\"open,b", "\"a\"b,c", "a\"b,c"}) {
    EXPECT_THROW(SplitCsvLine(bad), CsvError) << bad;
  }
}

// Runs the tool on a schema and table files of a case; gives its exit status
// and what it wrote to stderr.
struct ToolRun {
  int status;
  std::string message;
};

ToolRun RunMkdb(const fs::path& dir, const std::string& schema, const std::map<std::string, std::string>& files,
                const fs::path& output) {
  fs::create_directories(dir / "tables");
  WriteFile(dir / "schema.sql", schema);
  for (const auto& [name, text] : files) WriteFile(dir / "tables" / name, text);
  const fs::path log = dir / "stderr.txt";
  const std::string command = "\"" + kMkdb + "\" \"" + (dir / "schema.sql").string() + "\" \"" +
                              (dir / "tables").string() + "\" \"" + output.string() + "\" 2> \"" + log.string() + "\"";
  const int status = std::system(command.c_str());
  return {status, ReadFile(log)};
}

const char* const kSchema =
    "CREATE TABLE T (Name TEXT NOT NULL, Charge TEXT, N INTEGER NOT NULL, X REAL);\n"
    "CREATE TABLE U (Label TEXT);\n";

TEST(Mkdb, RejectsMalformedTableFiles) {
  struct Case {
    const char* what;
    const char* schema;
    std::map<std::string, std::string> files;
    const char* message;
  };
  const std::string u = "Label\nu\n";
  const Case cases[] = {
      {"too few fields",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\na,b,1,2\nc,d,3\n"}, {"U.csv", u}},
       "T.csv:3: expected 4 fields, found 3"},
      {"too many fields",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\na,+1, +2,1,2\n"}, {"U.csv", u}},
       "T.csv:2: expected 4 fields, found 5"},
      {"word in a number column",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\na,b,1,2\nc,d,4,two\n"}, {"U.csv", u}},
       "T.csv:3: field X must be a number, found \"two\""},
      {"fraction in a whole-number column",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\na,b,25.0,2\n"}, {"U.csv", u}},
       "T.csv:2: field N must be a whole number"},
      {"blank around a number",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\na,b,1, 2\n"}, {"U.csv", u}},
       "T.csv:2: field X must be a number"},
      {"empty required field",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\n,b,1,2\n"}, {"U.csv", u}},
       "T.csv:2: field Name must not be empty"},
      {"unterminated quote",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\na,\"+1, +2,1,2\n"}, {"U.csv", u}},
       "T.csv:2: unterminated quoted field"},
      {"wrong header",
       kSchema,
       {{"T.csv", "Name,Charges,N,X\na,b,1,2\n"}, {"U.csv", u}},
       "T.csv:1: the header must be \"Name,Charge,N,X\""},
      {"empty file", kSchema, {{"T.csv", ""}, {"U.csv", u}}, "T.csv:1: the file is empty"},
      {"file without a table",
       kSchema,
       {{"T.csv", "Name,Charge,N,X\n"}, {"U.csv", u}, {"V.csv", "A\n"}},
       "V.csv: no table of that name"},
      {"missing file", kSchema, {{"T.csv", "Name,Charge,N,X\n"}}, "U.csv: missing"},
      {"index in the schema",
       "CREATE TABLE U (Label TEXT); CREATE INDEX ByLabel ON U (Label);",
       {{"U.csv", u}},
       "index ByLabel"},
      {"bad schema", "CREATE TABLE U (Label TEXT", {{"U.csv", u}}, "schema.sql: "},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    TempDir dir;
    const fs::path output = dir.path() / "out.db";
    WriteFile(output, "an older database");  // must not survive a failed build
    const ToolRun run = RunMkdb(dir.path(), c.schema, c.files, output);
    EXPECT_NE(run.status, 0);
    EXPECT_TRUE(Contains(run.message, c.message)) << run.message;
    EXPECT_FALSE(fs::exists(output));
    EXPECT_FALSE(fs::exists(output.string() + ".tmp"));
  }
}

TEST(Mkdb, StoresRowsInFileOrderWithQuotedFieldsAndNulls) {
  TempDir dir;
  const fs::path output = dir.path() / "out.db";
  WriteFile(output, "an older database");  // replaced by the new one
  const ToolRun run = RunMkdb(dir.path(), kSchema,
                              {{"T.csv",
                                "Name,Charge,N,X\r\n"
                                "zinc,\"+2\",30,65.38\r\n"
                                "argon,,18,\r\n"
                                "\"say \"\"hi\"\"\",\"+1, -1\",1,-1.5E-3\r\n"
                                "\r\n"
                                "boron,\"\",5,10\r\n"},
                               {"U.csv", "Label\n"}},
                              output);
  ASSERT_EQ(run.status, 0) << run.message;
  EXPECT_FALSE(fs::exists(output.string() + ".tmp"));
  auto db = Database::Open(output.string());
  auto records = db->OpenRecordset("SELECT * FROM T");
  struct Expected {
    Variant name, charge, n, x;
  };
  const Expected expected[] = {
      {"zinc", "+2", 30.0, 65.38},
      {"argon", Null{}, 18.0, Null{}},
      {"say \"hi\"", "+1, -1", 1.0, -1.5E-3},
      {"boron", "", 5.0, 10.0},
  };
  for (const Expected& e : expected) {
    ASSERT_FALSE(records->AtEnd());
    EXPECT_EQ(records->Field("Name"), e.name);
    EXPECT_EQ(records->Field("Charge"), e.charge);
    EXPECT_EQ(records->Field("N"), e.n);
    EXPECT_EQ(records->Field("X"), e.x);
    records->MoveNext();
  }
  EXPECT_TRUE(records->AtEnd());
  auto empty = db->OpenRecordset("SELECT * FROM U");
  EXPECT_TRUE(empty->AtEnd());
}

}  // namespace
}  // namespace orv::data
