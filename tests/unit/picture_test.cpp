#include "shell/picture.h"

#include <gtest/gtest.h>

#include <string>

namespace orv {
namespace {

TEST(Picture, DescribesItemsInThirtyTwoBitForm) {
  struct Case {
    PictureItem item;
    const char* text;
  };
  const Case cases[] = {
      {{0, 0, 0.03f, kBlack, Rgb(255, 0, 0), true}, "circle 0 0 0.03 line=000000 fill=FF0000"},
      {{-0.05f, 0.05f, 0.03f, Rgb(0, 0, 255), Rgb(0, 0, 255), true}, "circle -0.05 0.05 0.03 line=0000FF fill=0000FF"},
      {{0, 0, 0.8000001f, kWhite, kBlack, false}, "circle 0 0 0.8000001 line=FFFFFF fill=none"},
      {{0.00000001f, -12345678, 1, Rgb(1, 2, 3), Rgb(255, 255, 0), true},
       "circle 1E-08 -1.234568E+07 1 line=010203 fill=FFFF00"},
  };
  for (const Case& c : cases) EXPECT_EQ(Describe(c.item), c.text);
}

TEST(Picture, EachCircleTakesTheStateOfItsMoment) {
  Picture p;
  int changes = 0;
  p.onChange = [&] { ++changes; };
  p.Scale(-1, 1, 1, -1);
  EXPECT_EQ(p.scale(), (PictureScale{-1, 1, 2, -2}));

  // A new surface draws open circles in black.
  p.Circle(0, 0, 0.2);
  p.SetFillColor(Rgb(255, 255, 0));
  p.SetFillStyle(FillStyle::Solid);
  p.Circle(0.195, 0, 0.02);
  p.SetForeColor(kWhite);
  p.Circle(0.5, 0.5, 0.1, Rgb(255, 0, 0));  // an outline colour of its own
  p.SetFillStyle(FillStyle::Transparent);
  p.Circle(0, 0, 0.3);
  ASSERT_EQ(p.Items().size(), 4u);
  EXPECT_EQ(Describe(p.Items()[0]), "circle 0 0 0.2 line=000000 fill=none");
  EXPECT_EQ(Describe(p.Items()[1]), "circle 0.195 0 0.02 line=000000 fill=FFFF00");
  EXPECT_EQ(Describe(p.Items()[2]), "circle 0.5 0.5 0.1 line=FF0000 fill=FFFF00");
  EXPECT_EQ(Describe(p.Items()[3]), "circle 0 0 0.3 line=FFFFFF fill=none");
  EXPECT_EQ(changes, 5);

  // Clearing empties the list and is counted; the colours stay.
  p.Cls();
  EXPECT_TRUE(p.Items().empty());
  EXPECT_EQ(p.Clears(), 1u);
  EXPECT_EQ(p.ForeColor(), kWhite);
  EXPECT_EQ(changes, 6);
}

}  // namespace
}  // namespace orv
