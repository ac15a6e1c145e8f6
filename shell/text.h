#pragma once
// Text helpers over UTF-8 strings, counted in characters: the positions the
// screens' routines and the text boxes' caret speak of.

#include <string>
#include <string_view>

namespace orv {

int CharCount(std::string_view s);
// Byte offset of character `index` (0-based); the length for an index past the end.
std::size_t ByteOffset(std::string_view s, int index);

// Len, Mid (1-based start; without a length, the rest), Left, Right and InStr
// (1-based, 0 when absent) of the program's routines. A start below 1 or a
// negative length raises "Invalid procedure call or argument".
int Len(std::string_view s);
std::string Mid(std::string_view s, int start);
std::string Mid(std::string_view s, int start, int length);
std::string Left(std::string_view s, int length);
std::string Right(std::string_view s, int length);
int InStr(std::string_view s, std::string_view what, int start = 1);

// One character as UTF-8 from a character code.
std::string Chr(int code);

}  // namespace orv
