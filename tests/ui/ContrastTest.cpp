// Every pair of colours that stand on each other, as a ratio, in the light, the dark and the night palette.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QPalette>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QWidget>
#include <algorithm>
#include <array>

#include "app/ThemeQt.h"
#include "history/StripChartColoursQt.h"
#include "platform/ColoursQt.h"
#include "polar/PolarPaletteQt.h"
#include "polar/TurnButtonQt.h"
#include "tests/ui/Contrast.h"
#include "tests/ui/DarkPalette.h"

namespace veerwatch {
namespace {

constexpr double kText = 4.5;
constexpr double kDimmed = 4.0;
constexpr double kLine = 3.0;

class Contrasts : public testing::TestWithParam<const char*> {
 public:
  static QPalette Palette() {
    const std::string name = GetParam();
    return name == "light"  ? QPalette(QColor(0xef, 0xef, 0xef))
           : name == "dark" ? DarkPalette()
                            : NightPalette();
  }
};

TEST_P(Contrasts, OfTheMainWindow) {
  const ThemeQt theme(Palette());
  for (const QColor& ground : {theme.Card, theme.Window}) {
    EXPECT_GE(ContrastRatio(theme.Text, ground), theme.Night ? 5.5 : 7.0);
    EXPECT_GE(ContrastRatio(theme.Caption, ground), kText);
    EXPECT_GE(ContrastRatio(theme.Dimmed, ground), kDimmed);
    EXPECT_GE(ContrastRatio(theme.Accent, ground), kLine);
  }
  EXPECT_GE(ContrastRatio(theme.Text, theme.Field), kText);
  for (const ThemeQt::Pair& pair : {theme.Port, theme.Starboard}) {
    EXPECT_GE(ContrastRatio(pair.Text, pair.Fill), kText);
    EXPECT_GE(ContrastRatio(theme.Resting(pair).Text, theme.Resting(pair).Fill), kDimmed);
  }
  if (!theme.Night) {
    EXPECT_GT(theme.Port.Fill.red(), theme.Port.Fill.green());
    EXPECT_GT(theme.Starboard.Fill.green(), theme.Starboard.Fill.red());
  }
  for (const TrackMode mode : {TrackMode::Off, TrackMode::Setup, TrackMode::Manual, TrackMode::Track}) {
    EXPECT_GE(ContrastRatio(theme.Mode(mode).Text, theme.Mode(mode).Fill), kText) << static_cast<int>(mode);
  }
}

TEST_P(Contrasts, OfATurnsButtonThatDoesNotAnswer) {
  QWidget window;
  window.setPalette(Palette());
  TurnButtonQt button(QStringLiteral("cmdTack"), QStringLiteral("<< TACK"), &window);
  QFont large = button.font();
  large.setPixelSize(40);
  button.setFont(large);
  button.resize(400, 80);
  button.setEnabled(false);
  const QImage picture = button.grab().toImage();
  const QColor back = button.palette().color(QPalette::Button);
  double most = 0.0;
  // Inside, away from the edge.
  for (int x = 10; x < picture.width() - 10; ++x) {
    for (int y = 10; y < picture.height() - 10; ++y) {
      most = std::max(most, ContrastRatio(picture.pixelColor(x, y), back));
    }
  }
  EXPECT_GE(most, kDimmed);
  EXPECT_LT(most, 7.0) << "it does not answer";
}

/// The best contrast of the widget's left edge, halfway down the indicator at its left, to what is inside it.
double EdgeContrast(QWidget& widget, QStyle::SubElement indicator) {
  QStyleOptionButton option;
  option.initFrom(&widget);
  const QRect rect = widget.style()->subElementRect(indicator, &option, &widget);
  const QImage picture = widget.grab().toImage();
  const QColor inside = picture.pixelColor(rect.center());
  double most = 0.0;
  for (int x = rect.left(); x < rect.left() + 3; ++x) {
    most = std::max(most, ContrastRatio(picture.pixelColor(x, rect.center().y()), inside));
  }
  return most;
}

TEST_P(Contrasts, OfTheEdgesOfCheckBoxesAndRoundButtons) {
  QCheckBox box(QStringLiteral("A"));
  box.setPalette(Palette());
  box.resize(box.sizeHint());
  EXPECT_GE(EdgeContrast(box, QStyle::SE_CheckBoxIndicator), kLine);
  QRadioButton round(QStringLiteral("B"));
  round.setPalette(Palette());
  round.resize(round.sizeHint());
  EXPECT_GE(EdgeContrast(round, QStyle::SE_RadioButtonIndicator), kLine);
}

TEST(EntryBox, HasAnEdgeInTheDark) {
  for (const QPalette& palette : {DarkPalette(), NightPalette()}) {
    QLineEdit box;
    box.setPalette(palette);
    box.resize(80, 30);
    const QImage picture = box.grab().toImage();
    const QColor inside = picture.pixelColor(40, 15);
    EXPECT_GE(ContrastRatio(picture.pixelColor(0, 15), inside), kLine);
    EXPECT_GE(ContrastRatio(picture.pixelColor(40, 0), inside), kLine);
  }
}

TEST_P(Contrasts, OfThePolarPlot) {
  const PolarPaletteQt colours(Palette());
  EXPECT_GE(ContrastRatio(colours.Foreground, colours.Surface), kText);
  EXPECT_GE(ContrastRatio(colours.Caption, colours.Surface), kText);
  EXPECT_GE(ContrastRatio(colours.GridLabel, colours.Disc), kDimmed);
  EXPECT_GE(ContrastRatio(colours.MouseMain, colours.MousePlate), kText);
  EXPECT_GE(ContrastRatio(colours.MouseReference, colours.MousePlate), kText);
  for (const QColor& line : {colours.Curve(0), colours.Reference, colours.Wind, colours.Boat, colours.Target,
                             colours.StarboardTack, colours.PortTack}) {
    EXPECT_GE(ContrastRatio(line, colours.Disc), 4.0) << line.name().toStdString();
    EXPECT_GE(ContrastRatio(line, colours.Surface), 3.9) << line.name().toStdString();
  }
}

TEST_P(Contrasts, OfTheHistory) {
  const StripChartColoursQt colours(Palette().color(QPalette::Active, QPalette::Window));
  for (const QColor& ground : {colours.Back, colours.Plot(colours.Back)}) {
    EXPECT_GE(ContrastRatio(colours.Text, ground), kText);
    EXPECT_GE(ContrastRatio(colours.Caption, ground), kText);
    EXPECT_GE(ContrastRatio(colours.Dimmed, ground), kDimmed);
    for (std::size_t trace = 0; trace < 9; ++trace) {
      EXPECT_GE(ContrastRatio(colours.Trace(trace, {}), ground), 4.0) << trace;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Shades, Contrasts, testing::Values("light", "dark", "night"));

TEST(NightContrast, OfTheDialogs) {
  const QPalette palette = NightPalette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const double least = group == QPalette::Disabled ? kDimmed : kText;
    for (const auto& [text, ground] :
         {std::pair{QPalette::WindowText, QPalette::Window}, std::pair{QPalette::Text, QPalette::Base},
          std::pair{QPalette::Text, QPalette::AlternateBase},
          std::pair{QPalette::ButtonText, QPalette::Button},
          std::pair{QPalette::PlaceholderText, QPalette::Base}, std::pair{QPalette::Link, QPalette::Window},
          std::pair{QPalette::HighlightedText, QPalette::Highlight},
          std::pair{QPalette::ToolTipText, QPalette::ToolTipBase}}) {
      EXPECT_GE(ContrastRatio(palette.color(group, text), palette.color(group, ground)),
                text == QPalette::PlaceholderText ? kDimmed : least)
          << static_cast<int>(group) << ' ' << static_cast<int>(text);
    }
  }
}

TEST(NightContrast, TellsBoatWindAndCurvesApartByBrightness) {
  const PolarPaletteQt colours(NightPalette());
  EXPECT_GE(ContrastRatio(colours.Boat, colours.Wind), 1.3);
  EXPECT_GE(ContrastRatio(colours.Wind, colours.Curve(0)), 1.7);
  EXPECT_GE(ContrastRatio(colours.StarboardTack, colours.Curve(0)), 1.4);
  EXPECT_TRUE(colours.Dashed(true));
  EXPECT_FALSE(colours.Dashed(false));
  EXPECT_FALSE(PolarPaletteQt(DarkPalette()).Dashed(true)) << "by day they are green and red";
}

TEST(Legible, TakesNoMoreThanItNeeds) {
  EXPECT_EQ(Legible(Qt::white, Qt::black, 0.6, 1.0), Mixed(Qt::white, Qt::black, 0.6));
  const QColor grey = Legible(Qt::white, Qt::black, 0.1, 4.5);
  EXPECT_GE(ContrastRatio(grey, Qt::white), 4.5);
  EXPECT_LT(ContrastRatio(grey, Qt::white), 4.7);
  EXPECT_EQ(Legible(Qt::gray, Qt::darkGray, 0.5, 10.0), QColor(Qt::darkGray));
}

}  // namespace
}  // namespace veerwatch
