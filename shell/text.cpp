#include "shell/text.h"

#include <algorithm>

#include "shell/errors.h"

namespace orv {

namespace {
bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }
}  // namespace

int CharCount(std::string_view s) {
  int n = 0;
  for (char c : s) {
    if (!IsContinuation(c)) ++n;
  }
  return n;
}

std::size_t ByteOffset(std::string_view s, int index) {
  if (index <= 0) return 0;
  int seen = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (!IsContinuation(s[i])) {
      if (seen == index) return i;
      ++seen;
    }
  }
  return s.size();
}

int Len(std::string_view s) { return CharCount(s); }

std::string Mid(std::string_view s, int start) {
  if (start < 1) Raise(ErrorCode::InvalidProcedureCall);
  return std::string(s.substr(ByteOffset(s, start - 1)));
}

std::string Mid(std::string_view s, int start, int length) {
  if (start < 1 || length < 0) Raise(ErrorCode::InvalidProcedureCall);
  const std::size_t from = ByteOffset(s, start - 1);
  const std::size_t to = ByteOffset(s, start - 1 + length);
  return std::string(s.substr(from, to - from));
}

std::string Left(std::string_view s, int length) { return Mid(s, 1, length); }

std::string Right(std::string_view s, int length) {
  if (length < 0) Raise(ErrorCode::InvalidProcedureCall);
  const int n = CharCount(s);
  return Mid(s, n - std::min(length, n) + 1);
}

int InStr(std::string_view s, std::string_view what, int start) {
  if (start < 1) Raise(ErrorCode::InvalidProcedureCall);
  const std::size_t from = ByteOffset(s, start - 1);
  if (from > s.size()) return 0;
  const std::size_t at = s.find(what, from);
  if (at == std::string_view::npos) return 0;
  return CharCount(s.substr(0, at)) + 1;
}

std::string Chr(int code) {
  std::string out;
  const auto c = static_cast<unsigned>(code);
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
  return out;
}

}  // namespace orv
