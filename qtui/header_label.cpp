#include "qtui/header_label.h"

#include <QFontMetricsF>
#include <QListWidget>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace orv::qt {

namespace {

struct Group {
  QString text;
  int at;  // character offset in the label's text
};

// The groups of words of a text: runs parted by two blanks or more.
std::vector<Group> Groups(const QString& text) {
  std::vector<Group> groups;
  int i = 0;
  const int n = static_cast<int>(text.size());
  while (i < n) {
    while (i < n && text[i] == QLatin1Char(' ')) ++i;
    if (i >= n) break;
    int end = i;
    while (end < n && !(text[end] == QLatin1Char(' ') && (end + 1 >= n || text[end + 1] == QLatin1Char(' ')))) ++end;
    groups.push_back({text.mid(i, end - i), i});
    i = end;
  }
  return groups;
}

}  // namespace

HeaderLabel::HeaderLabel(QWidget* parent) : QLabel(parent) {}

void HeaderLabel::SetColumns(QListWidget* list, std::vector<int> columns) {
  list_ = list;
  columns_ = std::move(columns);
  update();
}

double HeaderLabel::ColumnX(int column) const {
  if (list_.isNull()) return 0;
  // A list view draws an item's text one focus-frame margin and a pixel in
  // from the item's left edge.
  const int margin = list_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list_) + 1;
  const int itemLeft = list_->count() > 0 ? list_->visualItemRect(list_->item(0)).left() : 0;
  const QPoint origin = list_->viewport()->mapTo(window(), QPoint(itemLeft + margin, 0));
  const double left = mapFrom(window(), origin).x();
  return left + column * QFontMetricsF(list_->font()).horizontalAdvance(QLatin1Char('0'));
}

std::vector<HeaderLabel::Piece> HeaderLabel::Pieces() const {
  const QFontMetricsF fm(font());
  const QRectF area = contentsRect();
  const double blank = fm.horizontalAdvance(QLatin1Char(' '));
  const std::vector<Group> groups = Groups(text());
  std::vector<Piece> pieces;
  double end = area.left() - blank;  // where the group before ends
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const double w = fm.horizontalAdvance(groups[i].text);
    double x = end + 2 * blank;  // a group beyond the columns follows the one before
    if (i < columns_.size()) {
      x = ColumnX(columns_[i]);
      // A group wider than its column and the gap after it is drawn back so
      // that it ends a blank before the next column, as far as the group
      // before it allows.
      if (i + 1 < columns_.size()) x = std::min(x, ColumnX(columns_[i + 1]) - blank - w);
    }
    x = std::max(x, end + blank);
    pieces.push_back({groups[i].text, QRectF(x, area.top(), w, area.height())});
    end = x + w;
  }
  return pieces;
}

void HeaderLabel::paintEvent(QPaintEvent* event) {
  if (list_.isNull() || columns_.empty()) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter p(this);
  p.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  p.setFont(font());
  for (const Piece& piece : Pieces()) p.drawText(piece.box, Qt::AlignLeft | Qt::AlignVCenter, piece.text);
}

}  // namespace orv::qt
