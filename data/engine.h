#pragma once
// The data engine: a read-only SQLite database behind the eight operations the
// program uses. Get the workspace, open a database by path, open a record set
// from SQL text, move to the first record, test for the end, read a field by
// name, move to the next record, close the record set.
//
// A record set holds the rows of its query in the order in which SQLite
// returns them. Every query of the program is a plain scan of one table
// without ORDER BY, and the database has no indexes, so that order is the
// order in which the rows were inserted.
//
// The file is opened as one that never changes, so that the engine writes
// nothing beside it, and the rows of each query text are kept after its first
// run: a query run again gives the same rows without reading the file again.
//
// Every failure is an orv::RuntimeError: ErrorCode::NoCurrentRecord for a move
// or a read without a current record, ErrorCode::Engine with the engine's own
// words for everything else (no such file, table or field, bad SQL).

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "shell/variant.h"

struct sqlite3;

namespace orv::data {

class Database;
class Recordset;

// The engine's workspace. It holds nothing: it exists so that start-up can
// get it and open the database through it, as the program does.
class Workspace {
 public:
  // Same as Database::Open.
  std::unique_ptr<Database> OpenDatabase(const std::string& path) const;
};

// The default workspace of the engine.
Workspace& DefaultWorkspace();

class Database {
 public:
  // Opens an existing database file read-only. A missing file is never
  // created: the open fails with "Could not find file '<path>'.", and a file
  // that is no database (a file of no bytes too) fails with "Unrecognized
  // database format '<path>'.".
  static std::unique_ptr<Database> Open(const std::string& path);

  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  // Runs the query and returns its rows, positioned on the first row (or at
  // the end when there is none). A missing table or field, or a syntax error,
  // raises ErrorCode::Engine.
  std::unique_ptr<Recordset> OpenRecordset(const std::string& sql);

  const std::string& path() const { return path_; }

  // How many queries went to the file; the others were answered from the
  // rows kept in memory.
  std::size_t FileQueries() const { return results_.size(); }

  // Answers that readers work out from the rows of their queries, kept under
  // keys of their choosing: the rows never change, so neither do these.
  std::unordered_map<std::string, std::optional<Variant>>& Answers() { return answers_; }

  // Whether the database holds a table of that name (capitals don't count).
  bool HasTable(std::string_view name) const;

  // The field names and rows of one query.
  struct Rows {
    std::vector<std::string> names;
    std::vector<std::vector<Variant>> rows;
  };

 private:
  Database(sqlite3* db, std::string path) : db_(db), path_(std::move(path)) {}
  std::shared_ptr<const Rows> Run(const std::string& sql);

  sqlite3* db_;
  std::string path_;
  std::vector<std::string> tables_;
  // The rows of every query text run so far.
  std::unordered_map<std::string, std::shared_ptr<const Rows>> results_;
  std::unordered_map<std::string, std::optional<Variant>> answers_;
};

class Recordset {
 public:
  // Moves to the first row. An empty record set raises "No current record.".
  void MoveFirst();
  // True when there is no current row: the rows are used up, or there are
  // none. (Named so because EOF is a macro of the C library.)
  bool AtEnd() const;
  // The value of the named field of the current row: Null for SQL NULL, a
  // double for a number, a text for a text. Field names match regardless of
  // case. At the end: "No current record."; an unknown name:
  // "Item not found in this collection.".
  const Variant& Field(std::string_view name) const;
  // Moves to the next row; from the last row this reaches the end. Already at
  // the end: "No current record.".
  void MoveNext();
  // Releases the rows. Any later use of the record set raises
  // "Object invalid or no longer set.". Closing twice is allowed.
  void Close();

  bool IsOpen() const { return open_; }
  // The number of fields in each row and their names, in query order.
  const std::vector<std::string>& FieldNames() const;

 private:
  friend class Database;
  explicit Recordset(std::shared_ptr<const Database::Rows> rows) : rows_(std::move(rows)) {}
  void CheckOpen() const;
  std::size_t RowCount() const { return rows_ ? rows_->rows.size() : 0; }

  std::shared_ptr<const Database::Rows> rows_;  // shared with the database's store of results
  std::size_t position_ = 0;
  // The field last asked for by name and its column: a walk asks for the
  // same field at every row.
  mutable std::string lastName_;
  mutable std::size_t lastColumn_ = 0;
  bool open_ = true;
};

}  // namespace orv::data
