#include "tack/TackSettings.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

TEST(TackSettings, StartWithTheDefaults) {
  TackSettings settings;
  TackRecall(Profile{}, settings);
  EXPECT_EQ(settings.Overshoot, (std::array<float, 4>{0.0F, 0.0F, 5.0F, 0.0F}));
  EXPECT_EQ(settings.Rate, (std::array<float, 4>{0.0F, 5.0F, 10.0F, 5.0F}));
  EXPECT_FALSE(settings.ThenTrack);
  EXPECT_EQ(settings.StageLimit, 60.0F);
}

TEST(TackSettings, AreWrittenRateBeforeOvershoot) {
  Profile profile;
  TackSettings settings;
  settings.Rate[3] = 2.5F;
  settings.Overshoot[1] = -1.25F;
  TackStore(profile, settings);
  EXPECT_EQ(profile.Content(),
            "[Tack Data]\nRate 1=5\nOvershoot 1=-1.25\nRate 2=10\nOvershoot 2=5\nRate 3=2.5\nOvershoot 3=0\n"
            "Then Track=False\nThen Track Angle=0\nStage Limit=60\n");
}

TEST(TackSettings, ComeBackAsTheyWereWritten) {
  Profile profile;
  TackSettings settings;
  settings.Rate = {0.0F, 1.1F, 0.0F, -3.0F};
  settings.Overshoot = {0.0F, 12.3F, 4.5F, 0.001F};
  settings.ThenTrack = true;
  settings.Angle = TackAngle::Best;
  settings.StageLimit = 45.5F;
  TackStore(profile, settings);
  TackSettings read;
  TackRecall(profile, read);
  EXPECT_EQ(read.Rate, settings.Rate);
  EXPECT_EQ(read.Overshoot, settings.Overshoot);
  EXPECT_TRUE(read.ThenTrack);
  EXPECT_EQ(read.Angle, TackAngle::Best);
  EXPECT_EQ(read.StageLimit, 45.5F);
}

TEST(TackSettings, KeepTheDefaultWhereATextIsNoNumber) {
  const TemporaryFolder folder;
  std::ofstream(folder / "Veerwatch.ini")
      << "[tack data]\nRATE 1=nan\nRate 2=\nRate 3=1e99\nOvershoot 1=inf\nOvershoot 2=fast\nOvershoot 3=7\n"
      << "Then Track=perhaps\nThen Track Angle=2\nStage Limit=0\n";
  Profile profile;
  ASSERT_EQ(profile.Load(folder / "Veerwatch.ini"), Profile::LoadResult::Read);
  TackSettings settings;
  TackRecall(profile, settings);
  EXPECT_EQ(settings.Rate, (std::array<float, 4>{0.0F, 5.0F, 10.0F, 5.0F}));
  EXPECT_EQ(settings.Overshoot, (std::array<float, 4>{0.0F, 0.0F, 5.0F, 7.0F}));
  EXPECT_FALSE(settings.ThenTrack);
  EXPECT_EQ(settings.Angle, TackAngle::Mirrored);
  EXPECT_EQ(settings.StageLimit, 60.0F);
}

}  // namespace
}  // namespace veerwatch
