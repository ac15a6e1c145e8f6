#pragma once
// The drawing surface of a picture box: a user scale, the colours and fill
// style that each drawing step sets for itself, and what has been drawn,
// kept as a display list in drawing order. A view paints the list from the
// first item to the last, so a later item covers an earlier one. No toolkit
// code lives here.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "shell/numbers.h"

namespace orv {

// A colour as 0xRRGGBB.
using Color = std::uint32_t;

constexpr Color Rgb(int r, int g, int b) {
  return (static_cast<Color>(r & 0xFF) << 16) | (static_cast<Color>(g & 0xFF) << 8) | static_cast<Color>(b & 0xFF);
}
inline constexpr Color kBlack = Rgb(0, 0, 0);
inline constexpr Color kWhite = Rgb(255, 255, 255);

enum class FillStyle { Solid, Transparent };

// One drawn circle, in user coordinates: the outline in `line`, the inside
// in `fill` when `filled`.
struct PictureItem {
  float x = 0;
  float y = 0;
  float radius = 0;
  Color line = kBlack;
  Color fill = kBlack;
  bool filled = false;

  bool operator==(const PictureItem&) const = default;
};

// "circle X Y R line=RRGGBB fill=RRGGBB" (or "fill=none"), the numbers in
// their 32-bit number-to-text form.
std::string Describe(const PictureItem& item);

// The user scale: (left, top) is the top left corner, (left + width,
// top + height) the bottom right; a negative height makes y grow upwards.
struct PictureScale {
  float left = 0;
  float top = 0;
  float width = 1;
  float height = 1;

  bool operator==(const PictureScale&) const = default;
};

class Picture {
 public:
  // The scale from the top left corner (x1, y1) to the bottom right (x2, y2).
  void Scale(Single x1, Single y1, Single x2, Single y2);
  const PictureScale& scale() const { return scale_; }

  Color BackColor() const { return backColor_; }
  void SetBackColor(Color c);
  Color ForeColor() const { return foreColor_; }
  void SetForeColor(Color c) { foreColor_ = c; }
  Color FillColor() const { return fillColor_; }
  void SetFillColor(Color c) { fillColor_ = c; }
  FillStyle Style() const { return fillStyle_; }
  void SetFillStyle(FillStyle s) { fillStyle_ = s; }

  // A circle around (x, y) with the radius measured along the horizontal
  // axis: outlined in the foreground colour and, with a solid fill style,
  // filled with the fill colour.
  void Circle(Single x, Single y, Single radius);
  // The same with an outline colour of its own.
  void Circle(Single x, Single y, Single radius, Color line);
  // Clears the surface to its background colour.
  void Cls();

  const std::vector<PictureItem>& Items() const { return items_; }
  // How often the surface was cleared: a view that has seen the same number
  // of clears and fewer items need only add the rest.
  unsigned Clears() const { return clears_; }

  // Told after every change of what the surface shows.
  std::function<void()> onChange;

 private:
  void Changed() const;

  PictureScale scale_;
  Color backColor_ = kWhite;
  Color foreColor_ = kBlack;
  Color fillColor_ = kBlack;
  FillStyle fillStyle_ = FillStyle::Transparent;
  std::vector<PictureItem> items_;
  unsigned clears_ = 0;
};

}  // namespace orv
