#include "draw/WindowPlace.h"

#include <algorithm>

namespace veerwatch {

namespace {

/// What of a title bar has to be on a screen to be grabbed [px].
constexpr double kGripWidth = 64.0;
constexpr double kGripHeight = 20.0;

double Overlap(double beginA, double lengthA, double beginB, double lengthB) {
  return std::max(0.0, std::min(beginA + lengthA, beginB + lengthB) - std::max(beginA, beginB));
}

/// How far a rectangle is from a screen, squared; 0 where they meet.
double Distance(const PlaceBox& frame, const PlaceBox& screen) {
  const double x = std::max({0.0, screen.X - (frame.X + frame.Width), frame.X - (screen.X + screen.Width)});
  const double y = std::max({0.0, screen.Y - (frame.Y + frame.Height), frame.Y - (screen.Y + screen.Height)});
  return x * x + y * y;
}

bool CanBeGrabbed(const PlaceBox& frame, const PlaceBox& screen) {
  return Overlap(frame.X, frame.Width, screen.X, screen.Width) >= kGripWidth && frame.Y >= screen.Y &&
         frame.Y + kGripHeight <= screen.Y + screen.Height;
}

/// The screen that holds most of a rectangle, the nearest where none holds any of it.
const PlaceBox& ScreenOf(const PlaceBox& frame, const std::vector<PlaceBox>& screens) {
  const auto area = [&frame](const PlaceBox& screen) {
    return Overlap(frame.X, frame.Width, screen.X, screen.Width) *
           Overlap(frame.Y, frame.Height, screen.Y, screen.Height);
  };
  return *std::max_element(screens.begin(), screens.end(), [&](const PlaceBox& a, const PlaceBox& b) {
    return area(a) != area(b) ? area(a) < area(b) : Distance(frame, a) > Distance(frame, b);
  });
}

}  // namespace

PlaceBox PlaceOnScreen(PlaceBox frame, const std::vector<PlaceBox>& screens, double leastWidth,
                       double leastHeight) {
  frame.Width = std::max(frame.Width, leastWidth);
  frame.Height = std::max(frame.Height, leastHeight);
  if (screens.empty()) {
    return frame;
  }
  const PlaceBox& screen = ScreenOf(frame, screens);
  frame.Width = std::min(frame.Width, screen.Width);
  frame.Height = std::min(frame.Height, screen.Height);
  if (std::none_of(screens.begin(), screens.end(),
                   [&frame](const PlaceBox& each) { return CanBeGrabbed(frame, each); })) {
    frame.X = std::clamp(frame.X, screen.X, screen.X + screen.Width - frame.Width);
    frame.Y = std::clamp(frame.Y, screen.Y, screen.Y + screen.Height - frame.Height);
  }
  return frame;
}

}  // namespace veerwatch
