#include "shell/look.h"

#include <algorithm>
#include <cmath>

namespace orv::look {

namespace {

int Channel(int rgb, int shift) { return (rgb >> shift) & 0xFF; }

// One sRGB channel, 0 to 255, as linear light.
double Linear(int channel) {
  const double c = channel / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

}  // namespace

double Luminance(int rgb) {
  return 0.2126 * Linear(Channel(rgb, 16)) + 0.7152 * Linear(Channel(rgb, 8)) + 0.0722 * Linear(Channel(rgb, 0));
}

double Contrast(int a, int b) {
  const double la = Luminance(a);
  const double lb = Luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

int Mix(int from, int to, double t) {
  t = std::clamp(t, 0.0, 1.0);
  int out = 0;
  for (int shift : {16, 8, 0}) {
    const double c = Channel(from, shift) + (Channel(to, shift) - Channel(from, shift)) * t;
    out |= static_cast<int>(std::lround(c)) << shift;
  }
  return out;
}

int ReadableInk(int ink, int ground, double ratio) {
  // The search runs from `from` to `to`, where `to` stands at the ratio.
  int from = ground;
  int to = ink;
  if (Contrast(ink, ground) < ratio) {
    // The ink is too faint: go on from it towards black or white, whichever
    // stands out more from the ground.
    to = CaptionOn(ground);
    if (Contrast(to, ground) < ratio) return to;
    from = ink;
  }
  // The smallest step on the way that reaches the ratio. The colours are
  // rounded, so each step is measured on the rounded colour itself.
  double lo = 0.0;
  double hi = 1.0;
  for (int i = 0; i < 24; ++i) {
    const double mid = (lo + hi) / 2;
    if (Contrast(Mix(from, to, mid), ground) >= ratio) {
      hi = mid;
    } else {
      lo = mid;
    }
  }
  const int found = Mix(from, to, hi);
  return Contrast(found, ground) >= ratio ? found : to;
}

int CaptionOn(int face, int dark, int light) { return Contrast(dark, face) >= Contrast(light, face) ? dark : light; }

double FontScale(double width, double designWidth, double height, double designHeight) {
  double scale = 1.0;
  if (width > 0 && designWidth > 0) scale = std::max(scale, width / designWidth);
  if (height > 0 && designHeight > 0) scale = std::max(scale, height / designHeight);
  return scale;
}

double FittingScale(int w, int h, double wanted, int areaW, int areaH) {
  double scale = std::max(1.0, wanted);
  if (w > 0) scale = std::min(scale, static_cast<double>(areaW) / w);
  if (h > 0) scale = std::min(scale, static_cast<double>(areaH) / h);
  return scale;
}

double FontShrink(double fit, double wanted) { return std::min(1.0, fit / std::max(1.0, wanted)); }

int Scaled(int length, double scale) { return static_cast<int>(std::lround(length * scale)); }

Rect Scaled(const Rect& r, double scale) {
  const int left = Scaled(r.x, scale);
  const int top = Scaled(r.y, scale);
  return {left, top, Scaled(r.x + r.w, scale) - left, Scaled(r.y + r.h, scale) - top};
}

Rect PlaceWithin(const Rect& window, const Rect& area) {
  Rect out = window;
  // Right and bottom edges first, then left and top, so that a window larger
  // than the area ends with its top left corner at the area's.
  out.x = std::min(out.x, area.x + area.w - out.w);
  out.y = std::min(out.y, area.y + area.h - out.h);
  out.x = std::max(out.x, area.x);
  out.y = std::max(out.y, area.y);
  return out;
}

}  // namespace orv::look
