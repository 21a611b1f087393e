#include "nmea/FieldNumber.h"

#include <gtest/gtest.h>

#include <optional>
#include <string_view>

namespace veerwatch {
namespace {

using Read = std::optional<float> (*)(std::string_view);

struct BoundCase {
  const char* Name;
  Read Field;
  float Least;
  std::string_view LeastText;
  std::string_view BelowLeast;
  float Most;
  std::string_view MostText;
  std::string_view AboveMost;
};

void PrintTo(const BoundCase& bound, std::ostream* out) { *out << bound.Name; }

class FieldNumber : public testing::TestWithParam<BoundCase> {};

TEST_P(FieldNumber, TakesBothEndsOfItsRange) {
  EXPECT_EQ(GetParam().Field(GetParam().LeastText), std::optional<float>(GetParam().Least));
  EXPECT_EQ(GetParam().Field(GetParam().MostText), std::optional<float>(GetParam().Most));
}

TEST_P(FieldNumber, RefusesWhatIsBeyond) {
  EXPECT_EQ(GetParam().Field(GetParam().BelowLeast), std::nullopt);
  EXPECT_EQ(GetParam().Field(GetParam().AboveMost), std::nullopt);
  for (const std::string_view text : {"1e30", "-1e30", "1e999", "-1e999"}) {
    EXPECT_EQ(GetParam().Field(text), std::nullopt) << text;
  }
}

TEST_P(FieldNumber, ReadsNumbersAsInstrumentsWriteThem) {
  EXPECT_EQ(GetParam().Field("045"), std::optional<float>(45.0F));
  EXPECT_EQ(GetParam().Field("10.5"), std::optional<float>(10.5F));
  EXPECT_EQ(GetParam().Field(" 10.5 "), std::optional<float>(10.5F));
  EXPECT_EQ(GetParam().Field("+7"), std::optional<float>(7.0F));
  EXPECT_EQ(GetParam().Field(".5"), std::optional<float>(0.5F));
  EXPECT_EQ(GetParam().Field("1e1"), std::optional<float>(10.0F));
}

TEST_P(FieldNumber, RefusesEveryOtherText) {
  for (const std::string_view text :
       {"", " ", "nan", "inf", "-inf", "0x10", "12.3x", "1,5", "--5", "1 2", "A", "."}) {
    EXPECT_EQ(GetParam().Field(text), std::nullopt) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, FieldNumber,
    testing::Values(BoundCase{"Angle", AngleField, -360.0F, "-360", "-360.01", 360.0F, "360.0", "360.01"},
                    BoundCase{"Variation", VariationField, -180.0F, "-180", "-180.01", 180.0F, "180",
                              "180.1"},
                    BoundCase{"Speed", SpeedField, 0.0F, "0.0", "-0.1", 1000.0F, "1000", "1000.1"},
                    BoundCase{"Range", RangeField, 0.0F, "0", "-0.001", 100000.0F, "100000", "100000.1"}),
    [](const testing::TestParamInfo<BoundCase>& bound) { return bound.param.Name; });

}  // namespace
}  // namespace veerwatch
