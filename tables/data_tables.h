#pragma once
// The reference table screens: one table of the database listed as padded
// rows in a fixed-pitch list under a header label, and a Cancel button. All
// sixteen are one class, each driven by its own description.

#include <span>
#include <string>
#include <string_view>

#include "data/engine.h"
#include "data/padded_row.h"
#include "shell/screen_frame.h"

namespace orv {

struct DataTableSpec {
  std::string_view name;
  std::string_view caption;
  std::string_view table;  // read whole with "SELECT * FROM " and this name
  std::span<const PaddedColumn> columns;
  std::string_view headerLabel;  // the label over the list
  std::string_view header;       // spaced by hand to stand over the columns
  std::string_view parent;       // shown again by Cancel; "" for none
  std::string_view cancelToolTip = {};
  std::string_view listToolTip = {};
  int listWidth = 360;  // logical pixels
  // Builds the row of the current record; PaddedRow when not given.
  std::string (*row)(const data::Recordset&, std::span<const PaddedColumn>) = nullptr;
};

class DataTableScreen : public Form {
 public:
  DataTableScreen(Program& program, const DataTableSpec& design);

 private:
  void Form_Load();
  void cmdCancel_Click();

  const DataTableSpec& design_;
};

// Registers every table screen.
void RegisterDataTableScreens(ScreenRegistry& r);

}  // namespace orv
