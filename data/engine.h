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
// Every failure is an orv::RuntimeError: ErrorCode::NoCurrentRecord for a move
// or a read without a current record, ErrorCode::Engine with the engine's own
// words for everything else (no such file, table or field, bad SQL).

#include <memory>
#include <string>
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
  // that is no database fails with "Unrecognized database format '<path>'.".
  static std::unique_ptr<Database> Open(const std::string& path);

  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  // Runs the query and returns its rows, positioned on the first row (or at
  // the end when there is none). A missing table or field, or a syntax error,
  // raises ErrorCode::Engine.
  std::unique_ptr<Recordset> OpenRecordset(const std::string& sql);

  const std::string& path() const { return path_; }

 private:
  Database(sqlite3* db, std::string path) : db_(db), path_(std::move(path)) {}

  sqlite3* db_;
  std::string path_;
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
  Variant Field(const std::string& name) const;
  // Moves to the next row; from the last row this reaches the end. Already at
  // the end: "No current record.".
  void MoveNext();
  // Releases the rows. Any later use of the record set raises
  // "Object invalid or no longer set.". Closing twice is allowed.
  void Close();

  bool IsOpen() const { return open_; }
  // The number of fields in each row and their names, in query order.
  const std::vector<std::string>& FieldNames() const { return names_; }

 private:
  friend class Database;
  Recordset(std::vector<std::string> names, std::vector<std::vector<Variant>> rows)
      : names_(std::move(names)), rows_(std::move(rows)) {}
  void CheckOpen() const;

  std::vector<std::string> names_;
  std::vector<std::vector<Variant>> rows_;
  std::size_t position_ = 0;
  bool open_ = true;
};

}  // namespace orv::data
