#include "platform/NumberText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veerwatch {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

struct FormatCase {
  float Value;
  std::string_view Pattern;
  std::string_view Text;
};

void ExpectFormats(const std::vector<FormatCase>& cases) {
  for (const FormatCase& c : cases) {
    EXPECT_EQ(FormatNumber(c.Value, c.Pattern), c.Text) << c.Value << " by " << c.Pattern;
  }
}

TEST(FormatNumber, ShowsWholeNumbers) {
  ExpectFormats({{0.0F, "0", "0"},
                 {1.0F, "0", "1"},
                 {-170.0F, "0", "-170"},
                 {359.4F, "0", "359"},
                 {359.5F, "0", "360"},
                 {16777216.0F, "0", "16777216"}});
}

TEST(FormatNumber, KeepsTheDecimalsOfThePattern) {
  ExpectFormats({{5.0F, "0.0", "5.0"},
                 {10.5F, "0.0", "10.5"},
                 {40.0F, "0.00", "40.00"},
                 {12.345F, "0.00", "12.35"},
                 {0.001F, "0.00", "0.00"},
                 {-3.25F, "0.00", "-3.25"}});
}

TEST(FormatNumber, FillsTheIntegerDigitsWithZeros) {
  ExpectFormats({{7.5F, "000.0", "007.5"},
                 {0.0F, "000.0", "000.0"},
                 {45.0F, "000.0", "045.0"},
                 {245.0F, "000.0", "245.0"},
                 {1234.5F, "000.0", "1234.5"},
                 {-7.5F, "000.0", "-007.5"},
                 {5.0F, "00", "05"},
                 {59.4F, "00", "59"},
                 {59.5F, "00", "60"},
                 {123.0F, "00", "123"}});
}

TEST(FormatNumber, DropsTheLeadingZeroWhereThePatternHasNone) {
  ExpectFormats({{0.5F, ".0", ".5"},
                 {12.4F, ".0", "12.4"},
                 {0.0F, ".0", ".0"},
                 {0.04F, ".0", ".0"},
                 {0.96F, ".0", "1.0"},
                 {-0.5F, ".0", "-.5"},
                 {10.0F, ".0", "10.0"}});
}

TEST(FormatNumber, RoundsHalvesAwayFromZero) {
  ExpectFormats({{0.5F, "0", "1"},
                 {1.5F, "0", "2"},
                 {2.5F, "0", "3"},
                 {-0.5F, "0", "-1"},
                 {-2.5F, "0", "-3"},
                 {5.25F, "0.0", "5.3"},
                 {-5.25F, "0.0", "-5.3"},
                 {0.125F, "0.00", "0.13"}});
}

TEST(FormatNumber, RoundsTheShortestDecimalTextAndNotTheBinaryValue) {
  // As binary values 0.35, 9.95, 2.675 and 99.95 lie below their decimal halves, 0.15 and 0.45 above.
  ExpectFormats({{0.15F, "0.0", "0.2"},
                 {0.35F, "0.0", "0.4"},
                 {0.45F, "0.0", "0.5"},
                 {9.95F, "0.0", "10.0"},
                 {2.675F, "0.00", "2.68"},
                 {99.95F, "000.0", "100.0"},
                 {359.95F, "000.0", "360.0"},
                 {359.94F, "000.0", "359.9"}});
}

TEST(FormatNumber, RoundsOnceAndNotDigitByDigit) {
  ExpectFormats({{0.0499F, "0.0", "0.0"}, {0.449F, "0.0", "0.4"}, {2.49F, "0", "2"}, {0.4999F, "0", "0"}});
}

TEST(FormatNumber, CarriesThroughAllNines) {
  ExpectFormats({{9.5F, "0", "10"},
                 {99.5F, "0", "100"},
                 {999.96F, "0.0", "1000.0"},
                 {0.996F, "0.00", "1.00"},
                 {99.95F, "00.0", "100.0"}});
}

TEST(FormatNumber, NeverGivesANegativeZero) {
  ExpectFormats({{-0.0F, "0", "0"},
                 {-0.4F, "0", "0"},
                 {-0.04F, "0.0", "0.0"},
                 {-0.004F, "0.00", "0.00"},
                 {-0.0F, "000.0", "000.0"},
                 {-0.04F, ".0", ".0"},
                 {-0.4F, "00", "00"},
                 {-1e-40F, "0.00", "0.00"},
                 {-0.05F, "0.0", "-0.1"}});
}

TEST(FormatNumber, ShowsVerySmallNumbersAsZero) {
  ExpectFormats({{std::numeric_limits<float>::denorm_min(), "0.0", "0.0"}, {1e-10F, "0.00", "0.00"}});
}

