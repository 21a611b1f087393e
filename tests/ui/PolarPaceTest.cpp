// How often the polar window shows what comes, through real events.

#include "tests/support/WaitQt.h"
#include "tests/ui/PolarLedgerTester.h"

namespace veerwatch {
namespace {

/// How often a widget is painted.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    Count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  int Count = 0;
};

class PolarPace : public PolarLedgerTester {};

TEST_F(PolarPace, ShowsTheNewestOfManyUpdatesOnceAndAveragesAll) {
  Store.ProfileSet("Polar Data", "Plot Average", 4.0F);
  StartTo(100.0F);
  At({});
  ASSERT_EQ(Figures()[0], "Heading (M)=135");
  PaintCount paints(Plot());
  const std::size_t told = Values.size();
  Moment newer;
  newer.Heading = 175.0F;
  for (int i = 0; i < 40; ++i) {
    Take(newer);
    EXPECT_EQ(Figures()[0], "Heading (M)=135") << "nothing is searched while sentences wait";
  }
  Settle();
  EXPECT_EQ(Figures()[0], "Heading (M)=175") << "the average of all forty";
  EXPECT_EQ(Values.size(), told + 40) << "the history is told of each";
  EXPECT_EQ(paints.Count, 1);
}

TEST_F(PolarPace, RestsAfterEachUpdateThatItShows) {
  constexpr int kHour = 3600000;
  Rest = kHour;
  StartTo(100.0F);
  At({});
  ASSERT_EQ(Figures()[0], "Heading (M)=135");
  Moment newer;
  newer.Heading = 150.0F;
  At(newer);
  EXPECT_EQ(Figures()[0], "Heading (M)=135");
  EXPECT_EQ(Window->Model().Values().Heading, 150.0F) << "what came is not lost";
}

TEST_F(PolarPace, ShowsWhatCameDuringTheRest) {
  Rest = 20;
  StartTo(100.0F);
  At({});
  Moment newer;
  newer.Heading = 150.0F;
  At(newer);
  EXPECT_TRUE(WaitFor([this] { return Figures()[0] == "Heading (M)=150"; })) << Figures()[0];
}

TEST_F(PolarPace, ShowsNothingThatCameBeforeItWasClosed) {
  StartTo(100.0F);
  Take({});
  Window->close();
  Window->show();
  Settle();
  EXPECT_FALSE(Shows());
}

}  // namespace
}  // namespace veerwatch
