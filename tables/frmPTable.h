#pragma once
// The six trend charts, frmPTable2 to frmPTable7: one property of the
// elements plotted against the atomic number as a line, so that the periods
// show as ups and downs. The screens differ only in the table and field they
// read, how many rows, the counter's type and their texts.

#include <string_view>

#include "shell/form.h"
#include "shell/program.h"

namespace orv {

// The counter of the reading loop: a 16-bit integer, or a 32-bit float that
// is stepped by 1.0 and made a whole number for each use.
enum class Counter { Integer16, Single32 };

struct PTableSpec {
  std::string_view name;
  std::string_view caption;
  std::string_view sql;
  std::string_view field;  // the value plotted
  int lastRow;             // rows 0 to lastRow are read, with no end test
  Counter counter;
  std::string_view title;
  std::string_view valueTitle;
  std::string_view footnote;
  std::string_view description;  // cmdDescription's message
};

class frmPTable : public Form {
 public:
  frmPTable(Program& program, const PTableSpec& design);

 private:
  void Form_Load();
  void cmdDescription_Click();
  void cmdCancel_Click();

  const PTableSpec& design_;
};

// Registers frmPTable2 to frmPTable7.
void RegisterTrendCharts(ScreenRegistry& r);

}  // namespace orv
