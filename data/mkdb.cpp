// orvanta-mkdb: builds the read-only reference database from its text form.
//
//   orvanta-mkdb SCHEMA.sql TABLES-DIR OUTPUT.db
//
// Runs the schema, then fills every table it creates from TABLES-DIR/<table>.csv
// in file order, so that the stored order of the rows is the order of the
// lines. The first line of each file names the table's columns in schema
// order. A field of an INTEGER column must be a whole number and one of a
// REAL column a number; an empty unquoted field is NULL, which a NOT NULL
// column refuses.
//
// The database is written to OUTPUT.db.tmp and renamed into place only when
// everything succeeded. On any failure the tool names the file and line, exits
// with status 1 and leaves no database behind, not even an older one, so that
// nothing can go on running against data that no longer matches its sources.

#include <sqlite3.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "data/csv.h"

namespace fs = std::filesystem;
using orv::data::CsvError;
using orv::data::CsvField;

namespace {

class BuildError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

std::string Where(const fs::path& file, std::size_t line) { return file.string() + ":" + std::to_string(line) + ": "; }

enum class Kind { Integer, Real, Text };

struct Column {
  std::string name;
  Kind kind;
  bool not_null;
};

struct Table {
  std::string name;
  std::vector<Column> columns;
};

// Closes the database and finalizes statements whatever happens.
class Connection {
 public:
  explicit Connection(const fs::path& path) {
    if (sqlite3_open_v2(path.string().c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) !=
        SQLITE_OK) {
      throw BuildError(path.string() + ": cannot create the database: " + sqlite3_errmsg(db_));
    }
  }
  ~Connection() { sqlite3_close(db_); }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  sqlite3* get() const { return db_; }

  void Exec(const std::string& sql, const std::string& context) {
    char* message = nullptr;
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
      std::string words = message ? message : sqlite3_errmsg(db_);
      sqlite3_free(message);
      throw BuildError(context + words);
    }
  }

 private:
  sqlite3* db_ = nullptr;
};

class Statement {
 public:
  Statement(sqlite3* db, const std::string& sql) : db_(db) {
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &handle_, nullptr) != SQLITE_OK) {
      throw BuildError("cannot prepare \"" + sql + "\": " + sqlite3_errmsg(db));
    }
  }
  ~Statement() { sqlite3_finalize(handle_); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  sqlite3_stmt* get() const { return handle_; }
  bool Step() {
    const int result = sqlite3_step(handle_);
    if (result == SQLITE_ROW) return true;
    if (result == SQLITE_DONE) return false;
    throw BuildError(sqlite3_errmsg(db_));
  }
  std::string Text(int column) const {
    const unsigned char* text = sqlite3_column_text(handle_, column);
    return text ? reinterpret_cast<const char*>(text) : "";
  }

 private:
  sqlite3* db_;
  sqlite3_stmt* handle_ = nullptr;
};

