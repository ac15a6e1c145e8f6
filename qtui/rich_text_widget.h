#pragma once
// The rich text box: one line of text whose characters stand on the line,
// lowered (subscript) or raised (superscript), as the control's offsets say;
// or, for a box of several lines, a page of text that wraps and scrolls.
// The runtime edits the text; this widget only shows it, and tells of the
// caret and of edits that bypass the keys (pasting, dropping).

#include <QTextEdit>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orv {
class Control;
}

namespace orv::qt {

class RichTextWidget : public QTextEdit {
 public:
  explicit RichTextWidget(QWidget* parent);

  // Shows the control's text, its characters' offsets and its caret.
  void ShowControl(const Control& c);

  // The offsets of the characters shown, read back from the document: the
  // box's units for lowered, on the line and raised.
  std::vector<int> ShownOffsets() const;

  // The caret as the user left it, in characters.
  int SelectionStart() const;
  int SelectionLength() const;

  // Called when the user changed the text other than by typing, and when the
  // user moved the caret.
  std::function<void(const QString&)> onEdited;
  std::function<void(int start, int length)> onCaret;
  // Called to show the control again, when a long text went in only in part.
  std::function<void()> resync;

  // The most characters that go into the document in one turn of the event
  // loop.
  static constexpr int kCharactersPerTurn = 1 << 20;

 protected:
  void resizeEvent(QResizeEvent* e) override;
  void changeEvent(QEvent* e) override;

 private:
  // Centres the line in the box's height.
  void PlaceLine();
  // Tells of an edit that the user made to the text shown, if any.
  void ReportEdit();

  // Sets the box up for one line or for several, as the control says.
  void SetMultiLine(bool on);

  // The part of the document to replace for a new text and offsets.
  struct Change {
    int first = 0, last = 0;        // the new characters that go in
    int position = 0, removed = 0;  // the document's positions they replace
    int removedCharacters = 0;      // the same, in characters of the old text
  };
  static Change Compare(std::string_view was, const std::vector<int>& wasOffsets, std::string_view now,
                        const std::vector<int>& nowOffsets);
  // The steps of showing the control: forgetting a document the user changed,
  // replacing the part that differs, recording a part of a long text, placing
  // the caret.
  void ClearShown();
  void Replace(const std::string& text, const std::vector<int>& offsets, const Change& change);
  void HoldPart(const std::string& text, const std::vector<int>& offsets, const Change& change);
  void ShowCaret(int selStart, int selLength);

  bool showing_ = false;
  bool multiLine_ = false;
  // What the document shows: its text, as UTF-16 and as UTF-8, and each
  // character's offset.
  QString shownText_;
  std::string shownUtf8_;
  std::vector<int> shownOffsets_;
};

}  // namespace orv::qt
