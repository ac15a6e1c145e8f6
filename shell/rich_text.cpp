#include "shell/rich_text.h"

#include <algorithm>
#include <utility>

#include "shell/text.h"

namespace orv {

namespace {

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// Whether `after` is `before` with the characters [start, end) replaced by
// some others. The two ends are compared as bytes: a run of whole characters
// is equal exactly when its bytes are.
bool IsReplacement(std::string_view before, std::string_view after, int start, int end) {
  const int n = CharCount(before);
  if (start < 0 || end < start || end > n) return false;
  const std::size_t head = ByteOffset(before, start);
  const std::size_t tail = before.size() - ByteOffset(before, end);
  if (head + tail > after.size()) return false;
  return before.substr(0, head) == after.substr(0, head) &&
         before.substr(before.size() - tail) == after.substr(after.size() - tail);
}

// The number of whole characters the two texts share at their start, and,
// of what is left, at their end.
std::pair<int, int> SharedEnds(std::string_view a, std::string_view b) {
  std::size_t head = 0;
  while (head < a.size() && head < b.size() && a[head] == b[head]) ++head;
  // Back to the start of a character in both.
  while (head > 0 && ((head < a.size() && IsContinuation(a[head])) || (head < b.size() && IsContinuation(b[head])))) {
    --head;
  }
  std::size_t tail = 0;
  while (tail < a.size() - head && tail < b.size() - head && a[a.size() - 1 - tail] == b[b.size() - 1 - tail]) {
    ++tail;
  }
  // Forward to the start of a character in both.
  while (tail > 0 && (IsContinuation(a[a.size() - tail]) || IsContinuation(b[b.size() - tail]))) --tail;
  return {CharCount(a.substr(0, head)), CharCount(a.substr(a.size() - tail))};
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
  const int n = CharCount(before);
  const int m = CharCount(after);
  if (static_cast<int>(offsets_.size()) != n) Reset(n);

  auto apply = [&](int start, int end) { Replace(start, end - start, m - (n - (end - start))); };
  // Typing over the selection (or at the caret).
  if (IsReplacement(before, after, selStart, selStart + selLength)) {
    return apply(selStart, selStart + selLength);
  }
  // Delete and Backspace without a selection remove one character.
  if (m == n - 1 && selLength == 0) {
    if (IsReplacement(before, after, selStart, selStart + 1)) return apply(selStart, selStart + 1);
    if (IsReplacement(before, after, selStart - 1, selStart)) return apply(selStart - 1, selStart);
  }
  // Anything else: what the two texts share at both ends keeps its offsets.
  const auto [prefix, suffix] = SharedEnds(before, after);
  apply(prefix, n - suffix);
}

}  // namespace orv
