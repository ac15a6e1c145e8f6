#include "shell/picture.h"

#include <cstdio>

namespace orv {

namespace {
std::string Hex(Color c) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "%06X", static_cast<unsigned>(c & 0xFFFFFFu));
  return buf;
}
}  // namespace

std::string Describe(const PictureItem& item) {
  return "circle " + Str(Single(item.x)) + " " + Str(Single(item.y)) + " " + Str(Single(item.radius)) +
         " line=" + Hex(item.line) + " fill=" + (item.filled ? Hex(item.fill) : std::string("none"));
}

void Picture::Changed() const {
  if (onChange) onChange();
}

void Picture::Scale(Single x1, Single y1, Single x2, Single y2) {
  PictureScale s{x1.value(), y1.value(), Single(Expr(x2) - Expr(x1)).value(), Single(Expr(y2) - Expr(y1)).value()};
  if (s == scale_) return;
  scale_ = s;
  Changed();
}

void Picture::SetBackColor(Color c) {
  if (c == backColor_) return;
  backColor_ = c;
  Changed();
}

void Picture::Circle(Single x, Single y, Single radius) { Circle(x, y, radius, foreColor_); }

void Picture::Circle(Single x, Single y, Single radius, Color line) {
  PictureItem item;
  item.x = x.value();
  item.y = y.value();
  item.radius = radius.value();
  item.line = line;
  item.fill = fillColor_;
  item.filled = fillStyle_ == FillStyle::Solid;
  items_.push_back(item);
  Changed();
}

void Picture::Cls() {
  items_.clear();
  ++clears_;
  Changed();
}

}  // namespace orv
