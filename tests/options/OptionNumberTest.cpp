#include "options/OptionNumber.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(OptionNumber, ReadsWholeTexts) {
  EXPECT_EQ(std::get<float>(ToOptionSingle("12.5")), 12.5F);
  EXPECT_EQ(std::get<float>(ToOptionSingle(" -3 ")), -3.0F);
  EXPECT_EQ(std::get<float>(ToOptionSingle("1e2")), 100.0F);
  EXPECT_EQ(std::get<float>(ToOptionSingle("1e-60")), 0.0F);
}

TEST(OptionNumber, TellsTextsThatAreNoNumbersFromNumbersThatAreTooLarge) {
  for (const char* text : {"", " ", "x", "5x", "nan", "inf", "0x10", "1,5", "1e", "--1", "5 6"}) {
    EXPECT_EQ(std::get<OptionFault>(ToOptionSingle(text)), OptionFault::TypeMismatch) << text;
  }
  for (const char* text : {"1e39", "-1e39", "3.5e38", "1e999999999999"}) {
    EXPECT_EQ(std::get<OptionFault>(ToOptionSingle(text)), OptionFault::Overflow) << text;
  }
}

TEST(OptionNumber, RoundsToTheNearestIntegerTiesToEven) {
  EXPECT_EQ(std::get<std::int16_t>(ToOptionInteger(2.5F)), 2);
  EXPECT_EQ(std::get<std::int16_t>(ToOptionInteger(3.5F)), 4);
  EXPECT_EQ(std::get<std::int16_t>(ToOptionInteger(-0.5F)), 0);
  EXPECT_EQ(std::get<std::int16_t>(ToOptionInteger(4.4F)), 4);
}

TEST(OptionNumber, KeepsIntegersToSixteenBits) {
  EXPECT_EQ(std::get<std::int16_t>(ToOptionInteger(32767.0F)), 32767);
  EXPECT_EQ(std::get<std::int16_t>(ToOptionInteger(32767.25F)), 32767);
  EXPECT_EQ(std::get<std::int16_t>(ToOptionInteger(-32768.0F)), -32768);
  for (const float number : {32767.5F, 32768.0F, -32769.0F, 1e30F}) {
    EXPECT_EQ(std::get<OptionFault>(ToOptionInteger(number)), OptionFault::Overflow) << number;
  }
}

TEST(OptionNumber, NamesTheFaults) {
  EXPECT_EQ(FaultText(OptionFault::TypeMismatch), "Type mismatch");
  EXPECT_EQ(FaultText(OptionFault::Overflow), "Overflow");
  EXPECT_EQ(FaultText(OptionFault::InvalidValue), "Invalid property value");
}

}  // namespace
}  // namespace veerwatch
