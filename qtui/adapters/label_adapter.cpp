// Labels: a caption, clickable, optionally with a sunken border.

#include <QLabel>

#include "qtui/adapters/adapters.h"
#include "qtui/header_label.h"

namespace orv::qt {

namespace {

class Label : public ControlAdapter {
 public:
  QObject* Create(Control& c, BuildContext& context) const override {
    // The header of a list of padded rows lines its words up over the columns.
    QLabel* label = c.HeaderOf().empty() ? new QLabel(context.parent) : new HeaderLabel(context.parent);
    // Labels of several lines wrap and start at the top.
    const bool lines = c.rect().h > 30;
    label->setWordWrap(lines);
    label->setAlignment(lines ? (AlignFor(c) & Qt::AlignHorizontal_Mask) | Qt::AlignTop : AlignFor(c));
    if ((c.flags() & kBorder) != 0) label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    ClickOnRelease(context.view, label);
    return label;
  }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* label = static_cast<QLabel*>(shown);
    if (SyncCommon(c, label, what)) return;
    if (what == Prop::Text) label->setText(Q(c.Caption()));
  }
};

}  // namespace

const ControlAdapter& LabelAdapter() {
  static const Label adapter;
  return adapter;
}

}  // namespace orv::qt