std::string ReadFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw BuildError(path.string() + ": cannot read the file");
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::string Upper(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

// The column kind from its declared type, by SQLite's own affinity rules.
Kind KindOf(const std::string& declared) {
  const std::string type = Upper(declared);
  if (type.find("INT") != std::string::npos) return Kind::Integer;
  if (type.find("CHAR") != std::string::npos || type.find("CLOB") != std::string::npos ||
      type.find("TEXT") != std::string::npos) {
    return Kind::Text;
  }
  return Kind::Real;
}

std::vector<Table> ReadTables(Connection& db) {
  {
    Statement indexes(db.get(), "SELECT name FROM sqlite_master WHERE type = 'index'");
    if (indexes.Step()) {
      throw BuildError("the schema creates index " + indexes.Text(0) +
                       ", which could change the order in which rows are read");
    }
  }
  std::vector<Table> tables;
  Statement names(db.get(), "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid");
  while (names.Step()) tables.push_back(Table{names.Text(0), {}});
  for (Table& table : tables) {
    Statement info(db.get(), "PRAGMA table_info(\"" + table.name + "\")");
    while (info.Step()) {
      table.columns.push_back(Column{info.Text(1), KindOf(info.Text(2)), sqlite3_column_int(info.get(), 3) != 0});
    }
  }
  return tables;
}

bool ParseInteger(const std::string& text, std::int64_t& value) {
  const char* end = text.data() + text.size();
  const auto [ptr, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && ptr == end;
}

bool ParseReal(const std::string& text, double& value) {
  // from_chars takes no leading plus sign and no blanks: neither belongs in the files.
  const char* end = text.data() + text.size();
  const auto [ptr, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && ptr == end && std::isfinite(value);
}

std::string Header(const Table& table) {
  std::string header;
  for (const Column& column : table.columns) header += (header.empty() ? "" : ",") + column.name;
  return header;
}

// The first line must name the table's columns in schema order.
void CheckHeader(const Table& table, const std::vector<CsvField>& fields, const fs::path& file) {
  std::string found;
  for (const CsvField& field : fields) found += (found.empty() ? "" : ",") + field.text;
  if (found != Header(table)) {
    throw BuildError(Where(file, 1) + "the header must be \"" + Header(table) + "\", found \"" + found + "\"");
  }
}

// Binds one field of line `number` to its slot of the insert, checked against
// its column's kind. An empty unquoted field, or an empty quoted one of a
// number column, is NULL.
void BindField(sqlite3_stmt* insert, int slot, const Column& column, const CsvField& field, const fs::path& file,
               std::size_t number) {
  if (field.text.empty() && !(field.quoted && column.kind == Kind::Text)) {
    if (column.not_null) throw BuildError(Where(file, number) + "field " + column.name + " must not be empty");
    sqlite3_bind_null(insert, slot);
    return;
  }
  switch (column.kind) {
    case Kind::Integer: {
      std::int64_t value = 0;
      if (!ParseInteger(field.text, value)) {
        throw BuildError(Where(file, number) + "field " + column.name + " must be a whole number, found \"" +
                         field.text + "\"");
      }
      sqlite3_bind_int64(insert, slot, value);
      break;
    }
    case Kind::Real: {
      double value = 0;
      if (!ParseReal(field.text, value)) {
        throw BuildError(Where(file, number) + "field " + column.name + " must be a number, found \"" + field.text +
                         "\"");
      }
      sqlite3_bind_double(insert, slot, value);
      break;
    }
    case Kind::Text:
      sqlite3_bind_text(insert, slot, field.text.c_str(), static_cast<int>(field.text.size()), SQLITE_TRANSIENT);
      break;
  }
}

std::size_t LoadTable(Connection& db, const Table& table, const fs::path& file) {
  std::string insert = "INSERT INTO \"" + table.name + "\" VALUES (";
  for (std::size_t c = 0; c < table.columns.size(); ++c) insert += c == 0 ? "?" : ", ?";
  insert += ")";
  Statement statement(db.get(), insert);

  std::istringstream in(ReadFile(file));
  std::string line;
  std::size_t number = 0;
  std::size_t rows = 0;
  while (std::getline(in, line)) {
    ++number;
    if (number == 1 && line.rfind("\xEF\xBB\xBF", 0) == 0) line.erase(0, 3);
    if (!line.empty() && line.back() == '\r') line.pop_back();

    std::vector<CsvField> fields;
    try {
      fields = orv::data::SplitCsvLine(line);
    } catch (const CsvError& error) {
      throw BuildError(Where(file, number) + error.what());
    }

    if (number == 1) {
      CheckHeader(table, fields, file);
      continue;
    }
    if (line.empty()) continue;
    if (fields.size() != table.columns.size()) {
      throw BuildError(Where(file, number) + "expected " + std::to_string(table.columns.size()) + " fields, found " +
                       std::to_string(fields.size()));
    }

    sqlite3_reset(statement.get());
    sqlite3_clear_bindings(statement.get());
    for (std::size_t c = 0; c < fields.size(); ++c) {
      BindField(statement.get(), static_cast<int>(c) + 1, table.columns[c], fields[c], file, number);
    }
    if (sqlite3_step(statement.get()) != SQLITE_DONE) {
      throw BuildError(Where(file, number) + sqlite3_errmsg(db.get()));
    }
    ++rows;
  }
  if (number == 0) throw BuildError(Where(file, 1) + "the file is empty; it needs at least its header");
  return rows;
}

void Build(const fs::path& schema, const fs::path& directory, const fs::path& output, const fs::path& temporary) {
  std::error_code ignored;
  fs::remove(temporary, ignored);

  std::vector<Table> tables;
  {
    Connection db(temporary);
    db.Exec(ReadFile(schema), schema.string() + ": ");
    tables = ReadTables(db);
    if (tables.empty()) throw BuildError(schema.string() + ": the schema creates no table");

    // Every file must belong to a table, so that a misspelt file name is not
    // silently left out.
    std::set<std::string> names;
    for (const Table& table : tables) names.insert(table.name + ".csv");
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory, error)) {
      const std::string name = entry.path().filename().string();
      if (entry.path().extension() == ".csv" && names.count(name) == 0) {
        throw BuildError(entry.path().string() + ": no table of that name in " + schema.string());
      }
    }
    if (error) throw BuildError(directory.string() + ": " + error.message());

    db.Exec("BEGIN", "");
    for (const Table& table : tables) {
      const fs::path file = directory / (table.name + ".csv");
      if (!fs::exists(file)) throw BuildError(file.string() + ": missing; table " + table.name + " needs it");
      LoadTable(db, table, file);
    }
    db.Exec("COMMIT", "");
  }
  fs::rename(temporary, output);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: orvanta-mkdb SCHEMA.sql TABLES-DIR OUTPUT.db\n";
    return 2;
  }
  const fs::path schema = argv[1];
  const fs::path directory = argv[2];
  const fs::path output = argv[3];
  const fs::path temporary = output.string() + ".tmp";
  try {
    Build(schema, directory, output, temporary);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "orvanta-mkdb: " << error.what() << "\n";
  }
  std::error_code ignored;
  fs::remove(temporary, ignored);
  fs::remove(output, ignored);
  return 1;
}
