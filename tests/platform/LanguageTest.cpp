#include "platform/Language.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

/// A language for the length of a test.
class Installed {
 public:
  explicit Installed(Translation translation) { SetTranslation(translation); }
  ~Installed() { SetTranslation(nullptr); }
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;
};

TEST(Language, IsTheSourceWhileNoneIsInstalled) {
  EXPECT_EQ(Tr("No Wind %1 s"), "No Wind %1 s");
  EXPECT_STREQ(TrMark("Steer"), "Steer");
}

TEST(Language, IsWhatTheTranslationMakes) {
  const Installed brackets([](const char* source) { return "[" + std::string(source) + "]"; });
  EXPECT_EQ(Tr("Steer"), "[Steer]");
  EXPECT_EQ(Tr(""), "");
}

TEST(Filled, PutsEachValueIntoItsPlace) {
  EXPECT_EQ(Filled("No Wind %1 s", {"7"}), "No Wind 7 s");
  EXPECT_EQ(Filled("%2 before %1, %2 again", {"one", "two"}), "two before one, two again");
  EXPECT_EQ(Filled("all", {"unused"}), "all");
}

TEST(Filled, LeavesWhatIsNoPlace) {
  EXPECT_EQ(Filled("%1 of %3", {"a", "b"}), "a of %3");
  EXPECT_EQ(Filled("100 %", {"a"}), "100 %");
  EXPECT_EQ(Filled("93 % full, %0 %a", {"b"}), "93 % full, %0 %a");
}

TEST(Filled, LooksNotIntoTheValues) { EXPECT_EQ(Filled("%1 and %2", {"%2", "%1"}), "%2 and %1"); }

}  // namespace
}  // namespace veerwatch
