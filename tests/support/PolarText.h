// Polar tables from text.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "polar/PolarFile.h"

namespace veerwatch {

/// Reads `text` into a slot of `table`.
inline PolarLoadResult ReadText(PolarTable& table, const std::string& text, int slot = 0,
                                float factor = 1.0F) {
  std::istringstream stream(text);
  return PolarRead(table, slot, factor, stream);
}

/// A table of `text`, which must be right.
inline PolarTable TableOf(const std::string& text, int slot = 0) {
  PolarTable table;
  const PolarLoadResult result = ReadText(table, text, slot);
  EXPECT_TRUE(result.Loaded) << result.Error;
  return table;
}

/// Four winds and four angles with numbers that tell where they come from.
inline constexpr const char* kSmallPolar =
    "TWA\t6\t10\t14\t20\n"
    "40\t4\t6\t7\t8\n"
    "80\t5\t8\t9\t11\n"
    "120\t4.5\t7.5\t10\t14\n"
    "180\t3\t5\t7\t9\n";

}  // namespace veerwatch
