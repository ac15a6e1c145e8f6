// Contrast of text on its ground, caption colours for coloured faces, and the
// scaling and placing of a window's design geometry.

#include "shell/look.h"

#include <gtest/gtest.h>

namespace orv::look {
namespace {

TEST(Look, ContrastRatiosMatchTheGuidelinesFigures) {
  struct Case {
    int a;
    int b;
    double ratio;
  };
  const Case cases[] = {
      {0x000000, 0xFFFFFF, 21.0}, {0xFFFFFF, 0x000000, 21.0}, {0x777777, 0x777777, 1.0},  {0x767676, 0xFFFFFF, 4.54},
      {0x777777, 0xFFFFFF, 4.48}, {0xFF0000, 0xFFFFFF, 4.00}, {0x0000FF, 0xFFFFFF, 8.59}, {0x00FF00, 0x000000, 15.30},
      {0xBEBEBE, 0xEFEFEF, 1.62}, {0xFFFF00, 0xC0C0C0, 1.69}, {0x404040, 0xC0C0C0, 5.69},
  };
  for (const Case& c : cases) {
    EXPECT_NEAR(Contrast(c.a, c.b), c.ratio, 0.01) << std::hex << c.a << " on " << c.b;
  }
  EXPECT_NEAR(Luminance(0x808080), 0.2159, 0.0001);
}

TEST(Look, MixesChannelByChannel) {
  EXPECT_EQ(Mix(0x000000, 0xFFFFFF, 0.5), 0x808080);
  EXPECT_EQ(Mix(0x102030, 0x102030, 0.7), 0x102030);
  EXPECT_EQ(Mix(0xFF0000, 0x0000FF, 0.0), 0xFF0000);
  EXPECT_EQ(Mix(0xFF0000, 0x0000FF, 1.0), 0x0000FF);
  EXPECT_EQ(Mix(0xFF0000, 0x0000FF, 2.0), 0x0000FF);  // clamped
}

// Dimmed text reaches the ratio and no more than it must: it stays between
// its ground and its ink. Ink that falls short is pushed on past itself.
TEST(Look, ReadableInkReachesTheRatioOnLightAndDarkGrounds) {
  struct Case {
    int ink;
    int ground;
    bool inkSuffices;
  };
  const Case cases[] = {
      {0x000000, 0xEFEFEF, true},   // light palette: black text, disabled ground
      {0x000000, 0xFFFFFF, true},   // white base
      {0xFFFFFF, 0x2A2A2A, true},   // dark palette
      {0xFFFFFF, 0x353535, true},   //
      {0xBEBEBE, 0xEFEFEF, false},  // a light palette's own disabled gray
      {0x7F7F7F, 0x353535, false},  // a dark palette's own disabled gray
      {0x00C0C0, 0xFFFFFF, false},  // a coloured ink
      {0x777777, 0x777777, false},  // ink the same as the ground
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(::testing::Message() << std::hex << c.ink << " on " << c.ground);
    const int got = ReadableInk(c.ink, c.ground);
    EXPECT_GE(Contrast(got, c.ground), kReadable);
    EXPECT_EQ(Contrast(c.ink, c.ground) >= kReadable, c.inkSuffices);
    if (c.inkSuffices) {
      // Dimmed towards the ground, but only as far as the ratio allows.
      EXPECT_LE(Contrast(got, c.ground), Contrast(c.ink, c.ground));
      EXPECT_LT(Contrast(got, c.ground), kReadable + 0.3);
    }
  }
  // A higher ratio than a mid gray can give: the best there is, black.
  EXPECT_EQ(ReadableInk(0x777777, 0x777777, 7.0), 0x000000);
  EXPECT_EQ(ReadableInk(0x000000, 0xFFFFFF, 21.0), 0x000000);
}

TEST(Look, CaptionsAreDarkOnLightFacesAndLightOnDarkOnes) {
  struct Case {
    int face;
    int caption;
  };
  const Case cases[] = {
      {0xE0E0E0, 0x000000}, {0x00FF00, 0x000000}, {0x00C0C0, 0x000000}, {0x8080FF, 0x000000},
      {0xFFFF00, 0x000000}, {0x0000FF, 0xFFFFFF}, {0x404040, 0xFFFFFF}, {0x353535, 0xFFFFFF},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(CaptionOn(c.face), c.caption) << std::hex << c.face;
    EXPECT_GE(Contrast(CaptionOn(c.face), c.face), kReadable) << std::hex << c.face;
  }
}

TEST(Look, WindowsGrowWithTheFontAndNeverShrink) {
  struct Case {
    double width, designWidth, height, designHeight;
    double scale;
  };
  const Case cases[] = {
      {300, 300, 14, 14, 1.0},          // the design font
      {433, 300, 20, 14, 433.0 / 300},  // wider more than higher
      {330, 300, 21, 14, 1.5},          // higher more than wider
      {250, 300, 12, 14, 1.0},          // a smaller font: the design size
      {0, 300, 0, 14, 1.0},             // nothing measured
  };
  for (const Case& c : cases) {
    EXPECT_DOUBLE_EQ(FontScale(c.width, c.designWidth, c.height, c.designHeight), c.scale)
        << c.width << "x" << c.height;
  }

  struct Fit {
    int w, h;
    double wanted;
    int areaW, areaH;
    double scale;
  };
  const Fit fits[] = {
      {600, 400, 1.5, 1366, 740, 1.5},  // room enough
      {667, 414, 2.0, 1366, 700, 1366.0 / 667 < 700.0 / 414 ? 1366.0 / 667 : 700.0 / 414},
      {900, 500, 1.5, 683, 360, 0.72},  // larger than the screen: shrinks to fit
      {600, 400, 0.5, 1366, 768, 1.0},  // a small font keeps the design size
      {500, 600, 1.4, 1366, 720, 1.2},  // the height limits
  };
  for (const Fit& f : fits) EXPECT_DOUBLE_EQ(FittingScale(f.w, f.h, f.wanted, f.areaW, f.areaH), f.scale);
  // The fonts shrink by what the window falls short of the font's scale.
  const double shrinks[][3] = {{1.5, 1.5, 1.0}, {1.2, 1.5, 0.8}, {0.72, 1.5, 0.48}, {0.72, 0.5, 0.72}, {1.0, 0.5, 1.0}};
  for (const auto& [fit, wanted, shrink] : shrinks) EXPECT_DOUBLE_EQ(FontShrink(fit, wanted), shrink);
}

// Controls on a pitch that touch, or stand one pixel apart, keep doing so at
// any scale: edges are scaled, not sizes.
TEST(Look, ScaledRectanglesKeepTheirNeighbours) {
  for (double scale : {1.0, 1.25, 13.0 / 9, 1.5, 1.7, 2.0}) {
    SCOPED_TRACE(scale);
    for (int x = 0; x < 60; ++x) {
      const Rect a{x, 10, 33, 20};
      const Rect touching{x + 33, 10, 17, 20};
      const Rect sa = Scaled(a, scale);
      const Rect st = Scaled(touching, scale);
      EXPECT_EQ(sa.x + sa.w, st.x);
      EXPECT_EQ(sa.y, st.y);
      EXPECT_EQ(sa.h, st.h);
      EXPECT_NEAR(sa.w, 33 * scale, 1.0);
    }
  }
  const Rect same = Scaled(Rect{36, 42, 33, 33}, 1.0);
  EXPECT_EQ(same.x, 36);
  EXPECT_EQ(same.w, 33);
}

TEST(Look, WindowsAreMovedWhollyOntoTheAvailableArea) {
  struct Case {
    Rect window;
    Rect area;
    int x, y;
  };
  const Case cases[] = {
      {{100, 100, 400, 300}, {0, 0, 1366, 768}, 100, 100},     // already inside
      {{1200, 100, 400, 300}, {0, 0, 1366, 768}, 966, 100},    // off the right
      {{100, 600, 400, 300}, {0, 0, 1366, 768}, 100, 468},     // off the bottom
      {{-50, -20, 400, 300}, {0, 27, 1366, 741}, 0, 27},       // above a top panel
      {{-300, -200, 1500, 900}, {0, 0, 1366, 768}, 0, 0},      // larger: top left in sight
      {{500, 400, 900, 300}, {1366, 0, 800, 600}, 1366, 300},  // a second screen, too wide
  };
  for (const Case& c : cases) {
    const Rect placed = PlaceWithin(c.window, c.area);
    EXPECT_EQ(placed.x, c.x);
    EXPECT_EQ(placed.y, c.y);
    EXPECT_EQ(placed.w, c.window.w);
    EXPECT_EQ(placed.h, c.window.h);
  }
}

}  // namespace
}  // namespace orv::look
