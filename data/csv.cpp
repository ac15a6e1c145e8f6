#include "data/csv.h"

namespace orv::data {

std::vector<CsvField> SplitCsvLine(std::string_view line) {
  std::vector<CsvField> fields;
  std::size_t i = 0;
  for (;;) {
    CsvField field;
    if (i < line.size() && line[i] == '"') {
      field.quoted = true;
      ++i;
      for (;;) {
        if (i >= line.size()) throw CsvError("unterminated quoted field " + std::to_string(fields.size() + 1));
        if (line[i] == '"') {
          if (i + 1 < line.size() && line[i + 1] == '"') {
            field.text += '"';
            i += 2;
            continue;
          }
          ++i;
          break;
        }
        field.text += line[i++];
      }
      if (i < line.size() && line[i] != ',') {
        throw CsvError("text after the closing quote of field " + std::to_string(fields.size() + 1));
      }
    } else {
      const std::size_t end = line.find(',', i);
      field.text = std::string(line.substr(i, end == std::string_view::npos ? std::string_view::npos : end - i));
      if (field.text.find('"') != std::string::npos) {
        throw CsvError("quote inside unquoted field " + std::to_string(fields.size() + 1));
      }
      i = end == std::string_view::npos ? line.size() : end;
    }
    fields.push_back(std::move(field));
    if (i >= line.size()) break;
    ++i;  // the comma
  }
  return fields;
}

}  // namespace orv::data
