#include "qtui/tree_widget.h"

#include <QHeaderView>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>
#include <map>

#include "shell/controls.h"
#include "shell/form.h"
#include "shell/program.h"
#include "shell/tree.h"

namespace orv::qt {

namespace {

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

constexpr int kSize = 16;  // logical pixels
constexpr qreal kRatio = 2.0;

// The cover of a book seen from the front: its spine, a title label and the
// edge of the pages below.
void DrawClosedBook(QPainter& p) {
  const QColor cover(46, 92, 170), dark(24, 52, 110);
  p.setPen(QPen(dark, 0.8));
  p.setBrush(Qt::white);
  p.drawRect(QRectF(4.5, 12.5, 9, 2.2));
  p.setBrush(cover);
  p.drawRoundedRect(QRectF(3, 1.2, 10.5, 12), 1, 1);
  p.setPen(Qt::NoPen);
  p.setBrush(dark);
  p.drawRect(QRectF(3.4, 1.6, 1.8, 11.2));
  p.setBrush(QColor(235, 225, 190));
  p.drawRect(QRectF(6.5, 3.8, 5, 2.6));
}

// A book lying open: two pages with lines of text on a cover.
void DrawOpenBook(QPainter& p) {
  const QColor dark(24, 52, 110);
  p.setPen(QPen(dark, 0.8));
  p.setBrush(QColor(46, 92, 170));
  QPainterPath cover;
  cover.moveTo(0.5, 4.5);
  cover.lineTo(8, 6.5);
  cover.lineTo(15.5, 4.5);
  cover.lineTo(15.5, 13.5);
  cover.lineTo(8, 15.2);
  cover.lineTo(0.5, 13.5);
  cover.closeSubpath();
  p.drawPath(cover);
  p.setBrush(Qt::white);
  const QPolygonF left({QPointF(1.5, 3), QPointF(8, 5), QPointF(8, 14), QPointF(1.5, 12.2)});
  const QPolygonF right({QPointF(8, 5), QPointF(14.5, 3), QPointF(14.5, 12.2), QPointF(8, 14)});
  p.drawPolygon(left);
  p.drawPolygon(right);
  p.setPen(QPen(QColor(140, 150, 170), 0.7));
  for (int k = 0; k < 3; ++k) {
    const qreal y = 6 + 2.2 * k;
    p.drawLine(QPointF(2.8, y - 0.9), QPointF(6.8, y + 0.3));
    p.drawLine(QPointF(9.2, y + 0.3), QPointF(13.2, y - 0.9));
  }
}

const QColor kFolder(242, 198, 84), kFolderLight(250, 222, 140), kFolderEdge(168, 122, 28);

void DrawClosedFolder(QPainter& p) {
  p.setPen(QPen(kFolderEdge, 0.8));
  p.setBrush(kFolder);
  QPainterPath body;
  body.moveTo(1, 3.5);
  body.lineTo(6, 3.5);
  body.lineTo(7.5, 5);
  body.lineTo(15, 5);
  body.lineTo(15, 13.5);
  body.lineTo(1, 13.5);
  body.closeSubpath();
  p.drawPath(body);
  p.setPen(QPen(kFolderLight, 0.8));
  p.drawLine(QPointF(1.8, 6.2), QPointF(14.2, 6.2));
}

void DrawOpenFolder(QPainter& p) {
  p.setPen(QPen(kFolderEdge, 0.8));
  p.setBrush(kFolder);
  QPainterPath back;
  back.moveTo(1, 3.5);
  back.lineTo(6, 3.5);
  back.lineTo(7.5, 5);
  back.lineTo(13.5, 5);
  back.lineTo(13.5, 13.5);
  back.lineTo(1, 13.5);
  back.closeSubpath();
  p.drawPath(back);
  p.setBrush(kFolderLight);
  const QPolygonF flap({QPointF(3.5, 7.5), QPointF(15.5, 7.5), QPointF(13.5, 13.5), QPointF(1, 13.5)});
  p.drawPolygon(flap);
}

}  // namespace

QPixmap TreePicture(const std::string& name) {
  static std::map<std::string, QPixmap> drawn;
  if (auto it = drawn.find(name); it != drawn.end()) return it->second;
  static const std::pair<const char*, void (*)(QPainter&)> kPictures[] = {{"closed book", &DrawClosedBook},
                                                                          {"open book", &DrawOpenBook},
                                                                          {"closed folder", &DrawClosedFolder},
                                                                          {"open folder", &DrawOpenFolder}};
  for (const auto& [n, draw] : kPictures) {
    if (name != n) continue;
    QPixmap pixmap(static_cast<int>(kSize * kRatio), static_cast<int>(kSize * kRatio));
    pixmap.setDevicePixelRatio(kRatio);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    draw(p);
    p.end();
    return drawn[name] = pixmap;
  }
  return {};
}

TreeWidget::TreeWidget(QWidget* parent, Control& control) : QTreeWidget(parent), control_(control) {
  setColumnCount(1);
  header()->hide();
  setSelectionMode(QAbstractItemView::SingleSelection);
  setIconSize(QSize(kSize, kSize));
  setExpandsOnDoubleClick(true);
  setAnimated(false);
  setUniformRowHeights(true);
  // The runtime keeps the selected node and the open branches.
  connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item, QTreeWidgetItem*) {
    if (item != nullptr) Input([this, key = KeyOf(item)] { UserSelectNode(control_, key); });
  });
  connect(this, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* item, int) { Input([this, key = KeyOf(item)] { UserClickNode(control_, key); }); });
  connect(this, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem* item) { Input([this, key = KeyOf(item)] { UserExpandNode(control_, key, true); }); });
  connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) {
    Input([this, key = KeyOf(item)] { UserExpandNode(control_, key, false); });
  });
  // The tree opens or closes a branch on a double click itself; the
  // runtime hears of that separately and sees the control's DblClick here.
  connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item, int) {
    Input([this, key = KeyOf(item)] {
      UserSelectNode(control_, key);
      control_.form().program().UserDblClick(control_);
    });
  });
}

