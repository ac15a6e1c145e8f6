// Text boxes: a line edit whose keys the view hands to the runtime first.
// What the user types past the runtime comes back as an edit, and every move
// of the caret as the box's selection.

#include <QLineEdit>
#include <QPlainTextEdit>

#include "qtui/adapters/adapters.h"
#include "qtui/qt_view.h"

namespace orv::qt {

namespace {

class TextBox : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    if ((c.flags() & kMultiLine) != 0) return CreateLines(c, context);
    auto* edit = new QLineEdit(context.parent);
    edit->setAlignment(AlignFor(c));
    QtView& view = context.view;
    Control* target = &c;
    QObject::connect(edit, &QLineEdit::textEdited, &view,
                     [&view, target](const QString& t) { view.Edited(*target, t); });
    QObject::connect(edit, &QLineEdit::cursorPositionChanged, &view, [&view, target, edit](int, int) {
      const int start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
      const int length = edit->hasSelectedText() ? static_cast<int>(edit->selectedText().size()) : 0;
      view.CaretMoved(*target, start, length);
    });
    return edit;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    if (auto* box = qobject_cast<QPlainTextEdit*>(shown)) {
      if (SyncCommon(c, box, what)) return;
      const QString text = Q(c.Text());
      if (what == Prop::Text && box->toPlainText() != text) box->setPlainText(text);
      return;
    }
    auto* edit = static_cast<QLineEdit*>(shown);
    if (SyncCommon(c, edit, what)) return;
    // A new text puts the caret where the model has it, so the text and
    // the caret go together.
    if (what == Prop::Text) {
      const QString text = Q(c.Text());
      if (edit->text() != text) edit->setText(text);
    }
    if (what == Prop::Text || what == Prop::Selection) {
      if (c.SelLength() > 0) {
        edit->setSelection(c.SelStart(), c.SelLength());
      } else {
        edit->setCursorPosition(c.SelStart());
      }
    }
  }

  bool TakesDoubleClick() const override { return false; }

 private:
  // A box of several lines wraps its text at the words, and scrolls only when
  // the lines outgrow it.
  static QObject* CreateLines(Control& c, BuildContext& context) {
    auto* box = new QPlainTextEdit(context.parent);
    box->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    box->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->document()->setDocumentMargin(2);
    QtView& view = context.view;
    Control* target = &c;
    QObject::connect(box, &QPlainTextEdit::textChanged, &view,
                     [&view, target, box] { view.Edited(*target, box->toPlainText()); });
    return box;
  }
};

}  // namespace

const ControlAdapter& TextBoxAdapter() {
  static const TextBox adapter;
  return adapter;
}

}  // namespace orv::qt
