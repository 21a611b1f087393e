#include "tests/profile/ProfilePage.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace veerwatch {
namespace {

/// What stands between two lines of the page.
std::string Between(const std::string& page, const std::string& begin, const std::string& end) {
  const std::size_t from = page.find(begin);
  const std::size_t to = from == std::string::npos ? from : page.find(end, from);
  EXPECT_NE(to, std::string::npos) << begin;
  return to == std::string::npos ? "" : page.substr(from + begin.size(), to - from - begin.size());
}

TEST(ProfilePage, HasTheKeysOfTheTables) {
  std::ifstream file(VEERWATCH_PROFILE_PAGE);
  std::stringstream page;
  page << file.rdbuf();
  std::istringstream lines(Between(page.str(), "<!-- keys -->\n", "<!-- end -->\n"));
  std::istringstream rows(ProfilePageTable());
  for (std::string row; std::getline(rows, row);) {
    std::string line;
    std::getline(lines, line);
    ASSERT_EQ(line, row) << "script/profile-page writes the table anew";
  }
  std::string more;
  EXPECT_FALSE(std::getline(lines, more)) << more << ": script/profile-page writes the table anew";
}

}  // namespace
}  // namespace veerwatch
