#include "data/engine.h"

#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
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

// Whether the file starts with the header of an SQLite database.
bool HasDatabaseHeader(const std::string& path) {
  static constexpr char kHeader[] = "SQLite format 3";  // with its terminating zero, 16 bytes
  char start[sizeof kHeader] = {};
  std::ifstream in(path, std::ios::binary);
  return in.read(start, sizeof start) && std::equal(start, start + sizeof start, kHeader);
}

// The file's URI for SQLite, asking it to take the file as one that never
// changes. Every byte of the absolute path but the plainest is escaped, so
// that no name is read as a query, a fragment or an authority.
std::string ImmutableUri(const std::string& path) {
  std::error_code error;
  std::filesystem::path absolute = std::filesystem::absolute(path, error);
  if (error) absolute = path;
  // An absolute path starts with "/", so the authority before it stays empty.
  std::string uri = "file://";
  static constexpr char kHex[] = "0123456789ABCDEF";
  for (const char c : absolute.string()) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (plain || c == '/' || c == '.' || c == '-' || c == '_' || c == '~') {
      uri += c;
    } else {
      uri += '%';
      uri += kHex[byte >> 4];
      uri += kHex[byte & 15];
    }
  }
  return uri + "?immutable=1";
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
  // SQLite takes a file of no bytes for an empty database; a database file
  // always starts with the format's header.
  if (!HasDatabaseHeader(path)) EngineError("Unrecognized database format '" + path + "'.");

  // Opened as immutable, SQLite reads the file and nothing else: it takes no
  // locks and never creates a journal, nor the -wal and -shm files of a
  // database in WAL mode.
  sqlite3* db = nullptr;
  const int opened = sqlite3_open_v2(ImmutableUri(path).c_str(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
  if (opened != SQLITE_OK) {
    sqlite3_close(db);
    EngineError("Could not find file '" + path + "'.");
  }
  std::unique_ptr<Database> database(new Database(db, path));

  // SQLite reads the file lazily; read its schema now so that a file that is
  // no database fails here rather than at the first query. Temporary tables,
  // if SQLite ever needed one, stay in memory.
  Statement probe;
  if (sqlite3_exec(db, "PRAGMA temp_store = MEMORY", nullptr, nullptr, nullptr) != SQLITE_OK ||
      sqlite3_prepare_v2(db, "SELECT name FROM sqlite_master WHERE type = 'table'", -1, &probe.handle, nullptr) !=
          SQLITE_OK) {
    EngineError("Unrecognized database format '" + path + "'.");
  }
  for (;;) {
    const int stepped = sqlite3_step(probe.handle);
    if (stepped == SQLITE_DONE) break;
    if (stepped != SQLITE_ROW) EngineError("Unrecognized database format '" + path + "'.");
    database->tables_.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(probe.handle, 0)));
  }
  return database;
}

bool Database::HasTable(std::string_view name) const {
  for (const std::string& table : tables_) {
    if (SameName(table, name)) return true;
  }
  return false;
}

Database::~Database() { sqlite3_close(db_); }

std::unique_ptr<Recordset> Database::OpenRecordset(const std::string& sql) {
  return std::unique_ptr<Recordset>(new Recordset(Run(sql)));
}

std::shared_ptr<const Database::Rows> Database::Run(const std::string& sql) {
  // The file never changes while it is open, so the same text gives the same
  // rows; only texts that ran without error are kept.
  if (const auto kept = results_.find(sql); kept != results_.end()) return kept->second;

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
  auto result = std::make_shared<const Rows>(Rows{std::move(names), std::move(rows)});
  results_.emplace(sql, result);
  return result;
}

// ---------------------------------------------------------------------------
// Recordset

void Recordset::CheckOpen() const {
  if (!open_) EngineError("Object invalid or no longer set.");
}

const std::vector<std::string>& Recordset::FieldNames() const {
  static const std::vector<std::string> kNone;
  return rows_ ? rows_->names : kNone;
}

void Recordset::MoveFirst() {
  CheckOpen();
  if (RowCount() == 0) Raise(ErrorCode::NoCurrentRecord);
  position_ = 0;
}

bool Recordset::AtEnd() const {
  CheckOpen();
  return position_ >= RowCount();
}

const Variant& Recordset::Field(std::string_view name) const {
  CheckOpen();
  const std::vector<std::string>& names = FieldNames();
  if (name.empty() || name != lastName_) {
    std::size_t c = 0;
    while (c < names.size() && !SameName(names[c], name)) ++c;
    if (c == names.size()) EngineError("Item not found in this collection.");
    lastName_ = name;
    lastColumn_ = c;
  }
  if (position_ >= RowCount()) Raise(ErrorCode::NoCurrentRecord);
  return rows_->rows[position_][lastColumn_];
}

void Recordset::MoveNext() {
  CheckOpen();
  if (position_ >= RowCount()) Raise(ErrorCode::NoCurrentRecord);
  ++position_;
}

void Recordset::Close() {
  open_ = false;
  rows_.reset();
  position_ = 0;
}

}  // namespace orv::data
