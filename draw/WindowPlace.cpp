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
double Distance(const Box& frame, const Box& screen) {
  const double x = std::max({0.0, screen.X - frame.Right(), frame.X - screen.Right()});
  const double y = std::max({0.0, screen.Y - frame.Bottom(), frame.Y - screen.Bottom()});
  return x * x + y * y;
}

bool CanBeGrabbed(const Box& frame, const Box& screen) {
  return Overlap(frame.X, frame.Width, screen.X, screen.Width) >= kGripWidth && frame.Y >= screen.Y &&
         frame.Y + kGripHeight <= screen.Bottom();
}

/// The screen that holds most of a rectangle, the nearest where none holds any of it.
const Box& ScreenOf(const Box& frame, const std::vector<Box>& screens) {
  const auto area = [&frame](const Box& screen) {
    return Overlap(frame.X, frame.Width, screen.X, screen.Width) *
           Overlap(frame.Y, frame.Height, screen.Y, screen.Height);
  };
  return *std::max_element(screens.begin(), screens.end(), [&](const Box& a, const Box& b) {
    return area(a) != area(b) ? area(a) < area(b) : Distance(frame, a) > Distance(frame, b);
  });
}

}  // namespace

Box PlaceOnScreen(Box frame, const std::vector<Box>& screens, double leastWidth, double leastHeight) {
  frame.Width = std::max(frame.Width, leastWidth);
  frame.Height = std::max(frame.Height, leastHeight);
  if (screens.empty()) {
    return frame;
  }
  const Box& screen = ScreenOf(frame, screens);
  frame.Width = std::min(frame.Width, screen.Width);
  frame.Height = std::min(frame.Height, screen.Height);
  if (std::none_of(screens.begin(), screens.end(),
                   [&frame](const Box& each) { return CanBeGrabbed(frame, each); })) {
    frame.X = std::clamp(frame.X, screen.X, screen.Right() - frame.Width);
    frame.Y = std::clamp(frame.Y, screen.Y, screen.Bottom() - frame.Height);
  }
  return frame;
}

bool CanBeSeen(const Box& window, const std::vector<Box>& screens) {
  constexpr double kLeastSeen = 40.0;
  return std::any_of(screens.begin(), screens.end(), [&window](const Box& screen) {
    return Overlap(window.X, window.Width, screen.X, screen.Width) >= kLeastSeen &&
           Overlap(window.Y, window.Height, screen.Y, screen.Height) >= kLeastSeen;
  });
}

}  // namespace veerwatch
