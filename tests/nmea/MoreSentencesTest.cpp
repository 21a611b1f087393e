// The sentences and the rules that have to be chosen, from the line to the record.

#include <gtest/gtest.h>

#include <string_view>

#include "nmea/Dispatcher.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

constexpr std::int64_t kHour = 3600000;  // [ms]

class MoreSentences : public testing::Test {
 protected:
  MoreSentences() {
    m_settings.m_fNmeaTrueWindAverage = 0.0F;
    m_settings.m_iNmeaHeading = 0;
    m_settings.m_iNmeaTrueWind = 0;
    for (const SentenceKind& kind : kSentences) {
      m_settings.*kind.Enabled = true;
    }
  }

  Dispatcher::Outcome At(std::int64_t steady, std::string_view body) {
    return m_dispatcher.Dispatch(WithChecksum(body), 5, {steady, steady});
  }
  bool Used(std::string_view body) { return At(0, body).Used; }
  const InstrumentData& Data() const { return m_record.Data(); }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
  Dispatcher m_dispatcher{m_settings, m_record};
};

TEST_F(MoreSentences, AreNotHeardUnlessTicked) {
  m_settings = Settings();
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_iNmeaTrueWind = 0;
  EXPECT_TRUE(Used("$IIHDG,123.4,,,5.0,W"));
  for (const std::string_view body :
       {"$WIVWR,062,R,15.5,N,,,,", "$WIVWT,062,R,15.5,N,,,,", "$WIMWD,023.6,T,022.6,M,3.9,N,2.0,M",
        "$APHDM,218.6,M", "$GPHDT,221.6,T", "$INTHS,221.6,A"}) {
    const Dispatcher::Outcome outcome = At(0, body);
    EXPECT_FALSE(outcome.Used || outcome.Incomplete || outcome.WindSentence) << body;
  }
}

TEST_F(MoreSentences, AWindBySideFeedsTheRecord) {
  const Dispatcher::Outcome outcome = At(0, "$WIVWR,062,L,15.5,N,,,,");
  EXPECT_TRUE(outcome.Used);
  EXPECT_TRUE(outcome.WindSentence);
  EXPECT_EQ(Data().WindAngleApparent, -62.0F);
  EXPECT_EQ(Data().WindSpeedApparent, 15.5F);
  EXPECT_TRUE(Used("$WIVWT,110,R,9.5,N,,,,"));
  EXPECT_EQ(Data().WindAngleTrue, 110.0F);
}

TEST_F(MoreSentences, ATrueWindBySideNeedsTheSensorToBeChosen) {
  m_settings.m_iNmeaTrueWind = 1;
  EXPECT_FALSE(Used("$WIVWT,110,R,9.5,N,,,,"));
  EXPECT_FALSE(Used("$WIMWD,023.6,T,022.6,M,3.9,N,2.0,M"));
}

TEST_F(MoreSentences, AHeadingAloneFeedsTheRecord) {
  EXPECT_TRUE(Used("$APHDM,218.5,M"));
  EXPECT_EQ(Data().Heading, 218.5F);
  m_settings.m_iNmeaHeading = 1;
  EXPECT_FALSE(Used("$APHDM,100.0,M")) << "the course over ground is chosen";
}

TEST_F(MoreSentences, ATrueHeadingNeedsTheVariation) {
  Dispatcher::Outcome outcome = At(0, "$GPHDT,221.5,T");
  EXPECT_FALSE(outcome.Used);
  EXPECT_TRUE(outcome.Incomplete) << "it lacks what makes it a value";
  At(0, "$IIHVM,3.0,E");
  outcome = At(1, "$GPHDT,221.5,T");
  EXPECT_TRUE(outcome.Used);
  EXPECT_FALSE(outcome.Incomplete);
  EXPECT_EQ(Data().Heading, 218.5F) << "east is taken off";
  EXPECT_TRUE(Used("$INTHS,001.0,A"));
  EXPECT_EQ(Data().Heading, 358.0F) << "across north";
}

TEST_F(MoreSentences, AVariationOfMoreThanAnHourAgoIsNone) {
  At(0, "$IIHVM,3.0,W");
  EXPECT_TRUE(At(kHour - 1, "$GPHDT,100.0,T").Used);
  EXPECT_FALSE(At(kHour, "$GPHDT,100.0,T").Used);
  EXPECT_TRUE(At(kHour, "$GPHDT,100.0,T").Incomplete);
}

