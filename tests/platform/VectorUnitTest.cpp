#include "platform/VectorUnit.h"

#include <gtest/gtest.h>

#include "tests/support/UpperHalves.h"

namespace veerwatch {
namespace {

TEST(VectorUnit, ClearsTheUpperHalves) {
  ClearUpperHalves();
  if (!UpperHalvesTell()) {
    GTEST_SKIP() << "this processor does not tell";
  }
  FillUpperHalves();
  const bool before = UpperHalvesInUse();
  ClearUpperHalves();
  const bool after = UpperHalvesInUse();
  EXPECT_TRUE(before);
  EXPECT_FALSE(after);
}

}  // namespace
}  // namespace veerwatch
