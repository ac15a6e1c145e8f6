#pragma once
// How the screens stay legible on any desktop: contrast of text against its
// ground (relative luminance and contrast ratio as the web's accessibility
// guidelines define them), the choice of a caption colour for a coloured
// face, and the scaling and placing of a window's design geometry when the
// desktop font is larger than the one the control tables were laid out
// for. No toolkit code lives here; colours are 0xRRGGBB.

#include "shell/controls.h"

namespace orv::look {

// The least contrast at which body text counts as readable.
inline constexpr double kReadable = 4.5;

// Relative luminance of a colour, 0 (black) to 1 (white).
double Luminance(int rgb);
// Contrast ratio of two colours, 1 (the same) to 21 (black on white); the
// order does not matter.
double Contrast(int a, int b);
// The colour at `t` of the way from `from` to `to` (0 gives from, 1 gives
// to), each channel rounded.
int Mix(int from, int to, double t);

// The text colour to draw on `ground` in place of `ink`: the colour on the
// way from the ground to the ink nearest the ground that still stands at
// `ratio` or better, so that dimmed text keeps its dimmed look but stays
// readable. When the ink itself falls short it is pushed on towards black or
// white, whichever gives the more contrast.
int ReadableInk(int ink, int ground, double ratio = kReadable);

// The caption colour for a button face whose colour the screen fixed but
// whose caption colour it left open: `dark` or `light`, whichever stands out
// more against the face.
int CaptionOn(int face, int dark = 0x000000, int light = 0xFFFFFF);

// The control tables are laid out in logical pixels for a sans font 12
// pixels high (9 points at 96 dots an inch), the desktop font of the machines
// the screens were drawn on.
inline constexpr int kDesignFontPixels = 12;

// How much larger the desktop font draws than the design font, from the
// width and height of the same words in each. Windows only grow: a smaller
// font keeps the design size.
double FontScale(double width, double designWidth, double height, double designHeight);

// The largest scale, at most `wanted` (and at least 1, the design size, where
// the area has room for it), at which a window of the design size w by h
// still fits an area of areaW by areaH. Below 1 only on a screen too small
// for the design.
double FittingScale(int w, int h, double wanted, int areaW, int areaH);

// What a window's fonts are multiplied by when its scale `fit` falls short
// of the font's `wanted` scale, so that its captions still fit their
// controls: 1 when the window could grow as far as the font asks.
double FontShrink(double fit, double wanted);

// A design length or position at a scale, rounded to whole pixels.
int Scaled(int length, double scale);
// A design rectangle at a scale. Its edges are scaled, not its size, so that
// controls that touch or line up in the design still do.
Rect Scaled(const Rect& r, double scale);

// Where a window of the frame `window` opens inside `area` (both in screen
// pixels): moved the least that keeps it wholly inside, and, when it is
// larger than the area, with its top left corner (title bar, menus and first
// controls) in sight.
Rect PlaceWithin(const Rect& window, const Rect& area);

}  // namespace orv::look
