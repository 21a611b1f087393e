#include "instruments/CompassPoint.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace veerwatch {
namespace {

// Where each point begins; each ends where the next one begins.
constexpr std::array<std::pair<float, std::string_view>, 17> kPoints{{{0.0F, "N"},
                                                                      {11.25F, "N-NE"},
                                                                      {33.75F, "NE"},
                                                                      {56.25F, "E-NE"},
                                                                      {78.75F, "E"},
                                                                      {101.25F, "E-SE"},
                                                                      {123.75F, "SE"},
                                                                      {146.25F, "S-SE"},
                                                                      {168.75F, "S"},
                                                                      {191.25F, "S-SW"},
                                                                      {213.25F, "SW"},
                                                                      {236.25F, "W-SW"},
                                                                      {258.75F, "W"},
                                                                      {281.25F, "W-NW"},
                                                                      {303.75F, "NW"},
                                                                      {326.25F, "N-NW"},
                                                                      {348.75F, "N"}}};

TEST(CompassPointName, ChangesAtEachBound) {
  for (std::size_t i = 1; i < kPoints.size(); ++i) {
    const float bound = kPoints[i].first;
    EXPECT_EQ(CompassPointName(bound), kPoints[i].second) << bound;
    EXPECT_EQ(CompassPointName(std::nextafter(bound, 0.0F)), kPoints[i - 1].second) << bound;
  }
}

TEST(CompassPointName, NamesTheMiddleOfEachPoint) {
  constexpr std::array<std::string_view, 16> kNames{"N", "N-NE", "NE", "E-NE", "E", "E-SE", "SE", "S-SE",
                                                    "S", "S-SW", "SW", "W-SW", "W", "W-NW", "NW", "N-NW"};
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    EXPECT_EQ(CompassPointName(static_cast<float>(i) * 22.5F), kNames[i]);
  }
}

TEST(CompassPointName, EndsSSwAt213Point25) {
  EXPECT_EQ(CompassPointName(213.2F), "S-SW");
  EXPECT_EQ(CompassPointName(213.25F), "SW");
  EXPECT_EQ(CompassPointName(213.5F), "SW");
}

TEST(CompassPointName, FoldsTheDirectionFirst) {
  EXPECT_EQ(CompassPointName(360.0F), "N");
  EXPECT_EQ(CompassPointName(371.0F), "N");
  EXPECT_EQ(CompassPointName(-90.0F), "W");
  EXPECT_EQ(CompassPointName(450.0F), "E");
  EXPECT_EQ(CompassPointName(371.25F), "N-NE");
}

TEST(CompassPointName, AsksForWhatStaysOutOfRange) {
  EXPECT_EQ(CompassPointName(std::numeric_limits<float>::quiet_NaN()), "??");
  EXPECT_EQ(CompassPointName(std::numeric_limits<float>::infinity()), "??");
  EXPECT_EQ(CompassPointName(731.25F), "??");
}

}  // namespace
}  // namespace veerwatch
