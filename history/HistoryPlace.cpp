#include "history/HistoryPlace.h"

#include <cmath>

namespace veerwatch {

namespace {

/// Frames beyond this are no windows [twips].
constexpr float kLargest = 1e6F;

std::optional<float> Within(float number, float least) {
  return number >= least && number <= kLargest ? std::optional(number) : std::nullopt;
}

constexpr NumberRule kPosition{"-1000000 to 1000000", [](float twips) { return Within(twips, -kLargest); }};
constexpr NumberRule kSize{"1 to 1000000", [](float twips) { return Within(twips, 1.0F); }};

constexpr double kTwipsPerPixel = 15.0;

double Pixels(float twips) { return std::round(static_cast<double>(twips) / kTwipsPerPixel); }

void Note(float& twips, double pixels) {
  if (Pixels(twips) != pixels) {
    twips = static_cast<float>(pixels * kTwipsPerPixel);
  }
}

}  // namespace

Box FrameOf(const HistoryPlace& place) {
  return {Pixels(place.Left), Pixels(place.Top), Pixels(place.Width), Pixels(place.Height)};
}

void NoteFrame(HistoryPlace& place, const Box& frame) {
  Note(place.Top, frame.Y);
  Note(place.Left, frame.X);
  Note(place.Height, frame.Height);
  Note(place.Width, frame.Width);
}

const SettingTable<HistoryPlace>& HistoryPlaceTable() {
  using setting::Number;
  constexpr const char* kWindow = "History Window";
  constexpr const char* kUnit = "twips";
  constexpr const char* kByHand = "by moving and sizing it";
  static const SettingTable<HistoryPlace> kTable{
      {kWindow, "Top", Number(&HistoryPlace::Top, kPosition), kUnit,
       "place of the history window; a twip is 1/15 of a pixel at 100 %", kByHand},
      {kWindow, "Left", Number(&HistoryPlace::Left, kPosition), kUnit, "from the left", kByHand},
      {kWindow, "Height", Number(&HistoryPlace::Height, kSize), kUnit, "height of the frame", kByHand},
      {kWindow, "Width", Number(&HistoryPlace::Width, kSize), kUnit, "width of the frame", kByHand}};
  return kTable;
}

}  // namespace veerwatch
