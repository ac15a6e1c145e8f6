#pragma once
// Splitting one line of the reference tables' CSV files.
//
// Fields are separated by commas. A field that starts with a double quote is
// quoted: it runs to the next lone double quote, may hold commas, and writes a
// double quote inside as two. A field is never trimmed. A quoted field cannot
// span lines.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orv::data {

struct CsvField {
  std::string text;
  bool quoted = false;  // tells an empty text ("") from an empty field
};

class CsvError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Splits a line (without its line break) into fields. Raises CsvError for an
// unterminated quoted field, text after a closing quote, or a quote inside an
// unquoted field.
std::vector<CsvField> SplitCsvLine(std::string_view line);

}  // namespace orv::data
