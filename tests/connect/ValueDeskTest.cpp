#include "connect/ValueDesk.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ValueDeskTest : public testing::Test {
 protected:
  Settings Present;
  ValueDesk Desk{Present};
  Moment Now{1000, 1000};

  void Take(std::initializer_list<const char*> lines) {
    for (const char* line : lines) {
      Desk.Take(line + std::string("*00"), Now);
    }
  }
  void Seconds(int count, std::initializer_list<const char*> lines) {
    for (int second = 0; second < count; ++second) {
      Take(lines);
      Now.Steady += 1000;
    }
  }
  std::vector<std::string> Texts(BoatValue value) const {
    std::vector<std::string> texts;
    for (const ValueSource& source : Desk.Sources(value, Now)) {
      texts.push_back(source.Text);
    }
    return texts;
  }
  Settings Applied() const {
    Settings settings = Present;
    Desk.ApplyTo(settings);
    return settings;
  }
};

TEST_F(ValueDeskTest, NothingSaysWhatFollows) {
  EXPECT_EQ(Desk.Missing(BoatValue::WindApparent), "no apparent wind: nothing can be steered by the wind");
  EXPECT_EQ(Desk.Missing(BoatValue::BoatSpeed), "no boat speed: the apparent wind only");
  EXPECT_EQ(Desk.Figure(BoatValue::Heading, Now), "--");
  EXPECT_THAT(Texts(BoatValue::Heading), IsEmpty());
  EXPECT_EQ(Desk.Chosen(BoatValue::Heading), "");
}

TEST_F(ValueDeskTest, TheBestSentenceIsUsedAndTheOthersStandBelowIt) {
  Seconds(5, {"$IIVHW,,T,101,M,6.0,N,,", "$HCHDG,100,,,3,E", "$GPRMC,,A,,,,,6.5,90,,3,E"});
  EXPECT_THAT(Texts(BoatValue::Heading), ElementsAre("HDG 1/s", "VHW 1/s", "RMC, the course 1/s"));
  EXPECT_EQ(Desk.Chosen(BoatValue::Heading), "HDG");
  EXPECT_EQ(Desk.Figure(BoatValue::BoatSpeed, Now), "6.0 kn");
  EXPECT_EQ(Desk.Chosen(BoatValue::BoatSpeed), "VHW");
  EXPECT_EQ(Desk.Figure(BoatValue::Variation, Now), "3.0 deg");
  EXPECT_EQ(Applied().m_iNmeaHeading, 0);
  EXPECT_EQ(Applied().m_iNmeaBoatSpeed, 0);
}

TEST_F(ValueDeskTest, AnotherChoiceGoesIntoFigureAndSettings) {
  Seconds(3, {"$IIVHW,,T,101,M,6.0,N,,", "$HCHDG,100,,,3,E", "$GPRMC,,A,,,,,6.5,90,,3,E"});
  Desk.Choose(BoatValue::BoatSpeed, "RMC, over ground");
  Desk.Choose(BoatValue::Heading, "RMC, the course");
  EXPECT_EQ(Desk.Figure(BoatValue::BoatSpeed, Now), "--") << "until the next one";
  Seconds(2, {"$IIVHW,,T,101,M,6.0,N,,", "$HCHDG,100,,,3,E", "$GPRMC,,A,,,,,6.5,90,,3,E"});
  EXPECT_EQ(Desk.Figure(BoatValue::BoatSpeed, Now), "6.5 kn");
  EXPECT_EQ(Desk.Figure(BoatValue::Heading, Now), "087 deg");
  EXPECT_EQ(Applied().m_iNmeaBoatSpeed, 1);
  EXPECT_EQ(Applied().m_iNmeaHeading, 1);
  EXPECT_FALSE(Applied().m_bNmeaSentenceVHW) << "nothing of it is used";
  EXPECT_TRUE(Applied().m_bNmeaSentenceMWV) << "it did not come, and stays as it was";
}

TEST_F(ValueDeskTest, ASentenceThatIsOffByDefaultIsSwitchedOnWhereItIsUsed) {
  Seconds(3, {"$IIVWR,45,R,10,N,5,M,18,K"});
  EXPECT_EQ(Desk.Figure(BoatValue::WindApparent, Now), "45 deg, 10.0 kn");
  EXPECT_TRUE(Applied().m_bNmeaSentenceVWR);
  Seconds(3, {"$IIMWV,315,R,10,N,A", "$IIVWR,45,R,10,N,5,M,18,K"});
  EXPECT_EQ(Desk.Chosen(BoatValue::WindApparent), "MWV R");
  EXPECT_FALSE(Applied().m_bNmeaSentenceVWR) << "never two winds at once";
  EXPECT_EQ(Desk.Figure(BoatValue::WindApparent, Now), "-45 deg, 10.0 kn");
}

TEST_F(ValueDeskTest, TheTrueWindIsComputedWithABoatSpeedAndElseTheSensors) {
  Seconds(3, {"$IIMWV,045,R,10,N,A", "$IIMWV,060,T,8,N,A"});
  EXPECT_THAT(Texts(BoatValue::WindTrue), ElementsAre("MWV T 1/s"));
  EXPECT_EQ(Applied().m_iNmeaTrueWind, 0);
  EXPECT_EQ(Desk.Missing(BoatValue::BoatSpeed), "no boat speed: no polar");
  EXPECT_FALSE(Applied().m_bWatchLogFitted);
  Seconds(3, {"$IIVHW,,T,,M,6.0,N,,", "$IIMWV,045,R,10,N,A", "$IIMWV,060,T,8,N,A"});
  EXPECT_THAT(Texts(BoatValue::WindTrue), ElementsAre("computed", "MWV T 1/s"));
  EXPECT_EQ(Applied().m_iNmeaTrueWind, 1);
  EXPECT_TRUE(Applied().m_bWatchLogFitted);
  Desk.Choose(BoatValue::WindTrue, "MWV T");
  EXPECT_EQ(Applied().m_iNmeaTrueWind, 0);
}

TEST_F(ValueDeskTest, AWindInMetresASecondIsReadOnceItHasCome) {
  Seconds(3, {"$IIMWV,045,R,10,M,A"});
  EXPECT_TRUE(Applied().m_bNmeaWindUnits);
  EXPECT_EQ(Desk.Figure(BoatValue::WindApparent, Now), "45 deg, 19.4 kn");
}

TEST_F(ValueDeskTest, WhatIsCalledInvalidBringsNothing) {
  Seconds(3, {"$IIMWV,045,R,10,N,V"});
  EXPECT_EQ(Desk.Chosen(BoatValue::WindApparent), "");
}

TEST_F(ValueDeskTest, AValueThatComesNoMoreGoes) {
  Seconds(3, {"$HCHDG,100,,,,"});
  Now.Steady += 5000;
  EXPECT_EQ(Desk.Figure(BoatValue::Heading, Now), "--");
  Desk.Restart();
  EXPECT_THAT(Texts(BoatValue::Heading), IsEmpty());
}

}  // namespace
}  // namespace veerwatch
