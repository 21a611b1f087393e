#include "nmea/Mwd.h"

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/Origins.h"

namespace veerwatch {
namespace {

Mwd Decode(std::string_view line) { return DecodeMwd(Fields(line)); }

TEST(Mwd, ReadsBothDirectionsAndTheSpeed) {
  const Mwd mwd = Decode("$WIMWD,23.6,T,22.6,M,3.9,N,2.0,M*53");
  EXPECT_EQ(mwd.DirectionTrue, 23.6F);
  EXPECT_EQ(mwd.DirectionMagnetic, 22.6F);
  EXPECT_EQ(mwd.WindSpeed, 3.9F);
  EXPECT_TRUE(mwd.Complete());
}

TEST(Mwd, MayLackEitherDirection) {
  EXPECT_FALSE(Decode("$WIMWD,,T,22.6,M,3.9,N,2.0,M*00").DirectionTrue);
  EXPECT_TRUE(Decode("$WIMWD,,T,22.6,M,3.9,N,2.0,M*00").Complete());
  EXPECT_FALSE(Decode("$WIMWD,23.6,T,,M,3.9,N,2.0,M*00").DirectionMagnetic);
  EXPECT_TRUE(Decode("$WIMWD,23.6,T,,M,3.9,N,2.0,M*00").Complete());
  EXPECT_FALSE(Decode("$WIMWD,,T,,M,3.9,N,2.0,M*00").Complete());
}

TEST(Mwd, TakesTheFirstSpeedThatIsThere) {
  EXPECT_NEAR(*Decode("$WIMWD,23.6,T,,M,,N,2.0,M*00").WindSpeed, 3.8877, 1e-3);
  EXPECT_FALSE(Decode("$WIMWD,23.6,T,,M,,N,,M*00").WindSpeed);
}

TEST(Mwd, StopsAtWhatIsNoNumber) {
  EXPECT_FALSE(Decode("$WIMWD,23.6,T,22x,M,3.9,N*00").WindSpeed);
  EXPECT_FALSE(Decode("$WIMWD,nan,T,22.0,M,3.9,N*00").Complete());
  EXPECT_FALSE(Decode("$WIMWD,400,T,22.0,M,3.9,N*00").Complete());
}

TEST(Mwd, BringsItsDirectionsAsReadings) {
  Readings readings{kOrigin};
  Decode("$WIMWD,23.6,T,22.6,M,3.9,N,2.0,M*53").AddTo(readings);
  EXPECT_EQ(readings.Find(Quantity::WindDirectionTrue)->Value, 23.6F);
  EXPECT_EQ(readings.Find(Quantity::WindDirectionMagnetic)->Value, 22.6F);
  EXPECT_EQ(readings.Find(Quantity::TrueWindSpeed)->Value, 3.9F);
}

}  // namespace
}  // namespace veerwatch
