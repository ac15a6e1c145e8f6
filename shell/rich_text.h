#pragma once
// The character formatting of a rich text box: every character's vertical
// offset from the line, in the box's units (0 on the line, negative lowered,
// positive raised), and the offset that the next typed character takes. The
// box's text itself stays in the control; this follows its edits.

#include <string_view>
#include <vector>

namespace orv {

class RichText {
 public:
  static constexpr int kLowered = -50;
  static constexpr int kOnLine = 0;
  static constexpr int kRaised = 50;

  // The offset the next typed or pasted character takes (SelCharOffset).
  int TypingOffset() const { return typingOffset_; }
  // One offset a character of the text.
  const std::vector<int>& Offsets() const { return offsets_; }

  // Sets the typing offset, and the offset of the selected characters.
  void SetOffset(int selStart, int selLength, int offset);

  // The program wrote a whole new text of `count` characters: all stand on
  // the line.
  void Reset(int count);

  // Characters [start, start + removed) were replaced by `inserted` new ones,
  // which take the typing offset.
  void Replace(int start, int removed, int inserted);

  // Follows an edit of the text from `before` to `after` made at the caret
  // (selStart, selLength, as they stood before the edit): typing over the
  // selection, Delete, Backspace, or any other change, in that order of
  // likelihood. Characters that the edit kept keep their offsets.
  void Follow(std::string_view before, std::string_view after, int selStart, int selLength);

 private:
  int typingOffset_ = kOnLine;
  std::vector<int> offsets_;
};

}  // namespace orv