TEST(FormatNumber, ShowsVeryLargeNumbersInFullWithoutExponent) {
  // Several texts of the least length stand for such a single; each reads back as the same.
  for (const float value : {1e20F, -1e20F, std::numeric_limits<float>::max()}) {
    const std::string text = FormatNumber(value, "0.0");
    EXPECT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
    EXPECT_EQ(std::strtof(text.c_str(), nullptr), value) << text;
  }
}

TEST(FormatNumber, GivesNothingForWhatIsNotFinite) {
  for (const std::string_view pattern : {"0", "0.0", "0.00", "000.0", "00", ".0"}) {
    EXPECT_EQ(FormatNumber(kNan, pattern), "");
    EXPECT_EQ(FormatNumber(kInfinity, pattern), "");
    EXPECT_EQ(FormatNumber(-kInfinity, pattern), "");
  }
}

TEST(FormatNumber, AgreesWithIntegerArithmeticForEveryHundredth) {
  for (int hundredths = -40000; hundredths <= 40000; ++hundredths) {
    const float value = static_cast<float>(hundredths / 100.0);
    const int tenths = (std::abs(hundredths) + 5) / 10;
    const std::string sign = hundredths < 0 && tenths != 0 ? "-" : "";
    const std::string expected = sign + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
    ASSERT_EQ(FormatNumber(value, "0.0"), expected) << hundredths;
  }
}

/// A positive number with three decimals at most, rounded by the digits of its shortest text.
std::string RoundedByItsDigits(float value, std::size_t decimals) {
  std::string digits = ShortestText(value);
  if (digits.find('.') == std::string::npos) {
    digits += ".";
  }
  digits += "0000";
  const std::size_t point = digits.find('.');
  const bool up = digits[point + decimals + 1] >= '5';
  digits.erase(point, 1);
  std::string units = std::to_string(std::stoll(digits.substr(0, point + decimals)) + (up ? 1 : 0));
  units.insert(0, decimals + 1 - std::min(decimals + 1, units.size()), '0');
  return decimals == 0 ? units : units.insert(units.size() - decimals, ".");
}

TEST(FormatNumber, RoundsTheTextNextToEveryHalf) {
  constexpr std::array<std::pair<std::string_view, int>, 4> kPatterns{
      {{"0", 1}, {"0.0", 10}, {"0.00", 100}, {"0.000", 1000}}};
  for (std::size_t decimals = 0; decimals < kPatterns.size(); ++decimals) {
    const auto [pattern, units] = kPatterns[decimals];
    for (int half = 1; half < 4000000; half = half < 20000 ? half + 2 : half + 1998) {
      const auto middle = static_cast<float>(half / 2.0 / units);
      float value = middle;
      for (int step = 0; step < 3; ++step, value = std::nextafter(value, 0.0F)) {
        ASSERT_EQ(FormatNumber(value, pattern), RoundedByItsDigits(value, decimals)) << half << " " << step;
      }
      value = std::nextafter(middle, 1e9F);
      ASSERT_EQ(FormatNumber(value, pattern), RoundedByItsDigits(value, decimals)) << half << " above";
    }
  }
}

TEST(ShortestText, WritesWhatSettingsLookLike) {
  const std::vector<std::pair<float, std::string>> cases{
      {5.0F, "5"}, {2.0F, "2"},           {0.5F, "0.5"},      {92.3F, "92.3"},   {-0.1F, "-0.1"},
      {0.0F, "0"}, {100000.0F, "100000"}, {1e7F, "10000000"}, {1e-5F, "0.00001"}};
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(ShortestText(value), text);
  }
}

TEST(ShortestText, HasNoExponentAtTheEndsOfTheRange) {
  // Several texts of 21 and of 39 digits stand for these two singles; none is shorter.
  for (const auto& [value, length] :
       {std::pair{1e20F, 21U}, std::pair{std::numeric_limits<float>::max(), 39U}}) {
    const std::string text = ShortestText(value);
    EXPECT_EQ(text.size(), length) << text;
    EXPECT_EQ(text.find_first_not_of("0123456789"), std::string::npos) << text;
    EXPECT_EQ(std::strtof(text.c_str(), nullptr), value) << text;
  }
  EXPECT_EQ(ShortestText(std::numeric_limits<float>::denorm_min()), "0." + std::string(44, '0') + "1");
}

TEST(ShortestText, NeverGivesANegativeZero) { EXPECT_EQ(ShortestText(-0.0F), "0"); }

TEST(ShortestText, GivesNothingForWhatIsNotFinite) {
  EXPECT_EQ(ShortestText(kNan), "");
  EXPECT_EQ(ShortestText(kInfinity), "");
  EXPECT_EQ(ShortestText(-kInfinity), "");
}

