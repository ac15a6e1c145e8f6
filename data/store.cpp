#include "data/store.h"

#include <cstring>
#include <functional>

#include "shell/errors.h"
#include "shell/numbers.h"
#include "shell/program.h"

namespace orv::data {

// ---------------------------------------------------------------------------
// ElementsTable

Variant& ElementsTable::At(int row, int column) {
  if (row < kFirstRow || row > kLastRow || column < kSymbolColumn || column > kWeightColumn) {
    Raise(ErrorCode::SubscriptOutOfRange);
  }
  return cells_[static_cast<std::size_t>(row - kFirstRow)][static_cast<std::size_t>(column)];
}

const Variant& ElementsTable::At(int row, int column) const {
  return const_cast<ElementsTable&>(*this).At(row, column);
}

// ---------------------------------------------------------------------------
// The program's database

std::unique_ptr<Database> OpenProgramDatabase(const Workspace& workspace, const std::string& path) {
  std::unique_ptr<Database> database = workspace.OpenDatabase(path);
  for (const std::string_view table : kProgramTables) {
    if (database->HasTable(table)) return database;
  }
  throw RuntimeError(ErrorCode::Engine, "Unrecognized database format '" + path + "'.");
}

// ---------------------------------------------------------------------------
// Shared record set

void OpenRecordset(DataStore& store, std::string sql) {
  store.gSql = std::move(sql);
  if (!store.gDatabase) Raise(ErrorCode::ObjectNotSet);
  store.gRecordset = store.gDatabase->OpenRecordset(store.gSql);
}

Recordset& CurrentRecordset(DataStore& store) {
  if (!store.gRecordset) Raise(ErrorCode::ObjectNotSet);
  return *store.gRecordset;
}

void CloseRecordset(DataStore& store) { CurrentRecordset(store).Close(); }

// ---------------------------------------------------------------------------
// Elements

namespace {

void FillColumns(DataStore& store, std::string sql, bool weights) {
  OpenRecordset(store, std::move(sql));
  Recordset& records = *store.gRecordset;
  records.MoveFirst();
  int row = ElementsTable::kFirstRow;
  while (!records.AtEnd()) {
    store.Elements.At(row, ElementsTable::kSymbolColumn) = records.Field("Symbol");
    if (weights) store.Elements.At(row, ElementsTable::kWeightColumn) = records.Field("AtomicWeight");
    ++row;
    records.MoveNext();
  }
  records.Close();
}

// The walk of the two look-ups: from the first row until a row matches or the
// rows end, then close. Gives the wanted field of the matching row. A walk
// that went through once is not walked again: its answer is kept under `key`
// with the database, and the record set is opened and closed all the same.
std::optional<Variant> Walk(DataStore& store, std::string sql, const std::string& wanted, const std::string& key,
                            const std::function<bool(const Recordset&)>& matches) {
  OpenRecordset(store, std::move(sql));
  Recordset& records = *store.gRecordset;
  records.MoveFirst();
  auto& answers = store.gDatabase->Answers();
  const std::string answerKey = store.gSql + '\n' + wanted + '\n' + key;
  if (const auto known = answers.find(answerKey); known != answers.end()) {
    records.Close();
    return known->second;
  }
  std::optional<Variant> found;
  while (!records.AtEnd()) {
    if (matches(records)) {
      found = records.Field(wanted);
      break;
    }
    records.MoveNext();
  }
  records.Close();
  answers.emplace(answerKey, found);
  return found;
}

}  // namespace

void FillElements(DataStore& store) { FillColumns(store, "SELECT Symbol, AtomicWeight FROM GeneralInfo", true); }

void FillElementSymbols(DataStore& store) { FillColumns(store, "SELECT Symbol FROM GeneralInfo", false); }

// ---------------------------------------------------------------------------
// Look-ups by walking

std::optional<Variant> FindMolecularWeight(DataStore& store, std::string_view substance) {
  return Walk(store, "SELECT * FROM MolecularWeights", "Weight", "Substance=" + std::string(substance),
              [substance](const Recordset& records) {
                const Variant& field = records.Field("Substance");
                // A null field equals nothing; a text field compares as text.
                if (field.IsText()) return field.Text() == substance;
                return !field.IsNull() && Str(field) == substance;
              });
}

std::optional<Variant> FindVaporPressureByText(DataStore& store, std::string_view temperature) {
  return Walk(store, "SELECT * FROM VaporPressure", "Pressure", "Temperature as text=" + std::string(temperature),
              [temperature](const Recordset& records) {
                const Variant& field = records.Field("Temperature");
                return !field.IsNull() && Str(field) == temperature;
              });
}

std::optional<Variant> FindVaporPressureByCelsius(DataStore& store, double celsius) {
  char bits[sizeof celsius];
  std::memcpy(bits, &celsius, sizeof celsius);
  return Walk(store, "SELECT * FROM VaporPressure", "Pressure", "Temperature=" + std::string(bits, sizeof bits),
              [celsius](const Recordset& records) {
                const Variant& field = records.Field("Temperature");
                return field.IsNumber() && field.Number() == celsius;
              });
}

}  // namespace orv::data

namespace orv {

data::DataStore& Store(Program& program) { return program.Module<data::DataStore>(); }

}  // namespace orv
