// The chart's layout as plain data, with text of fixed sizes: every text 10
// pixels high and 6 pixels wide a character.

#include "qtui/chart_layout.h"

#include <gtest/gtest.h>

namespace orv::qt {
namespace {

ChartMetrics FixedMetrics() {
  return {10, 10, 10, 10, [](const QString& s) { return 6.0 * static_cast<double>(s.size()); }, {}};
}

ChartPoint Row(const char* label, Variant value) { return {label, value}; }

TEST(ValueScale, StepsOfOneTwoTwoAndAHalfOrFiveHoldingZero) {
  const struct {
    double lo, hi;
    int wanted;
    double scaleLo, scaleHi, step;
    int decimals;
  } kCases[] = {
      {0, 190, 5, 0, 200, 50, 0},        // the atomic radii
      {-3, 7, 5, -4, 8, 2, 0},           // both sides of zero
      {0, 1, 4, 0, 1, 0.25, 2},          // 2.5 steps take a decimal more
      {5, 5, 5, 0, 5, 1, 0},             // all values above zero still start at it
      {-0.3, -0.1, 3, -0.3, 0, 0.1, 1},  // all below zero end at it
      {0, 0, 5, 0, 1, 0.2, 1},           // no spread at all
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(testing::Message() << c.lo << ".." << c.hi);
    const ValueScale s = MakeScale(c.lo, c.hi, c.wanted);
    EXPECT_NEAR(s.lo, c.scaleLo, 1e-12);
    EXPECT_NEAR(s.hi, c.scaleHi, 1e-12);
    EXPECT_NEAR(s.step, c.step, 1e-12);
    EXPECT_EQ(s.decimals, c.decimals);
  }
}

TEST(ValueScale, TickTextsNeverShowMinusZero) {
  const ValueScale s = MakeScale(-1, 1, 4);
  EXPECT_EQ(TickText(-1e-17, s), "0.0");
  EXPECT_EQ(TickText(-0.5, s), "-0.5");
}

TEST(ChartLayout, PlacesTitlesAxesTicksAndValues) {
  ChartContent content;
  content.type = ChartType::Line2d;
  content.title = "Title";
  content.footnote = "Note";
  content.categoryTitle = "Row";
  content.valueTitle = "Value";
  content.labelAtTick = true;
  content.points = {Row("a", 1), Row("b", Variant()), Row("c", 3), Row("d", 2)};
  const ChartLayout l = LayoutChart(content, QRectF(0, 0, 400, 300), FixedMetrics());

  EXPECT_EQ(l.titleBand, QRectF(10, 10, 380, 10));
  EXPECT_EQ(l.footnoteBand, QRectF(10, 280, 380, 10));
  EXPECT_EQ(l.area, QRectF(QPointF(10, 28), QPointF(390, 274)));
  // Left: value title, gap, tick labels one character wide, tick, gap.
  // Below: tick, gap, tick labels, gap, category title.
  ASSERT_TRUE(l.fits);
  EXPECT_EQ(l.plot, QRectF(QPointF(44, 33), QPointF(382, 240)));

  // 0 to 3 in steps of 1, from the bottom of the plot to its top.
  ASSERT_EQ(l.valueTicks.size(), 4u);
  const double ys[] = {240, 171, 102, 33};
  for (std::size_t k = 0; k < 4; ++k) {
    EXPECT_EQ(l.valueTicks[k].text, QString::number(k));
    EXPECT_DOUBLE_EQ(l.valueTicks[k].y, ys[k]);
    EXPECT_EQ(l.valueTicks[k].zero, k == 0);
    EXPECT_EQ(l.valueTicks[k].labelBox, QRectF(30, ys[k] - 5, 6, 10));
  }

  // Four slots of 84.5; with labels at the ticks each tick and value stand
  // in the middle of the slot, every label is shown, ticks point outwards.
  EXPECT_DOUBLE_EQ(l.slot, 84.5);
  ASSERT_EQ(l.categories.size(), 4u);
  const auto& c = l.categories[2];
  EXPECT_TRUE(c.tick);
  EXPECT_DOUBLE_EQ(c.tickX, 44 + 2.5 * 84.5);
  EXPECT_DOUBLE_EQ(c.tickTop, 240);
  EXPECT_DOUBLE_EQ(c.tickBottom, 244);
  EXPECT_EQ(c.label, "c");
  // Side by side, a label is as wide as its text and centred on its tick.
  EXPECT_EQ(c.labelBox, QRectF(c.tickX - 3, 248, 6, 10));

  EXPECT_EQ(l.categoryTitleBand, QRectF(44, 264, 338, 10));
  EXPECT_EQ(l.valueTitleCentre, QPointF(15, 136.5));
  EXPECT_EQ(l.valueTitleBand, QRectF(-103.5, -5, 207, 10));

  // The line breaks at the row without a value.
  EXPECT_TRUE(l.line);
  ASSERT_EQ(l.points.size(), 4u);
  EXPECT_FALSE(l.points[1].has_value());
  EXPECT_EQ(*l.points[2], QPointF(c.tickX, 33));
  EXPECT_DOUBLE_EQ(l.markerRadius, 3.0);
}

TEST(ChartLayout, BarsStandOnTheBaseLineAndTicksSitBetweenLabels) {
  ChartContent content;
  content.type = ChartType::Bar2d;
  content.points = {Row("a", -1), Row("b", 2)};
  const ChartLayout l = LayoutChart(content, QRectF(0, 0, 200, 200), FixedMetrics());
  ASSERT_TRUE(l.fits);
  EXPECT_FALSE(l.line);
  // The zero line: the one value tick drawn darker.
  double zeroY = 0;
  for (const auto& t : l.valueTicks) {
    if (t.zero) zeroY = t.y;
  }
  ASSERT_TRUE(l.bars[0] && l.bars[1]);
  EXPECT_DOUBLE_EQ(l.bars[0]->top(), zeroY);  // below zero, hanging from it
  EXPECT_DOUBLE_EQ(l.bars[1]->bottom(), zeroY);
  EXPECT_DOUBLE_EQ(l.bars[1]->width(), l.slot * 0.7);
  // Without labels at the ticks, a tick marks the left edge of its slot.
  EXPECT_DOUBLE_EQ(l.categories[1].tickX, l.plot.left() + l.slot);
  EXPECT_DOUBLE_EQ(l.bars[1]->center().x(), l.plot.left() + 1.5 * l.slot);
}

TEST(ChartLayout, CrowdedLabelsStandUprightOneAtEveryTick) {
  ChartContent content;
  for (int i = 1; i <= 100; ++i) content.points.push_back(Row("123", i));
  content.labelAtTick = true;
  ChartMetrics metrics = FixedMetrics();
  // A face that lays a label upright 3 pixels thick and 12 long.
  metrics.categoryFace = [](const std::vector<QString>& labels, double slot) {
    CategoryFace face;
    face.upright = slot < 20;
    face.thickness = 3;
    face.depth = face.upright ? 12 : 10;
    face.width = [upright = face.upright](const QString& s) { return (upright ? 4.0 : 6.0) * s.size(); };
    EXPECT_EQ(labels.size(), 100u);
    return face;
  };
  const ChartLayout l = LayoutChart(content, QRectF(0, 0, 400, 300), metrics);
  ASSERT_TRUE(l.fits);
  EXPECT_DOUBLE_EQ(l.slot, 3.44);
  ASSERT_EQ(l.categories.size(), 100u);
  for (std::size_t i = 0; i < l.categories.size(); ++i) {
    const auto& c = l.categories[i];
    EXPECT_EQ(c.label, "123") << i;
    // Each upright label is centred on its tick, as deep as the face says,
    // and clear of its neighbour.
    EXPECT_NEAR(c.labelBox.center().x(), c.tickX, 1e-9) << i;
    EXPECT_DOUBLE_EQ(c.labelBox.height(), 12) << i;
    EXPECT_DOUBLE_EQ(c.tickBottom - c.tickTop, 4) << i;
    if (i > 0) {
      EXPECT_LE(l.categories[i - 1].labelBox.right(), c.labelBox.left()) << i;
    }
  }
  // The plot gives the upright labels their depth below the axis.
  EXPECT_DOUBLE_EQ(l.plot.bottom(), 300 - 10 - 12 - ChartLayout::kTick - 6);
}

TEST(ChartLayout, AChartTooSmallForAPlotShowsItsTitleOnly) {
  ChartContent content;
  content.title = "Title";
  content.points = {Row("a", 1)};
  const ChartLayout l = LayoutChart(content, QRectF(0, 0, 60, 40), FixedMetrics());
  EXPECT_FALSE(l.fits);
  EXPECT_EQ(l.titleBand, QRectF(10, 10, 40, 10));
  EXPECT_TRUE(l.valueTicks.empty());
  EXPECT_TRUE(l.categories.empty());
}

}  // namespace
}  // namespace orv::qt
