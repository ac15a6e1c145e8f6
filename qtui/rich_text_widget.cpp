#include "qtui/rich_text_widget.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextFrame>
#include <QTimer>
#include <algorithm>
#include <string>

#include "shell/controls.h"
#include "shell/rich_text.h"
#include "shell/text.h"

namespace orv::qt {

namespace {

QTextCharFormat::VerticalAlignment AlignmentOf(int offset) {
  if (offset < 0) return QTextCharFormat::AlignSubScript;
  if (offset > 0) return QTextCharFormat::AlignSuperScript;
  return QTextCharFormat::AlignNormal;
}

int OffsetOf(QTextCharFormat::VerticalAlignment alignment) {
  if (alignment == QTextCharFormat::AlignSubScript) return RichText::kLowered;
  if (alignment == QTextCharFormat::AlignSuperScript) return RichText::kRaised;
  return RichText::kOnLine;
}

// Characters (code points) to the document's positions (UTF-16 units), and back.
int ToPosition(const QString& text, int characters) {
  int position = 0;
  for (int k = 0; k < characters && position < text.size(); ++k) {
    position += text.at(position).isHighSurrogate() && position + 1 < text.size() ? 2 : 1;
  }
  return position;
}
int ToCharacters(const QString& text, int position) { return static_cast<int>(text.left(position).toUcs4().size()); }

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// The byte after the character that starts at byte `at`.
std::size_t NextCharacter(std::string_view text, std::size_t at) {
  ++at;
  while (at < text.size() && IsContinuation(text[at])) ++at;
  return at;
}

// The document's length of a run of whole characters: one position each, two
// for a character beyond the 16-bit range.
int Positions(std::string_view text) {
  int n = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (!IsContinuation(c)) ++n;
    if (byte >= 0xF0) ++n;
  }
  return n;
}

}  // namespace

// Where the text and offsets shown and the new ones differ: the characters
// [first, last) of the new text replace `removed` positions of the document
// from `position`. Equal texts and offsets give nothing to do.
RichTextWidget::Change RichTextWidget::Compare(std::string_view was, const std::vector<int>& wasOffsets,
                                               std::string_view now, const std::vector<int>& nowOffsets) {
  // The bytes the two share at the start, back to the start of a character.
  std::size_t head = 0;
  while (head < was.size() && head < now.size() && was[head] == now[head]) ++head;
  while (head > 0 &&
         ((head < was.size() && IsContinuation(was[head])) || (head < now.size() && IsContinuation(now[head])))) {
    --head;
  }
  int first = CharCount(now.substr(0, head));
  // Of those, the characters whose offsets agree too.
  first = static_cast<int>(std::mismatch(nowOffsets.begin(), nowOffsets.begin() + first, wasOffsets.begin()).first -
                           nowOffsets.begin());
  head = ByteOffset(now, first);
  // The same at the end, within what is left.
  std::size_t tail = 0;
  while (tail < was.size() - head && tail < now.size() - head &&
         was[was.size() - 1 - tail] == now[now.size() - 1 - tail]) {
    ++tail;
  }
  while (tail > 0 && (IsContinuation(was[was.size() - tail]) || IsContinuation(now[now.size() - tail]))) --tail;
  const int tailChars = CharCount(now.substr(now.size() - tail));
  const auto agreeing = std::mismatch(nowOffsets.rbegin(), nowOffsets.rbegin() + tailChars, wasOffsets.rbegin());
  const int kept = static_cast<int>(agreeing.first - nowOffsets.rbegin());
  tail = now.size() - ByteOffset(now, static_cast<int>(nowOffsets.size()) - kept);

  Change change;
  change.first = first;
  change.last = static_cast<int>(nowOffsets.size()) - kept;
  change.position = Positions(now.substr(0, head));
  change.removed = Positions(was.substr(head, was.size() - head - tail));
  change.removedCharacters = CharCount(was.substr(head, was.size() - head - tail));
  return change;
}

RichTextWidget::RichTextWidget(QWidget* parent) : QTextEdit(parent) {
  setAcceptRichText(false);
  setLineWrapMode(QTextEdit::NoWrap);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTabChangesFocus(true);
  PlaceLine();
  // A caret report can come before the report of the edit that moved it.
  connect(this, &QTextEdit::textChanged, this, [this] { ReportEdit(); });
  const auto caret = [this] {
    if (showing_) return;
    ReportEdit();
    if (onCaret) onCaret(SelectionStart(), SelectionLength());
  };
  connect(this, &QTextEdit::cursorPositionChanged, this, caret);
  connect(this, &QTextEdit::selectionChanged, this, caret);
}

void RichTextWidget::ReportEdit() {
  if (showing_ || toPlainText() == shownText_) return;
  shownText_ = toPlainText();
  if (onEdited) onEdited(shownText_);
}

void RichTextWidget::resizeEvent(QResizeEvent* e) {
  QTextEdit::resizeEvent(e);
  PlaceLine();
}

void RichTextWidget::changeEvent(QEvent* e) {
  QTextEdit::changeEvent(e);
  if (e->type() == QEvent::FontChange) PlaceLine();
}

