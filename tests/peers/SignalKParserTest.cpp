// What the parser of a Signal K server makes of what leaves for the pilot, with each profile.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "pilot/PilotForm.h"
#include "pilot/PilotSentences.h"
#include "tests/e2e/Process.h"
#include "tests/peers/Peers.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

constexpr double kRadian = 180.0 / 3.14159265358979323846;
constexpr double kMetresASecond = 1852.0 / 3600.0;  // of a knot

/// What it says of one sentence, in its order: the paths with their values, or one reason.
struct Told {
  std::map<std::string, std::string> Values;
  std::string Reason;

  std::optional<double> Number(const std::string& path) const {
    const auto found = Values.find(path);
    return found != Values.end() ? std::optional(std::stod(found->second)) : std::nullopt;
  }
};

class SignalKParser : public testing::Test {
 protected:
  void SetUp() override {
    if (!Installed()) {
      GTEST_SKIP() << kNotInstalled;
    }
  }

  /// All sentences of the profile over a turn, a value of the record each.
  void Send(PilotProfile profile) {
    Set.m_ePilotProfile = profile;
    PilotSentences built;
    for (int tenths = 0; tenths < 3600; tenths += 37) {
      PilotValues values(static_cast<float>(tenths) / 10.0F);
      values.Variation = kVariation;
      values.Wind = {static_cast<float>(tenths) / 10.0F - 179.9F, static_cast<float>(tenths) / 100.0F};
      EXPECT_EQ(built.Build(PilotFormOf(Set), values), PilotRefusal());
      for (std::size_t i = 0; i < built.Bundle().Count(); ++i) {
        Sentences.emplace_back(built.Bundle().Sentence(i));
        Values.push_back(values);
      }
    }
  }

  void Parse() {
    const TemporaryFolder folder;
    std::string text;
    for (const std::string& sentence : Sentences) {
      text += sentence + "\r\n";
    }
    WriteFile(folder / "sentences", text);
    Child parser;
    ASSERT_TRUE(parser.Start({"node", (kFiles / "Parse.js").string(), (folder / "sentences").string()},
                             {"NODE_PATH=" + kModules.string()}));
    ASSERT_EQ(parser.AwaitEnd(), 0) << parser.Said();
    std::map<std::string, Told> all;
    std::istringstream lines(parser.Said());
    for (std::string sentence; lines >> sentence;) {
      std::string path;
      std::string value;
      lines >> path;
      std::getline(lines >> std::ws, value);
      if (path == "nothing" || path == "Error:") {
        all[sentence].Reason = path;
      } else {
        all[sentence].Values[path] = value;
      }
    }
    for (const std::string& sentence : Sentences) {
      Answers.push_back(all[sentence]);
    }
  }

  static bool Is(const std::string& sentence, std::string_view type) { return sentence.substr(3, 3) == type; }

  static void ExpectDirection(const std::optional<double>& radians, double degrees) {
    ASSERT_TRUE(radians);
    EXPECT_NEAR(std::remainder(*radians * kRadian - degrees, 360.0), 0.0, 0.0501);
  }

  static constexpr float kVariation = 12.5F;
  Settings Set;
  std::vector<std::string> Sentences;
  std::vector<PilotValues> Values;
  std::vector<Told> Answers;  ///< of the sentences
};

constexpr const char* kMagnetic = "steering.autopilot.target.headingMagnetic";
constexpr const char* kTrue = "steering.autopilot.target.headingTrue";

TEST_F(SignalKParser, TakesTheHeadingOfMagneticApb) {
  Send(PilotProfile::MagneticApb);
  Parse();
  for (std::size_t i = 0; i < Sentences.size(); ++i) {
    ExpectDirection(Answers[i].Number(kMagnetic), static_cast<double>(Values[i].Bearing));
    EXPECT_FALSE(Answers[i].Number(kTrue));
    ASSERT_FALSE(HasFailure()) << Sentences[i];
  }
}

TEST_F(SignalKParser, TakesTheHeadingOfTrueApb) {
  Send(PilotProfile::TrueApb);
  Parse();
  for (std::size_t i = 0; i < Sentences.size(); ++i) {
    ExpectDirection(Answers[i].Number(kTrue), static_cast<double>(Values[i].Bearing + kVariation));
    EXPECT_FALSE(Answers[i].Number(kMagnetic));
    ASSERT_FALSE(HasFailure()) << Sentences[i];
  }
}

