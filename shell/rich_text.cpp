#include "shell/rich_text.h"

#include <algorithm>

#include "shell/text.h"

namespace orv {

namespace {

// The text as its characters.
std::vector<std::string_view> Chars(std::string_view s) {
  std::vector<std::string_view> out;
  const int n = CharCount(s);
  out.reserve(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    const std::size_t from = ByteOffset(s, i);
    out.push_back(s.substr(from, ByteOffset(s, i + 1) - from));
  }
  return out;
}

// Whether `after` is `before` with [start, end) replaced by some characters.
bool IsReplacement(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after, int start,
                   int end) {
  const int n = static_cast<int>(before.size());
  const int m = static_cast<int>(after.size());
  if (start < 0 || end < start || end > n) return false;
  const int tail = n - end;
  if (start + tail > m) return false;
  return std::equal(before.begin(), before.begin() + start, after.begin()) &&
         std::equal(before.begin() + end, before.end(), after.end() - tail);
}

}  // namespace

void RichText::SetOffset(int selStart, int selLength, int offset) {
  typingOffset_ = offset;
  const int n = static_cast<int>(offsets_.size());
  const int from = std::clamp(selStart, 0, n);
  const int to = std::clamp(selStart + selLength, from, n);
  std::fill(offsets_.begin() + from, offsets_.begin() + to, offset);
}

void RichText::Reset(int count) { offsets_.assign(static_cast<std::size_t>(std::max(count, 0)), kOnLine); }

void RichText::Replace(int start, int removed, int inserted) {
  const int n = static_cast<int>(offsets_.size());
  start = std::clamp(start, 0, n);
  removed = std::clamp(removed, 0, n - start);
  offsets_.erase(offsets_.begin() + start, offsets_.begin() + start + removed);
  offsets_.insert(offsets_.begin() + start, static_cast<std::size_t>(std::max(inserted, 0)), typingOffset_);
}

void RichText::Follow(std::string_view before, std::string_view after, int selStart, int selLength) {
  const auto was = Chars(before);
  const auto now = Chars(after);
  const int n = static_cast<int>(was.size());
  const int m = static_cast<int>(now.size());
  if (static_cast<int>(offsets_.size()) != n) Reset(n);

  auto apply = [&](int start, int end) { Replace(start, end - start, m - (n - (end - start))); };
  // Typing over the selection (or at the caret).
  if (IsReplacement(was, now, selStart, selStart + selLength)) {
    return apply(selStart, selStart + selLength);
  }
  // Delete and Backspace without a selection remove one character.
  if (m == n - 1 && selLength == 0) {
    if (IsReplacement(was, now, selStart, selStart + 1)) return apply(selStart, selStart + 1);
    if (IsReplacement(was, now, selStart - 1, selStart)) return apply(selStart - 1, selStart);
  }
  // Anything else: what the two texts share at both ends keeps its offsets.
  int prefix = 0;
  while (prefix < n && prefix < m && was[static_cast<std::size_t>(prefix)] == now[static_cast<std::size_t>(prefix)]) {
    ++prefix;
  }
  int suffix = 0;
  while (suffix < n - prefix && suffix < m - prefix &&
         was[static_cast<std::size_t>(n - 1 - suffix)] == now[static_cast<std::size_t>(m - 1 - suffix)]) {
    ++suffix;
  }
  apply(prefix, n - suffix);
}

}  // namespace orv