void RichTextWidget::SetMultiLine(bool on) {
  if (on == multiLine_) return;
  multiLine_ = on;
  setLineWrapMode(on ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
  setVerticalScrollBarPolicy(on ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  PlaceLine();
}

void RichTextWidget::PlaceLine() {
  QTextFrameFormat frame = document()->rootFrame()->frameFormat();
  // One line stands in the middle of the box; a page starts at its top.
  const int top = multiLine_ ? 2 : std::max(0, (viewport()->height() - fontMetrics().lineSpacing()) / 2 - 1);
  frame.setMargin(0);
  frame.setTopMargin(top);
  frame.setLeftMargin(4);
  frame.setRightMargin(4);
  document()->rootFrame()->setFrameFormat(frame);
}

void RichTextWidget::ShowControl(const Control& c) {
  SetMultiLine((c.flags() & kMultiLine) != 0);
  showing_ = true;
  const std::string& text = c.Text();
  // One offset a character; a short list is read as characters on the line.
  const std::size_t count = static_cast<std::size_t>(CharCount(text));
  std::vector<int> padded;
  if (c.rich().Offsets().size() != count) {
    padded = c.rich().Offsets();
    padded.resize(count, RichText::kOnLine);
  }
  const std::vector<int>& offsets = padded.size() == count ? padded : c.rich().Offsets();
  // The document changes only where the text or an offset did, so that one
  // key typed into a long text costs as much as a key in a short one.
  if (toPlainText() != shownText_) ClearShown();
  Change change = Compare(shownUtf8_, shownOffsets_, text, offsets);
  // A long text goes in a part at a time, one part each turn of the event
  // loop, so that a help file of any size shows its start at once and the
  // window keeps answering while the rest follows.
  const bool more = change.last - change.first > kCharactersPerTurn;
  if (more) change.last = change.first + kCharactersPerTurn;
  if (change.removed > 0 || change.first < change.last) {
    Replace(text, offsets, change);
    if (more) {
      HoldPart(text, offsets, change);
      QTimer::singleShot(0, this, [this] {
        if (resync) resync();
      });
    } else {
      shownUtf8_ = text;
      shownOffsets_ = offsets;
      shownText_ = QString::fromStdString(text);
    }
  }
  ShowCaret(c.SelStart(), c.SelLength());
  showing_ = false;
}

// The user changed the document behind the runtime's back: it is emptied and
// shown again from nothing.
void RichTextWidget::ClearShown() {
  shownUtf8_.clear();
  shownOffsets_.clear();
  shownText_.clear();
  QTextCursor all(document());
  all.select(QTextCursor::Document);
  all.removeSelectedText();
}

// Puts the characters [first, last) of the new text in place of the removed
// part of the document, as one edit.
void RichTextWidget::Replace(const std::string& text, const std::vector<int>& offsets, const Change& change) {
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  cursor.setPosition(change.position);
  cursor.setPosition(change.position + change.removed, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  // Runs of characters with the same offset go in at once.
  const std::size_t to = ByteOffset(text, change.last);
  std::size_t a = ByteOffset(text, change.first);
  for (int k = change.first; k < change.last;) {
    const int offset = offsets[static_cast<std::size_t>(k)];
    int next = k + 1;
    while (next < change.last && offsets[static_cast<std::size_t>(next)] == offset) ++next;
    std::size_t b = a;
    for (int i = k; i < next; ++i) b = NextCharacter(text, b);
    QTextCharFormat format;
    format.setVerticalAlignment(AlignmentOf(offset));
    cursor.insertText(QString::fromUtf8(text.data() + a, static_cast<qsizetype>(std::min(b, to) - a)), format);
    a = b;
    k = next;
  }
  cursor.endEditBlock();
}

// What the document holds after only a part of a long text went in: the old
// text's ends around the new part.
void RichTextWidget::HoldPart(const std::string& text, const std::vector<int>& offsets, const Change& change) {
  const std::size_t from = ByteOffset(text, change.first);
  const std::size_t to = ByteOffset(text, change.last);
  const std::size_t head = ByteOffset(shownUtf8_, change.first);
  const std::size_t tail = shownUtf8_.size() - ByteOffset(shownUtf8_, change.first + change.removedCharacters);
  shownUtf8_ = shownUtf8_.substr(0, head) + text.substr(from, to - from) + shownUtf8_.substr(shownUtf8_.size() - tail);
  std::vector<int> held(shownOffsets_.begin(), shownOffsets_.begin() + change.first);
  held.insert(held.end(), offsets.begin() + change.first, offsets.begin() + change.last);
  held.insert(
      held.end(),
      shownOffsets_.end() - static_cast<std::ptrdiff_t>(shownOffsets_.size() - change.first - change.removedCharacters),
      shownOffsets_.end());
  shownOffsets_ = std::move(held);
  shownText_ = QString::fromStdString(shownUtf8_);
}

// Sets the caret to the control's selection, in characters, and scrolls it
// into sight.
void RichTextWidget::ShowCaret(int selStart, int selLength) {
  const int start = ToPosition(shownText_, selStart);
  const int end = ToPosition(shownText_, selStart + selLength);
  QTextCursor caret = textCursor();
  if (caret.selectionStart() != start || caret.selectionEnd() != end) {
    caret.setPosition(start);
    caret.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(caret);
  }
  // A caret at the very start shows the text from its top, margin included.
  if (end == 0) {
    verticalScrollBar()->setValue(verticalScrollBar()->minimum());
  } else {
    ensureCursorVisible();
  }
}

std::vector<int> RichTextWidget::ShownOffsets() const {
  std::vector<int> out;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block != document()->begin()) out.push_back(RichText::kOnLine);  // the line break
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      const int offset = OffsetOf(fragment.charFormat().verticalAlignment());
      out.insert(out.end(), static_cast<std::size_t>(fragment.text().toUcs4().size()), offset);
    }
  }
  return out;
}

int RichTextWidget::SelectionStart() const { return ToCharacters(toPlainText(), textCursor().selectionStart()); }

int RichTextWidget::SelectionLength() const {
  const QString text = toPlainText();
  const QTextCursor caret = textCursor();
  return ToCharacters(text, caret.selectionEnd()) - ToCharacters(text, caret.selectionStart());
}

}  // namespace orv::qt
