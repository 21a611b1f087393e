#include "app/ManualPlace.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(ManualPlace, OfTheOptionsIsTheOpenTab) {
  EXPECT_EQ(ManualPlaceOf("frmOptions", 0), (ManualPlace{"settings.md", "Input"}));
  EXPECT_EQ(ManualPlaceOf("frmOptions", 5), (ManualPlace{"settings.md", "Diagram"}));
  EXPECT_EQ(ManualPlaceOf("frmOptions", 6), (ManualPlace{"settings.md", "Watch"}));
  EXPECT_EQ(ManualPlaceOf("frmOptions", 7), (ManualPlace{"settings.md", ""}));
  EXPECT_EQ(ManualPlaceOf("frmOptions", -1), (ManualPlace{"settings.md", ""}));
}

TEST(ManualPlace, OfAWindowIsItsPage) {
  EXPECT_EQ(ManualPlaceOf("frmPolar", 3), (ManualPlace{"polar.md", ""}));
  EXPECT_EQ(ManualPlaceOf("dlgDevice", 0), (ManualPlace{"connecting.md", "Ports"}));
}

TEST(ManualPlace, OfTheAssistantIsTheOpenPage) {
  EXPECT_EQ(ManualPlaceOf("frmConnect", 0), (ManualPlace{"assistant.md", "1. Instruments"}));
  EXPECT_EQ(ManualPlaceOf("frmConnect", 4), (ManualPlace{"assistant.md", "5. Ready"}));
  EXPECT_EQ(ManualPlaceOf("frmConnect", 5), (ManualPlace{"assistant.md", ""}));
}

TEST(ManualPlace, OfAnUnknownWindowIsTheFirstPage) {
  EXPECT_EQ(ManualPlaceOf("QMessageBox", 0), (ManualPlace{"README.md", ""}));
}

TEST(HeadingSlug, IsTheHeadingAsALinkNamesIt) {
  EXPECT_EQ(HeadingSlug("The watch"), "the-watch");
  EXPECT_EQ(HeadingSlug("Why is this blank?"), "why-is-this-blank");
  EXPECT_EQ(HeadingSlug("Apparent Upwind, True Downwind"), "apparent-upwind-true-downwind");
}

}  // namespace
}  // namespace veerwatch
