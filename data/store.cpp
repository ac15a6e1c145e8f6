#include "data/store.h"

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
// rows end, then close. Gives the wanted field of the matching row.
std::optional<Variant> Walk(DataStore& store, std::string sql, const std::string& wanted,
                            const std::function<bool(const Recordset&)>& matches) {
  OpenRecordset(store, std::move(sql));
  Recordset& records = *store.gRecordset;
  records.MoveFirst();
  std::optional<Variant> found;
  while (!records.AtEnd()) {
    if (matches(records)) {
      found = records.Field(wanted);
      break;
    }
    records.MoveNext();
  }
  records.Close();
  return found;
}

}  // namespace

void FillElements(DataStore& store) { FillColumns(store, "SELECT Symbol, AtomicWeight FROM GeneralInfo", true); }

void FillElementSymbols(DataStore& store) { FillColumns(store, "SELECT Symbol FROM GeneralInfo", false); }

// ---------------------------------------------------------------------------
// Look-ups by walking

std::optional<Variant> FindMolecularWeight(DataStore& store, std::string_view substance) {
  return Walk(store, "SELECT * FROM MolecularWeights", "Weight", [substance](const Recordset& records) {
    const Variant field = records.Field("Substance");
    // A null field equals nothing; a text field compares as text.
    if (field.IsNull()) return false;
    return (field.IsText() ? field.Text() : Str(field)) == substance;
  });
}

std::optional<Variant> FindVaporPressureByText(DataStore& store, std::string_view temperature) {
  return Walk(store, "SELECT * FROM VaporPressure", "Pressure", [temperature](const Recordset& records) {
    const Variant field = records.Field("Temperature");
    return !field.IsNull() && Str(field) == temperature;
  });
}

std::optional<Variant> FindVaporPressureByCelsius(DataStore& store, double celsius) {
  return Walk(store, "SELECT * FROM VaporPressure", "Pressure", [celsius](const Recordset& records) {
    const Variant field = records.Field("Temperature");
    return field.IsNumber() && field.Number() == celsius;
  });
}

}  // namespace orv::data

namespace orv {

data::DataStore& Store(Program& program) { return program.Module<data::DataStore>(); }

}  // namespace orv
