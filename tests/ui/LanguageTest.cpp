#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {
namespace {

/// English again at the end.
class LanguageQt : public testing::Test {
 protected:
  ~LanguageQt() override { InstallLanguage("en"); }
};

TEST_F(LanguageQt, GermanIsAmongTheResources) {
  InstallLanguage("de");
  EXPECT_EQ(TrQ("&Language"), QString::fromUtf8("&Sprache"));
  EXPECT_EQ(Tr("not in the catalogue"), "not in the catalogue");
}

TEST_F(LanguageQt, EnglishStaysTheSource) {
  InstallLanguage("en");
  EXPECT_EQ(Tr("&Language"), "&Language");
}

TEST_F(LanguageQt, AnotherOneTakesItsPlaceInQtsOwnTextsToo) {
  const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
  InstallLanguage("de");
  EXPECT_EQ(cancel(), QStringLiteral("Abbrechen"));
  InstallLanguage("en");
  EXPECT_EQ(cancel(), QStringLiteral("Cancel"));
}

TEST_F(LanguageQt, ALanguageWithoutACatalogueIsEnglish) {
  for (const char* name : {"fr", "tlh", "../../etc/passwd", "\xC3"}) {
    InstallLanguage(name);
    EXPECT_EQ(Tr("&Language"), "&Language") << name;
  }
}

}  // namespace
}  // namespace veerwatch
