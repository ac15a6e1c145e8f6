#include "qtui/rich_text_widget.h"

#include <QEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextFrame>
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

}  // namespace

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
  const std::vector<int>& offsets = c.rich().Offsets();
  const QString shown = QString::fromStdString(text);
  shownText_ = shown;
  if (toPlainText() != shown || ShownOffsets() != offsets) {
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setCharFormat(QTextCharFormat());
    // Runs of characters with the same offset go in at once.
    const int n = CharCount(text);
    int from = 0;
    while (from < n) {
      const int offset = from < static_cast<int>(offsets.size()) ? offsets[static_cast<std::size_t>(from)] : 0;
      int to = from + 1;
      while (to < n && (to < static_cast<int>(offsets.size()) ? offsets[static_cast<std::size_t>(to)] : 0) == offset) {
        ++to;
      }
      QTextCharFormat format;
      format.setVerticalAlignment(AlignmentOf(offset));
      const std::size_t a = ByteOffset(text, from);
      cursor.insertText(QString::fromStdString(text.substr(a, ByteOffset(text, to) - a)), format);
      from = to;
    }
  }
  const int start = ToPosition(shown, c.SelStart());
  const int end = ToPosition(shown, c.SelStart() + c.SelLength());
  QTextCursor caret = textCursor();
  if (caret.selectionStart() != start || caret.selectionEnd() != end) {
    caret.setPosition(start);
    caret.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(caret);
  }
  ensureCursorVisible();
  showing_ = false;
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
