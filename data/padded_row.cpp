#include "data/padded_row.h"

#include "shell/numbers.h"
#include "shell/text.h"

namespace orv {

std::string LeftJustify(std::string_view text, int width) {
  std::string out = Left(text, width);
  out.append(static_cast<std::size_t>(width - CharCount(out)), ' ');
  return out;
}

std::string FormatField(const Variant& value, std::string_view pattern) {
  if (value.IsText()) {
    // Words come through a number pattern unchanged; a text that reads as a
    // number is formatted as that number.
    try {
      return Format(CDbl(value.Text()), pattern);
    } catch (const RuntimeError&) {
      return value.Text();
    }
  }
  return Format(CDbl(value), pattern);
}

std::vector<int> ColumnStarts(std::span<const PaddedColumn> columns) {
  std::vector<int> starts;
  int at = 0;
  for (const PaddedColumn& column : columns) {
    starts.push_back(at);
    at += CharCount(column.widthTemplate) + CharCount(column.gap);
  }
  return starts;
}

std::string PaddedRow(const data::Recordset& rs, std::span<const PaddedColumn> columns) {
  std::string row;
  for (const PaddedColumn& column : columns) {
    row +=
        LeftJustify(FormatField(rs.Field(std::string(column.field)), column.pattern), CharCount(column.widthTemplate));
    row += column.gap;
  }
  return row;
}

}  // namespace orv
