#include "nmea/SourceWatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "nmea/Dispatcher.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SourceWatchTest : public testing::Test {
 protected:
  /// `seconds` in each of which all of `bodies` come.
  std::vector<std::string> Advice(const std::vector<std::string>& bodies, int seconds = 10) {
    for (int i = 0; i < seconds; ++i) {
      for (const std::string& body : bodies) {
        m_dispatcher.Dispatch(WithChecksum(body), 5, {});
      }
      m_dispatcher.Sources().Tick();
    }
    return m_dispatcher.Sources().Advice();
  }
  WindCounts Winds() { return m_dispatcher.Sources().Winds(); }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
  Dispatcher m_dispatcher{m_settings, m_record};
};

const std::string kHdg = "$IIHDG,123.4,,,5.0,W";
const std::string kHvm = "$IIHVM,7.5,E";
const std::string kMwvR = "$IIMWV,045,R,10.5,N,A";
const std::string kMwvT = "$IIMWV,060,T,9.5,N,A";
const std::string kMetres = "$IIMWV,045,R,5.4,M,A";
const std::string kRmc = "$GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,3.0,W";
const std::string kRmcBare = "$GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,,";
const std::string kVhw = "$IIVHW,128.4,T,123.5,M,6.5,N,12.0,K";
const std::string kVtg = "$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K";

TEST_F(SourceWatchTest, NamesWhatIsThereInsteadOfTheChosenHeading) {
  EXPECT_THAT(Advice({kHdg, kMwvR}), ElementsAre("Heading: nothing from RMC or VTG; HDG is there"));
}

TEST_F(SourceWatchTest, NamesAllThatAreThere) {
  EXPECT_THAT(Advice({kHdg, kVhw}), ElementsAre("Heading: nothing from RMC or VTG; HDG and VHW are there",
                                                "Boat Speed: nothing from RMC or VTG; VHW is there"));
}

TEST_F(SourceWatchTest, SaysNothingWhileOneOfTheChosenComes) {
  EXPECT_THAT(Advice({kHdg, kVhw, kVtg}), IsEmpty());
  EXPECT_THAT(Advice({kHdg, kVhw, kRmc}), IsEmpty());
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_iNmeaBoatSpeed = 0;
  EXPECT_THAT(Advice({kHdg, kVhw, kRmc}), IsEmpty());
}

TEST_F(SourceWatchTest, SaysNothingWhereNoOtherWouldHelp) {
  EXPECT_THAT(Advice({kMwvR}), IsEmpty());
  EXPECT_THAT(Advice({}), IsEmpty());
}

TEST_F(SourceWatchTest, TurnsRoundWithTheChoice) {
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_iNmeaBoatSpeed = 0;
  EXPECT_THAT(Advice({kRmc}), ElementsAre("Heading: nothing from HDG or VHW; RMC is there",
                                          "Boat Speed: nothing from VHW; RMC is there"));
}

TEST_F(SourceWatchTest, CountsACourseOnlyWithAVariation) {
  EXPECT_THAT(Advice({kRmcBare, "$IIHDG,123.4,,,,"}),
              ElementsAre("Heading: nothing from RMC or VTG; HDG is there"));
}

TEST_F(SourceWatchTest, TellsOfAWindInAnotherUnit) {
  EXPECT_THAT(Advice({kMetres}), ElementsAre("Wind: MWV brings metres per second; only knots are read"));
  EXPECT_THAT(Advice({kMetres, kMwvR}), IsEmpty());
}

TEST_F(SourceWatchTest, TellsWhichOfTheWindsIsMissing) {
  m_settings.m_iNmeaTrueWind = 0;
  EXPECT_THAT(Advice({kMwvR}), ElementsAre("True Wind: nothing from MWV (T); MWV (R) is there"));
  m_dispatcher.Sources().Restart();
  EXPECT_THAT(Advice({kMwvT}), ElementsAre("Apparent Wind: nothing from MWV (R); MWV (T) is there"));
  EXPECT_THAT(Advice({kMwvR, kMwvT}), IsEmpty());
}

TEST_F(SourceWatchTest, WaitsAtTheStartAndAfterAGap) {
  EXPECT_THAT(Advice({kHdg}, 5), IsEmpty());
  EXPECT_THAT(Advice({kHdg, kVtg}, 5), IsEmpty());
  EXPECT_THAT(Advice({kHdg}, 4), IsEmpty());
  EXPECT_THAT(Advice({kHdg}, 1), ElementsAre("Heading: nothing from RMC or VTG; HDG is there"));
  EXPECT_THAT(Advice({kVtg}, 1), IsEmpty());
  m_dispatcher.Sources().Restart();
  EXPECT_THAT(Advice({kHdg}, 5), IsEmpty());
}

TEST_F(SourceWatchTest, CountsWhatBecameOfTheWinds) {
  Advice({kMwvR, kMwvT, kMetres, "$IIMWV,,R,,N,A"}, 2);
  EXPECT_EQ(Winds().Used, 2);
  EXPECT_EQ(Winds().NotChosen, 2);
  EXPECT_EQ(Winds().OtherUnit, 2);
  EXPECT_EQ(Winds().Incomplete, 2);
  m_settings.m_bNmeaSentenceMWV = false;
  Advice({kMwvR}, 3);
  EXPECT_EQ(Winds().SwitchedOff, 3);
  EXPECT_EQ(Winds().All(), 11);
}

TEST_F(SourceWatchTest, NamesASentenceThatIsNotTickedWhereItWouldHelp) {
  const std::string vwr = "$WIVWR,062,R,15.5,N,,,,";
  EXPECT_THAT(Advice({vwr}, 12), ElementsAre("VWR seen 12 times, not used"));
  EXPECT_THAT(Advice({vwr, kMwvR}), IsEmpty()) << "the wind is there";
}

TEST_F(SourceWatchTest, NamesASentenceOnceAndOnlyForWhatIsChosen) {
  m_settings.m_bNmeaSentenceVHW = false;
  EXPECT_THAT(Advice({kVhw}), IsEmpty()) << "course and speed over ground are chosen";
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_iNmeaBoatSpeed = 0;
  EXPECT_THAT(Advice({"$GPHDT,221.6,T"}),
              ElementsAre("VHW seen 10 times, not used", "HDT seen 10 times, not used"));
}

TEST_F(SourceWatchTest, CountsATrueHeadingOnlyWithTheVariation) {
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_bNmeaSentenceHDT = true;
  EXPECT_THAT(Advice({kVtg, "$GPHDT,221.6,T"}),
              ElementsAre("Heading: nothing from HDG, VHW or HDT; VTG is there"));
  EXPECT_THAT(Advice({kVtg, kHvm, "$GPHDT,221.6,T"}), IsEmpty());
}

}  // namespace
}  // namespace veerwatch