void TreeWidget::Input(const std::function<void()>& fn) {
  if (showing_ || !onInput) return;
  onInput(fn);
}

std::string TreeWidget::KeyOf(const QTreeWidgetItem* item) {
  return item != nullptr ? item->data(0, Qt::UserRole).toString().toStdString() : std::string();
}

QTreeWidgetItem* TreeWidget::ItemOf(std::string_view key) const {
  const QString k = Q(key);
  for (QTreeWidgetItemIterator it(const_cast<TreeWidget*>(this)); *it != nullptr; ++it) {
    if ((*it)->data(0, Qt::UserRole).toString() == k) return *it;
  }
  return nullptr;
}

bool TreeWidget::Shown(const QTreeWidgetItem* item) {
  if (item == nullptr) return false;
  for (const QTreeWidgetItem* p = item->parent(); p != nullptr; p = p->parent()) {
    if (!p->isExpanded()) return false;
  }
  return true;
}

void TreeWidget::Show(const Tree& tree) {
  showing_ = true;
  std::vector<std::tuple<std::string, std::string, std::string>> nodes;
  nodes.reserve(tree.Nodes().size());
  for (const TreeNode& n : tree.Nodes()) nodes.emplace_back(n.key, n.text, n.parentKey);
  if (nodes != shown_) {
    clear();
    std::map<std::string, QTreeWidgetItem*, std::less<>> items;
    for (const TreeNode& n : tree.Nodes()) {
      // A parent stands before its children in the model.
      auto parent = items.find(n.parentKey);
      auto* item = parent != items.end() ? new QTreeWidgetItem(parent->second) : new QTreeWidgetItem(this);
      item->setText(0, Q(n.text));
      item->setData(0, Qt::UserRole, Q(n.key));
      items[n.key] = item;
    }
    shown_ = std::move(nodes);
  }
  for (const TreeNode& n : tree.Nodes()) {
    QTreeWidgetItem* item = ItemOf(n.key);
    if (item == nullptr) continue;
    if (item->isExpanded() != n.expanded) item->setExpanded(n.expanded);
    item->setIcon(0, QIcon(TreePicture(tree.PictureOf(n))));
  }
  ShowSelection(tree);
  showing_ = false;
}

void TreeWidget::ShowSelection(const Tree& tree) {
  const TreeNode* selected = tree.SelectedItem();
  QTreeWidgetItem* item = selected != nullptr ? ItemOf(selected->key) : nullptr;
  if (currentItem() != item) {
    const QSignalBlocker block(this);
    if (item != nullptr) {
      setCurrentItem(item);
    } else {
      setCurrentItem(nullptr);
      clearSelection();
    }
  }
}

void TreeWidget::focusInEvent(QFocusEvent* e) {
  // Gaining the focus selects no node by itself: the model's selection stays.
  {
    const QSignalBlocker block(this);
    QTreeWidget::focusInEvent(e);
  }
  ShowSelection(control_.tree());
}

}  // namespace orv::qt
