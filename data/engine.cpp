#include "data/engine.h"

#include <sqlite3.h>

#include <cctype>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "shell/errors.h"

namespace orv::data {

namespace {

[[noreturn]] void EngineError(std::string words) { throw RuntimeError(ErrorCode::Engine, std::move(words)); }

bool StartsWith(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }

// The part of an SQLite message behind a prefix such as "no such table: ".
std::string After(std::string_view message, std::string_view prefix) {
  return std::string(message.substr(prefix.size()));
}

// Turns SQLite's words for a failed query into words a student can act on.
[[noreturn]] void QueryError(sqlite3* db, int code) {
  const std::string_view message = sqlite3_errmsg(db);
  if (StartsWith(message, "no such table: ")) {
    EngineError("The database engine cannot find the input table or query '" + After(message, "no such table: ") +
                "'. Make sure it exists and that its name is spelled correctly.");
  }
  if (StartsWith(message, "no such column: ")) {
    EngineError("The database engine does not recognize '" + After(message, "no such column: ") +
                "' as a valid field name or expression.");
  }
  if (message.find("syntax error") != std::string_view::npos ||
      message.find("incomplete input") != std::string_view::npos) {
    EngineError("Syntax error in the SQL statement (" + std::string(message) + ").");
  }
  if (code == SQLITE_READONLY) {
    EngineError("Cannot update. Database or object is read-only.");
  }
  if (code == SQLITE_NOTADB || code == SQLITE_CORRUPT) {
    EngineError("The database file is damaged or is not a database.");
  }
  EngineError("The database engine could not run the query (" + std::string(message) + ").");
}

Variant ColumnValue(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL: return Variant(Null{});
    case SQLITE_INTEGER: return Variant(static_cast<double>(sqlite3_column_int64(statement, column)));
    case SQLITE_FLOAT: return Variant(sqlite3_column_double(statement, column));
    default: {
      // Text, and a blob read as its bytes.
      const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
      const int size = sqlite3_column_bytes(statement, column);
      return Variant(bytes == nullptr ? std::string() : std::string(bytes, static_cast<std::size_t>(size)));
    }
  }
}

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) {
      return false;
    }
  }
  return true;
}

// Owns a prepared statement for the length of one query.
struct Statement {
  sqlite3_stmt* handle = nullptr;
  ~Statement() { sqlite3_finalize(handle); }
};

}  // namespace

// ---------------------------------------------------------------------------
// Workspace

std::unique_ptr<Database> Workspace::OpenDatabase(const std::string& path) const { return Database::Open(path); }

Workspace& DefaultWorkspace() {
  static Workspace workspace;
  return workspace;
}

// ---------------------------------------------------------------------------
// Database

std::unique_ptr<Database> Database::Open(const std::string& path) {
  // SQLite would create a private temporary database for an empty name and a
  // memory database for ":memory:"; only an existing file will do here.
  std::error_code error;
  if (path.empty() || !std::filesystem::is_regular_file(path, error)) {
    EngineError("Could not find file '" + path + "'.");
  }
  // Keep names such as ":memory:" or "file:x" from being read as special.
  std::string name = path;
  if (StartsWith(name, ":") || StartsWith(name, "file:")) name = "./" + name;

  sqlite3* db = nullptr;
  const int opened = sqlite3_open_v2(name.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
  if (opened != SQLITE_OK) {
    sqlite3_close(db);
    EngineError("Could not find file '" + path + "'.");
  }
  std::unique_ptr<Database> database(new Database(db, path));

  // SQLite reads the file lazily; read its schema now so that a file that is
  // no database fails here rather than at the first query.
  Statement probe;
  if (sqlite3_prepare_v2(db, "SELECT count(*) FROM sqlite_master", -1, &probe.handle, nullptr) != SQLITE_OK ||
      sqlite3_step(probe.handle) != SQLITE_ROW) {
    EngineError("Unrecognized database format '" + path + "'.");
  }
  return database;
}

Database::~Database() { sqlite3_close(db_); }

std::unique_ptr<Recordset> Database::OpenRecordset(const std::string& sql) {
  Statement statement;
  const char* tail = nullptr;
  const int prepared = sqlite3_prepare_v2(db_, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement.handle, &tail);
  if (prepared != SQLITE_OK) QueryError(db_, prepared);
  if (statement.handle == nullptr) {
    EngineError("Invalid SQL statement; expected 'SELECT'.");
  }
  for (; tail != nullptr && *tail != '\0'; ++tail) {
    if (!std::isspace(static_cast<unsigned char>(*tail)) && *tail != ';') {
      EngineError("Characters found after end of SQL statement.");
    }
  }
  if (!sqlite3_stmt_readonly(statement.handle)) {
    EngineError("Cannot update. Database or object is read-only.");
  }

  const int columns = sqlite3_column_count(statement.handle);
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(columns));
  for (int c = 0; c < columns; ++c) names.emplace_back(sqlite3_column_name(statement.handle, c));

  std::vector<std::vector<Variant>> rows;
  for (;;) {
    const int stepped = sqlite3_step(statement.handle);
    if (stepped == SQLITE_DONE) break;
    if (stepped != SQLITE_ROW) QueryError(db_, stepped);
    std::vector<Variant> row;
    row.reserve(static_cast<std::size_t>(columns));
    for (int c = 0; c < columns; ++c) row.push_back(ColumnValue(statement.handle, c));
    rows.push_back(std::move(row));
  }
  return std::unique_ptr<Recordset>(new Recordset(std::move(names), std::move(rows)));
}

// ---------------------------------------------------------------------------
// Recordset

void Recordset::CheckOpen() const {
  if (!open_) EngineError("Object invalid or no longer set.");
}

void Recordset::MoveFirst() {
  CheckOpen();
  if (rows_.empty()) Raise(ErrorCode::NoCurrentRecord);
  position_ = 0;
}

bool Recordset::AtEnd() const {
  CheckOpen();
  return position_ >= rows_.size();
}

Variant Recordset::Field(const std::string& name) const {
  CheckOpen();
  for (std::size_t c = 0; c < names_.size(); ++c) {
    if (SameName(names_[c], name)) {
      if (position_ >= rows_.size()) Raise(ErrorCode::NoCurrentRecord);
      return rows_[position_][c];
    }
  }
  EngineError("Item not found in this collection.");
}

void Recordset::MoveNext() {
  CheckOpen();
  if (position_ >= rows_.size()) Raise(ErrorCode::NoCurrentRecord);
  ++position_;
}

void Recordset::Close() {
  open_ = false;
  rows_.clear();
  rows_.shrink_to_fit();
  names_.clear();
  position_ = 0;
}

}  // namespace orv::data
