// A fresh program over a scratch folder, optionally holding a small database,
// with fake services that record what the user would have seen.

#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/registry.h"
#include "data/engine.h"
#include "data/store.h"
#include "shell/program.h"
#include "tests/support/fake_services.h"

namespace orv::test {

struct ScratchDir {
  ScratchDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orvanta-unit-XXXXXX").string();
    path = mkdtemp(pattern.data()) ? pattern : throw std::runtime_error("mkdtemp failed");
  }
  ~ScratchDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  std::filesystem::path operator/(const std::string& name) const { return path / name; }
  std::filesystem::path path;
};

// Writes a database straight through SQLite, for what the real data must not
// hold (a 110th element, repeated rows, nulls in key fields); returns its name.
inline std::string MakeDatabase(const std::filesystem::path& path, const std::string& sql) {
  const std::string file = path.string();
  sqlite3* db = nullptr;
  EXPECT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
  sqlite3_close(db);
  return file;
}

// Opens `store` on the real database beside the test executables, as the
// program's start-up does.
inline void OpenRealDatabase(data::DataStore& store) {
  store.gWorkspace = &data::DefaultWorkspace();
  store.gDatabase = store.gWorkspace->OpenDatabase(ORVANTA_BIN_DIR "/" + std::string(data::kDatabaseFileName));
}

// The words of the run-time error `f` raises.
inline std::string Raised(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.words();
  }
  return "nothing raised";
}

// Started on a database made of `sql` (none when empty) in a scratch folder,
// or on `folder` when one is given. The start-up's boxes are counted, then
// cleared.
struct ScreenRun {
  explicit ScreenRun(const std::string& sql, const std::string& folder = "")
      : program(AllScreens(), fakes.services(), folder.empty() ? dir.path.string() : folder) {
    if (!sql.empty()) MakeDatabase(dir / std::string(data::kDatabaseFileName), sql);
    program.Start();
    startupBoxes = messages.boxes.size();
    messages.boxes.clear();
  }
  Form* Show(const std::string& screen) {
    program.UserAction([&] { program.Show(screen); });
    return program.Find(screen);
  }
  // A screen the test needs: one that does not load stops the test.
  Form& Open(const std::string& screen) {
    Form* form = Show(screen);
    return form != nullptr ? *form : throw std::runtime_error(screen + " did not load");
  }

  ScratchDir dir;
  FakeServices fakes;
  FakeMessages& messages = fakes.messages;
  FakePrinter& printer = fakes.printer;
  Program program;
  std::size_t startupBoxes = 0;
};

// Started on the real database and help files beside the test executables.
struct RealRun : ScreenRun {
  RealRun() : ScreenRun("", ORVANTA_BIN_DIR) {}
};

}  // namespace orv::test
