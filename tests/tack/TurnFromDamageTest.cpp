// Turns from numbers that are none, and settings beyond the kinds that there are.

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string_view>

#include "control/Manoeuvre.h"
#include "tack/TackSettings.h"

namespace veerwatch {
namespace {

TEST(TurnFromDamage, AnOvershootThatIsNotFiniteIsNone) {
  for (const float overshoot :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity()}) {
    Manoeuvre turn;
    ASSERT_TRUE(turn.Open(190.0F, 100.0F, 100.0F, 45.0F));
    turn.Start(190.0F, overshoot, 10.0F);
    int seconds = 1;
    while (!turn.Step(1.0) && seconds < 100) {
      ++seconds;
    }
    EXPECT_EQ(seconds, 9);
    EXPECT_EQ(turn.Heading(), 190.0F);
  }
}

TEST(TurnFromDamage, AKindThatThereIsNotChangesNoSetting) {
  Profile profile;
  for (const char* key : {"Rate 0", "Rate 4", "Overshoot 0", "Overshoot 4"}) {
    profile.ProfileSet("Tack Data", key, std::string_view("77"));
  }
  TackSettings settings;
  TackRecall(profile, settings);
  EXPECT_EQ(settings.Overshoot, TackSettings().Overshoot);
  EXPECT_EQ(settings.Rate, TackSettings().Rate);
}

}  // namespace
}  // namespace veerwatch
