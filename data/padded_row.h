#pragma once
// Rows of a list shown in a fixed-pitch font: each field of the current
// record is formatted with its pattern, then cut or padded with blanks to the
// length of its width template, and the columns are joined by their gaps.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/engine.h"

namespace orv {

struct PaddedColumn {
  std::string_view field;
  std::string_view widthTemplate;  // only its length counts
  std::string_view pattern;        // a format pattern; words pass unchanged
  std::string_view gap = {};       // blanks after the column ("" for the last)
};

// A text left-justified into a width: cut on the right or padded with blanks.
std::string LeftJustify(std::string_view text, int width);

// One field formatted with a pattern: a number through the pattern, a text
// that is not a number as it stands. A field with no value raises "Invalid
// use of Null".
std::string FormatField(const Variant& value, std::string_view pattern);

// The character column at which each column starts in a row.
std::vector<int> ColumnStarts(std::span<const PaddedColumn> columns);

// The row of the record set's current record.
std::string PaddedRow(const data::Recordset& rs, std::span<const PaddedColumn> columns);

}  // namespace orv