TEST_F(SignalKParser, TakesThePointOfRmb) {
  Send(PilotProfile::ApbAndRmb);
  Parse();
  for (std::size_t i = 0; i < Sentences.size(); ++i) {
    if (Is(Sentences[i], "RMB")) {
      const std::string point = "navigation.courseRhumbline.nextPoint.";
      ExpectDirection(Answers[i].Number(point + "bearingTrue"),
                      static_cast<double>(Values[i].Bearing + kVariation));
      EXPECT_NEAR(Answers[i].Number(point + "distance").value_or(0.0), 18520.0, 0.1);
      EXPECT_EQ(Answers[i].Values[point + "ID"], "\"1\"");
    } else {
      ExpectDirection(Answers[i].Number(kMagnetic), static_cast<double>(Values[i].Bearing));
    }
    ASSERT_FALSE(HasFailure()) << Sentences[i];
  }
}

TEST_F(SignalKParser, TakesBothHeadingsOfHsc) {
  Send(PilotProfile::Hsc);
  Parse();
  for (std::size_t i = 0; i < Sentences.size(); ++i) {
    ExpectDirection(Answers[i].Number(kTrue), static_cast<double>(Values[i].Bearing + kVariation));
    ExpectDirection(Answers[i].Number(kMagnetic), static_cast<double>(Values[i].Bearing));
    ASSERT_FALSE(HasFailure()) << Sentences[i];
  }
}

TEST_F(SignalKParser, TakesTheWindOfVwrAndMwv) {
  Send(PilotProfile::Wind);
  Parse();
  for (std::size_t i = 0; i < Sentences.size(); ++i) {
    ExpectDirection(Answers[i].Number("environment.wind.angleApparent"),
                    static_cast<double>(Values[i].Wind->Angle));
    EXPECT_NEAR(Answers[i].Number("environment.wind.speedApparent").value_or(-1.0),
                static_cast<double>(Values[i].Wind->Speed) * kMetresASecond, 0.03);
    ASSERT_FALSE(HasFailure()) << Sentences[i];
  }
}

TEST_F(SignalKParser, TakesEverySentenceOfOwnWithItsMode) {
  Set.m_bPilotOwnRMB = Set.m_bPilotOwnHSC = Set.m_bPilotOwnXTE = Set.m_bPilotOwnBWC = true;
  Set.m_iPilotOwnFields = 15;
  Set.m_sPilotOwnPoint = "POINT6";
  Send(PilotProfile::Own);
  Parse();
  for (std::size_t i = 0; i < Sentences.size(); ++i) {
    const auto bearing = static_cast<double>(Values[i].Bearing);
    const std::string circle = "navigation.courseGreatCircle.bearingTrack";
    if (Is(Sentences[i], "APB") || Is(Sentences[i], "HSC")) {
      ExpectDirection(Answers[i].Number(kMagnetic), bearing);
    } else if (Is(Sentences[i], "BWC")) {
      ExpectDirection(Answers[i].Number(circle + "Magnetic"), bearing);
      ExpectDirection(Answers[i].Number(circle + "True"), bearing + static_cast<double>(kVariation));
    } else if (Is(Sentences[i], "RMB")) {
      EXPECT_EQ(Answers[i].Values["navigation.courseRhumbline.nextPoint.ID"], "\"POINT6\"");
    } else {
      EXPECT_EQ(Answers[i].Number("navigation.courseRhumbline.crossTrackError"), 0.0);
    }
    ASSERT_FALSE(HasFailure()) << Sentences[i];
  }
}

TEST_F(SignalKParser, TakesNoApbAndNoWindThatDoNotHold) {
  for (const PilotProfile profile : {PilotProfile::MagneticApb, PilotProfile::Wind}) {
    Set.m_ePilotProfile = profile;
    PilotValues lost(123.4F);
    lost.Good = false;
    lost.Wind = {40.0F, 10.0F};
    PilotSentences built;
    EXPECT_EQ(built.Build(PilotFormOf(Set), lost), PilotRefusal());
    ASSERT_EQ(built.Bundle().Count(), 1U);
    Sentences.emplace_back(built.Bundle().Sentence(0));
  }
  Parse();
  EXPECT_EQ(Answers[0].Reason, "Error:");
  EXPECT_EQ(Answers[1].Reason, "nothing");
}

}  // namespace
}  // namespace veerwatch
