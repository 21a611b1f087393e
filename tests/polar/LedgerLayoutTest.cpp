#include "polar/LedgerLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace veerwatch {
namespace {

constexpr double kSlack = 1e-9;

LedgerTexts Texts(std::size_t figures, bool rows, bool longTime) {
  return {11.0, 66.0, 62.0, 36.0, longTime ? 120.0 : 0.0, 190.0, 28.0, figures, rows};
}

std::vector<Box> Boxes(const LedgerLayout& layout) {
  std::vector<Box> boxes{layout.Title, layout.Steer, layout.Tack};
  for (const LedgerFigurePlace& figure : layout.Figures) {
    boxes.insert(boxes.end(), {figure.Heading, figure.Value});
  }
  for (const LedgerRowPlace& row : layout.Rows) {
    boxes.insert(boxes.end(), {row.Sample, row.Label, row.Angle, row.Speed});
  }
  return boxes;
}

bool Overlap(const Box& a, const Box& b) {
  return a.X + kSlack < b.X + b.Width && b.X + kSlack < a.X + a.Width && a.Y + kSlack < b.Y + b.Height &&
         b.Y + kSlack < a.Y + a.Height;
}

TEST(LayLedger, GivesEveryTextItsRoomAndNoneThatOfAnother) {
  for (const std::size_t figures : {5U, 7U, 9U}) {
    for (const bool rows : {true, false}) {
      for (const bool longTime : {true, false}) {
        const LedgerTexts texts = Texts(figures, rows, longTime);
        const LedgerLayout layout = LayLedger(texts);
        const auto boxes = Boxes(layout);
        for (std::size_t i = 0; i < boxes.size(); ++i) {
          EXPECT_GE(boxes[i].X, 0.0);
          EXPECT_LE(boxes[i].X + boxes[i].Width, layout.Width + kSlack);
          EXPECT_LE(boxes[i].Y + boxes[i].Height, layout.Height + kSlack);
          for (std::size_t k = i + 1; k < boxes.size(); ++k) {
            EXPECT_FALSE(Overlap(boxes[i], boxes[k])) << figures << " figures, boxes " << i << ", " << k;
          }
        }
        ASSERT_EQ(layout.Figures.size(), figures);
        EXPECT_EQ(layout.Rows.size(), rows ? 6U : 0U);
        EXPECT_EQ(layout.Separators.size(), layout.Rows.size());
        EXPECT_GE(layout.Figures[1].Value.Width, texts.LegValue - kSlack);
        if (figures == 9U) {
          EXPECT_GE(layout.Figures[8].Value.Width, (longTime ? texts.LongValue : texts.Value) - kSlack);
        }
        for (const LedgerRowPlace& row : layout.Rows) {
          EXPECT_GE(row.Label.Width, texts.Label - kSlack);
        }
      }
    }
  }
}

/// Widths of some font with digits that differ, in which a plus sign is wider than a minus sign.
double WidthOf(std::string_view text) {
  double width = 0.0;
  for (const char c : text) {
    width += c == '+' ? 9.0 : c == '-' ? 4.0 : c == '1' ? 4.0 : c == '4' ? 7.5 : c == ' ' ? 3.0 : 6.0;
  }
  return width;
}

/// The same in every height.
class UnevenMeasure final : public TextMeasure {
 public:
  double Width(std::string_view text, double /*height*/) const override { return WidthOf(text); }
  double BoldWidth(std::string_view text, double /*height*/) const override { return WidthOf(text); }
};

/// A ledger with these texts in its columns.
LedgerContent Filled(const std::string& leg, const std::string& value, const std::string& time,
                     const std::string& angle, const std::string& speed) {
  LedgerContent content;
  content.Figures = {
      {"Heading (M)", "359", LedgerSubject::Boat},    {"Stb (M)", leg, LedgerSubject::StarboardTack},
      {"Prt (M)", leg, LedgerSubject::PortTack},      {"Target (M)", "359", LedgerSubject::Target},
      {"Target (Kts)", value, LedgerSubject::Target}, {"Wpt (M)", "359", LedgerSubject::Target},
      {"Wpt (Kts)", value, LedgerSubject::Target},    {"Wpt (Rng)", value, LedgerSubject::Target},
      {"Wpt (h:m)", time, LedgerSubject::Target}};
  for (LedgerRow& row : content.Rows) {
    row = {"Target Starboard Tack (Heads Up)", angle, speed, LedgerSubject::Target};
  }
  return content;
}

TEST(MeasureLedger, HasRoomForTheWidestTextOfEachColumn) {
  const LedgerTexts usual =
      MeasureLedger(Filled("0 (0%)", "0.0", "0:00", "0", "0.0"), 11.0, true, UnevenMeasure());
  for (const std::string& time : {std::string("44:44"), std::string("44:44 (motor 44:44)")}) {
    for (const char* angle : {"+165", "+144", "-144", "--"}) {
      const LedgerContent content = Filled("344 (44:44)", "444.4", time, angle, "44.4");
      const LedgerTexts texts = MeasureLedger(content, 11.0, true, UnevenMeasure());
      EXPECT_EQ(texts.Number, usual.Number) << "the ledger keeps its size";
      EXPECT_EQ(texts.LegValue, usual.LegValue);
      EXPECT_EQ(texts.Value, usual.Value);
      const LedgerLayout layout = LayLedger(texts);
      ASSERT_EQ(layout.Figures.size(), 9U);
      for (std::size_t i = 0; i < layout.Figures.size(); ++i) {
        EXPECT_GE(layout.Figures[i].Value.Width, WidthOf(content.Figures[i].Value) - kSlack) << i;
        EXPECT_GE(layout.Figures[i].Heading.Width, WidthOf(content.Figures[i].Heading) - kSlack) << i;
      }
      for (const LedgerRowPlace& row : layout.Rows) {
        EXPECT_GE(row.Label.Width, WidthOf("Target Starboard Tack (Heads Up)") - kSlack);
        EXPECT_GE(row.Angle.Width, WidthOf(angle) - kSlack);
        EXPECT_GE(row.Speed.Width, WidthOf("44.4") - kSlack);
      }
    }
  }
}

TEST(MeasureLedger, GrowsWithATextThatIsWiderThanUsual) {
  const LedgerContent content = Filled("0 (0%)", "99999.9", "0:00", "0", "1234.5");
  const LedgerTexts texts = MeasureLedger(content, 11.0, true, UnevenMeasure());
  EXPECT_EQ(texts.Value, WidthOf("99999.9"));
  EXPECT_EQ(texts.Number, WidthOf("1234.5"));
}

void ExpectBox(const Box& box, const Box& wanted) {
  EXPECT_NEAR(box.X, wanted.X, kSlack);
  EXPECT_NEAR(box.Y, wanted.Y, kSlack);
  EXPECT_NEAR(box.Width, wanted.Width, kSlack);
  EXPECT_NEAR(box.Height, wanted.Height, kSlack);
}

TEST(LayLedger, WidensBothColumnsWhereTheRowsAreTheWidest) {
  // A text of 10 px: margins of 8, gaps of 6, of 14 between the columns of 116 and 106; rows of
  // 11 + 6 + 200 + 2 * (6 + 30) = 289, 53 more than both columns.
  const LedgerLayout layout = LayLedger({10.0, 60.0, 50.0, 40.0, 0.0, 200.0, 30.0, 7, true});
  EXPECT_EQ(layout.Text, 10.0);
  EXPECT_NEAR(layout.Width, 305.0, kSlack);
  ExpectBox(layout.Title, {0.0, 0.0, 305.0, 20.0});
  ASSERT_EQ(layout.Figures.size(), 7U);
  ExpectBox(layout.Figures[0].Heading, {8.0, 26.0, 60.0, 15.0});
  ExpectBox(layout.Figures[0].Value, {74.0, 26.0, 76.5, 15.0});
  ExpectBox(layout.Figures[3].Heading, {164.5, 26.0, 60.0, 15.0});
  ExpectBox(layout.Figures[3].Value, {230.5, 26.0, 66.5, 15.0});
  ExpectBox(layout.Figures[5].Heading, {8.0, 71.0, 60.0, 15.0});
  ExpectBox(layout.Figures[6].Heading, {164.5, 71.0, 60.0, 15.0});
  ASSERT_EQ(layout.Rows.size(), 6U);
  ExpectBox(layout.Rows[0].Sample, {8.0, 92.0, 11.0, 17.0});
  ExpectBox(layout.Rows[0].Label, {25.0, 92.0, 200.0, 17.0});
  ExpectBox(layout.Rows[0].Angle, {231.0, 92.0, 30.0, 17.0});
  ExpectBox(layout.Rows[5].Speed, {267.0, 177.0, 30.0, 17.0});
  ExpectBox(layout.Steer, {8.0, 200.0, 141.5, 25.0});
  ExpectBox(layout.Tack, {155.5, 200.0, 141.5, 25.0});
  EXPECT_NEAR(layout.Height, 233.0, kSlack);
}

TEST(LayLedger, GivesALongTimeALineOfItsOwn) {
  const LedgerLayout layout = LayLedger({10.0, 60.0, 50.0, 40.0, 0.5, 200.0, 30.0, 9, false});
  EXPECT_NEAR(layout.Width, 252.0, kSlack);
  ASSERT_EQ(layout.Figures.size(), 9U);
  ExpectBox(layout.Figures[8].Heading, {8.0, 101.0, 60.0, 15.0});
  ExpectBox(layout.Figures[8].Value, {74.0, 101.0, 170.0, 15.0});
  ExpectBox(layout.Steer, {8.0, 122.0, 115.0, 25.0});
  EXPECT_NEAR(layout.Height, 155.0, kSlack);
}

TEST(LayLedger, KeepsAShortTimeInItsColumn) {
  const LedgerLayout layout = LayLedger({10.0, 60.0, 50.0, 40.0, 0.0, 200.0, 30.0, 9, false});
  ASSERT_EQ(layout.Figures.size(), 9U);
  ExpectBox(layout.Figures[8].Heading, {138.0, 86.0, 60.0, 15.0});
  ExpectBox(layout.Steer, {8.0, 107.0, 115.0, 25.0});
}

TEST(LedgerFits, OnThreeQuartersOfTheWidthAndSixTenthsOfTheHeight) {
  const auto fits = [](double width, double height) {
    LedgerLayout layout;
    layout.Width = width;
    layout.Height = height;
    return LedgerFits(layout, 1000.0, 500.0);
  };
  EXPECT_TRUE(fits(750.0, 300.0));
  EXPECT_FALSE(fits(750.1, 300.0));
  EXPECT_FALSE(fits(750.0, 300.1));
}

TEST(LedgerHome, IsAtTheLowerRightOrBetweenTheCornersOfTheLegend) {
  const Box panel{0.0, 0.0, 300.0, 200.0};
  EXPECT_EQ(LedgerHome(panel, 1000.0, 700.0, false).X, 692.0);
  EXPECT_EQ(LedgerHome(panel, 1000.0, 700.0, false).Y, 492.0);
  EXPECT_EQ(LedgerHome(panel, 700.0, 700.0, true).X, 200.0);
  EXPECT_EQ(LedgerHome(panel, 200.0, 100.0, false).X, 0.0);
}

TEST(KeepInside, MovesAPanelBackAsLittleAsItCan) {
  const auto at = [](double x, double y) {
    const Point point = KeepInside({x, y, 100.0, 50.0}, 400.0, 300.0);
    return std::pair{point.X, point.Y};
  };
  EXPECT_EQ(at(20.0, 30.0), (std::pair{20.0, 30.0}));
  EXPECT_EQ(at(-20.0, 30.0), (std::pair{0.0, 30.0}));
  EXPECT_EQ(at(380.0, 299.0), (std::pair{300.0, 250.0}));
  const Point large = KeepInside({50.0, 50.0, 500.0, 500.0}, 400.0, 300.0);
  EXPECT_EQ(large.X, 0.0);
  EXPECT_EQ(large.Y, 0.0);
}

TEST(SteerPlace, KeepsClearOfTheLabelsOfTheGrid) {
  const PolarGeometry geometry = PlotGeometry(700.0, 700.0, 10.0);
  const Box free = SteerPlace(geometry, {}, 120.0, 30.0);
  EXPECT_EQ(free.X, 290.0);
  EXPECT_NEAR(free.Y, 350.0 * 0.34 - 15.0, kSlack);
  const PlotLabel label{{"8", {380.0, free.Y + 25.0, 20.0, 14.0}}, PlotLabelKind::Speed};
  EXPECT_FALSE(Overlap(SteerPlace(geometry, {label}, 120.0, 30.0), label.Place));
  const PlotLabel everywhere{{"8", {0.0, 0.0, 700.0, 700.0}}, PlotLabelKind::Speed};
  EXPECT_EQ(SteerPlace(geometry, {everywhere}, 120.0, 30.0).Y, free.Y);
}

}  // namespace
}  // namespace veerwatch