TEST(ShortestText, ReadsBackAsTheSameSingle) {
  // A stride through all bit patterns, odd so that every exponent and many fractions are met.
  for (std::uint64_t bits = 1; bits < 0x100000000ULL; bits += 104729) {
    const float value = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
    if (!std::isfinite(value)) {
      continue;
    }
    const std::string text = ShortestText(value);
    ASSERT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
    ASSERT_EQ(std::strtof(text.c_str(), nullptr), value) << text;
    ASSERT_EQ(StrictNumber(text), std::optional<float>(value)) << text;
  }
}

TEST(StrictNumber, ReadsPlainDecimals) {
  const std::vector<std::pair<std::string_view, float>> cases{
      {"0", 0.0F},       {"5", 5.0F},     {"123.4", 123.4F}, {"+12.5", 12.5F}, {"-12.5", -12.5F},
      {".5", 0.5F},      {"5.", 5.0F},    {"-.5", -0.5F},    {"+.5", 0.5F},    {"007", 7.0F},
      {"  7.5  ", 7.5F}, {"\t8", 8.0F},   {"1e2", 100.0F},   {"1E2", 100.0F},  {"1e+2", 100.0F},
      {"1.5e-1", 0.15F}, {"5.e1", 50.0F}, {".5e1", 5.0F},    {"-0", 0.0F},     {"1e00002", 100.0F}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(StrictNumber(text), std::optional<float>(value)) << text;
    ASSERT_TRUE(StrictDouble(text).has_value()) << text;
    EXPECT_FLOAT_EQ(static_cast<float>(StrictDouble(text).value_or(0.0)), value) << text;
  }
}

TEST(StrictNumber, RefusesEveryOtherText) {
  for (const std::string_view text : {"",
                                      " ",
                                      "nan",
                                      "NaN",
                                      "-nan",
                                      "nan(1)",
                                      "inf",
                                      "-inf",
                                      "INF",
                                      "infinity",
                                      "0x10",
                                      "0X1p3",
                                      "12.3x",
                                      "x12.3",
                                      "12 3",
                                      "1,5",
                                      "+",
                                      "-",
                                      ".",
                                      "+.",
                                      "e5",
                                      ".e5",
                                      "1e",
                                      "1e+",
                                      "1e5.5",
                                      "--5",
                                      "+-5",
                                      "-+5",
                                      "++5",
                                      "- 5",
                                      "1.2.3",
                                      "1_000",
                                      "5f",
                                      "5L",
                                      "1d2",
                                      "$5",
                                      "True",
                                      "\xC2\xA0"
                                      "5",
                                      "\xEF\xBC\x95",
                                      "(5)"}) {
    EXPECT_EQ(StrictNumber(text), std::nullopt) << "'" << text << "'";
    EXPECT_EQ(StrictDouble(text), std::nullopt) << "'" << text << "'";
  }
}

TEST(StrictNumber, RefusesATextWithANulInIt) {
  EXPECT_EQ(StrictNumber(std::string_view("5\0", 2)), std::nullopt);
  EXPECT_EQ(StrictNumber(std::string_view("\0"
                                          "5",
                                          2)),
            std::nullopt);
  EXPECT_EQ(StrictNumber(std::string_view("5\0"
                                          "5",
                                          3)),
            std::nullopt);
}

TEST(StrictNumber, RefusesWhatIsTooLargeForASingle) {
  for (const std::string_view text :
       {"1e39", "-1e39", "3.5e38", "1e999", "-1e999", "1e99999999999999999999"}) {
    EXPECT_EQ(StrictNumber(text), std::nullopt) << text;
  }
  EXPECT_EQ(StrictNumber("3.4028235e38"), std::optional<float>(std::numeric_limits<float>::max()));
  EXPECT_EQ(StrictNumber(std::string(400, '9')), std::nullopt);
}

TEST(StrictDouble, HoldsMoreThanASingleAndRefusesWhatIsTooLargeForADouble) {
  EXPECT_EQ(StrictDouble("1e39"), std::optional<double>(1e39));
  EXPECT_EQ(StrictDouble("0.1"), std::optional<double>(0.1));
  EXPECT_EQ(StrictDouble("1e999"), std::nullopt);
}

TEST(StrictNumber, TakesWhatIsTooSmallForASingleAsZero) {
  for (const std::string_view text : {"1e-60", "1e-999", "-1e-60", "1e-99999999999999999999"}) {
    ASSERT_TRUE(StrictNumber(text).has_value()) << text;
    EXPECT_EQ(*StrictNumber(text), 0.0F) << text;
  }
  EXPECT_EQ(StrictNumber("0." + std::string(400, '0') + "1"), std::optional<float>(0.0F));
}