TEST_F(MoreSentences, TheWindsDirectionIsTurnedByTheHeading) {
  At(0, "$IIHVM,3.0,E");
  At(0, "$APHDM,350.0,M");
  EXPECT_TRUE(Used("$WIMWD,043.0,T,,M,9.0,N,,M"));
  EXPECT_EQ(Data().WindAngleTrue, 50.0F) << "40 magnetic, 50 to starboard of 350";
  EXPECT_EQ(Data().WindSpeedTrue, 9.0F);
  EXPECT_TRUE(Used("$WIMWD,203.0,T,,M,9.0,N,,M"));
  EXPECT_EQ(Data().WindAngleTrue, -150.0F);
}

TEST_F(MoreSentences, TheMagneticDirectionServesWithoutAVariation) {
  EXPECT_FALSE(Used("$WIMWD,043.0,T,040.0,M,9.0,N,,M")) << "there is no heading";
  At(0, "$APHDM,350.0,M");
  EXPECT_FALSE(Used("$WIMWD,043.0,T,,M,9.0,N,,M"));
  EXPECT_TRUE(At(0, "$WIMWD,043.0,T,,M,9.0,N,,M").Incomplete);
  EXPECT_TRUE(Used("$WIMWD,043.0,T,040.0,M,9.0,N,,M"));
  EXPECT_EQ(Data().WindAngleTrue, 50.0F);
}

TEST_F(MoreSentences, AWindsDirectionNeedsAHeadingOfTheLastSeconds) {
  At(0, "$APHDM,350.0,M");
  EXPECT_TRUE(At(9999, "$WIMWD,,T,040.0,M,9.0,N,,M").Used);
  EXPECT_FALSE(At(10000, "$WIMWD,,T,040.0,M,9.0,N,,M").Used);
}

TEST_F(MoreSentences, OtherUnitsAreReadWhenTheyMay) {
  EXPECT_FALSE(Used("$IIMWV,045,R,10.0,M,A"));
  m_settings.m_bNmeaWindUnits = true;
  EXPECT_TRUE(Used("$IIMWV,045,R,10.0,M,A"));
  EXPECT_NEAR(Data().WindSpeedApparent, 19.438, 1e-3);
  EXPECT_TRUE(Used("$IIMWV,045,R,36.0,K,A"));
  EXPECT_NEAR(Data().WindSpeedApparent, 19.438, 1e-3);
  EXPECT_TRUE(Used("$IIMWV,045,R,10.0,S,A"));
  EXPECT_NEAR(Data().WindSpeedApparent, 8.6898, 1e-3);
  EXPECT_FALSE(Used("$IIMWV,045,R,10.0,X,A"));
}

TEST_F(MoreSentences, AnInvalidStatusIsUsedOrIgnored) {
  EXPECT_TRUE(Used("$IIMWV,045,R,10.5,N,V"));
  EXPECT_TRUE(Used("$GPRMC,123519,V,4807.0,N,01131.0,E,5.2,230.0,230394,3.0,W"));
  EXPECT_TRUE(Used("$GPRMB,V,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V"));
  m_settings.m_eNmeaInvalidStatus = InvalidRule::Ignore;
  for (const std::string_view body :
       {"$IIMWV,046,R,10.5,N,V", "$GPRMC,123519,V,4807.0,N,01131.0,E,5.2,231.0,230394,4.0,W",
        "$GPRMB,V,0.66,L,003,004,4917.24,N,12309.57,W,001.4,052.5,000.5,V"}) {
    const Dispatcher::Outcome outcome = At(0, body);
    EXPECT_FALSE(outcome.Used) << body;
    EXPECT_TRUE(outcome.Incomplete) << body;
  }
  EXPECT_EQ(Data().WindAngleApparent, 45.0F);
  EXPECT_EQ(Data().Variation, -3.0F);
  EXPECT_TRUE(Used("$IIMWV,046,R,10.5,N,A"));
  EXPECT_TRUE(Used("$GPRMB,A,0.66,L,003,004,4917.24,N,12309.57,W,001.4,052.5,000.5,V"))
      << "the last field is not the status";
}

}  // namespace
}  // namespace veerwatch
