#pragma once
// The header label over a list of padded rows. Its text is spaced by hand with
// blanks, which a proportional face doesn't turn into the list's columns; so
// each group of words of the text (parted by two blanks or more) is painted
// over the character column of the list it heads, measured in the list's own
// fixed-pitch face. The label's text stays exactly as it was given.

#include <QLabel>
#include <QPointer>
#include <vector>

class QListWidget;

namespace orv::qt {

class HeaderLabel : public QLabel {
  Q_OBJECT

 public:
  explicit HeaderLabel(QWidget* parent = nullptr);

  // The list under the label, and the character column of each group of words.
  void SetColumns(QListWidget* list, std::vector<int> columns);

  struct Piece {
    QString text;
    QRectF box;  // in the label's coordinates
  };
  // The groups of words and where they are painted.
  std::vector<Piece> Pieces() const;

  // The x, in the label's coordinates, at which the list's text shows its
  // character column `column`.
  double ColumnX(int column) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPointer<QListWidget> list_;
  std::vector<int> columns_;
};

}  // namespace orv::qt