TEST(StrictNumber, CountsNoDigitThatLeavesALargeNumberAsItIs) {
  EXPECT_EQ(StrictNumber("1." + std::string(100, '5') + "e39"), std::nullopt);
  EXPECT_EQ(StrictNumber(std::string(100, '0') + "1e39"), std::nullopt);
}

TEST(StrictNumber, TakesZeroWithALargeExponentAsZero) {
  EXPECT_EQ(StrictNumber("0e999"), std::optional<float>(0.0F));
  EXPECT_EQ(StrictNumber("0.000e99999999999999999999"), std::optional<float>(0.0F));
}

TEST(StrictNumber, ReadsVeryLongTexts) {
  EXPECT_EQ(StrictNumber(std::string(500, '0') + "7"), std::optional<float>(7.0F));
  EXPECT_EQ(StrictNumber("7." + std::string(500, '0')), std::optional<float>(7.0F));
}

TEST(LeadingNumber, TakesTheNumberThatATextBeginsWith) {
  const std::vector<std::pair<std::string_view, float>> cases{
      {"12.3x", 12.3F}, {"45 deg", 45.0F}, {"  7", 7.0F},    {"+3", 3.0F},   {"-8.5abc", -8.5F},
      {".5.", 0.5F},    {"5,3", 5.0F},     {"12 34", 12.0F}, {"1e2x", 1.0F}, {"1.2.3", 1.2F},
      {"0x10", 0.0F},   {"5.", 5.0F},      {"359.5", 359.5F}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(LeadingNumber(text), value) << text;
  }
}

TEST(LeadingNumber, EndsInFrontOfAnExponent) {
  EXPECT_EQ(LeadingNumber("1e40"), 1.0F);
  EXPECT_EQ(LeadingNumber("-1e39 "), -1.0F);
  EXPECT_EQ(LeadingNumber("4e"), 4.0F);
  EXPECT_EQ(LeadingNumber("4e+"), 4.0F);
  EXPECT_EQ(LeadingNumber("4east"), 4.0F);
}

TEST(LeadingNumber, IsZeroForATextThatBeginsWithNone) {
  for (const std::string_view text :
       {"", " ", "abc", "x5", "-", "+", ".", "--5", "nan", "inf", "infinity", "e5"}) {
    EXPECT_EQ(LeadingNumber(text), 0.0F) << text;
  }
}

TEST(LeadingNumber, IsWhatTheCallerSaysForATextThatBeginsWithNone) {
  for (const char* text :
       {"", " ", "-", "nan", "inf", "north", "99999999999999999999999999999999999999999"}) {
    EXPECT_EQ(LeadingNumber(text, 12.5F), 12.5F) << text;
  }
  EXPECT_EQ(LeadingNumber("0", 12.5F), 0.0F);
  EXPECT_EQ(LeadingNumber("7 M", 12.5F), 7.0F);
}

TEST(LeadingNumber, IsZeroForANumberThatIsTooLarge) {
  EXPECT_EQ(LeadingNumber(std::string(100, '9')), 0.0F);
  EXPECT_EQ(LeadingNumber("-4" + std::string(38, '0')), 0.0F);
}

TEST(LeadingNumber, IsAlwaysFinite) {
  // Every text of up to four characters from those that numbers are made of.
  const std::string_view alphabet = "09.+-eEx n";
  std::vector<std::string> texts{""};
  for (std::size_t from = 0, length = 0; length < 4; ++length) {
    const std::size_t to = texts.size();
    for (; from < to; ++from) {
      for (const char c : alphabet) {
        texts.push_back(texts[from] + c);
      }
    }
  }
  for (const std::string& text : texts) {
    ASSERT_TRUE(std::isfinite(LeadingNumber(text))) << text;
    const std::optional<float> strict = StrictNumber(text);
    if (strict && text.find_first_of("eE") == std::string::npos) {
      ASSERT_EQ(LeadingNumber(text), *strict) << text;
    }
  }
}

TEST(HasFormOfNumber, AsksForTheWholeTextAndNotForItsSize) {
  for (const char* text : {"5", " -5.25 ", "1e3", "1e999", "+.5"}) {
    EXPECT_TRUE(HasFormOfNumber(text)) << text;
  }
  for (const char* text : {"", " ", "5x", "1e", "nan", "inf", "0x10", "5 5", "-"}) {
    EXPECT_FALSE(HasFormOfNumber(text)) << text;
  }
}

}  // namespace
}  // namespace veerwatch
