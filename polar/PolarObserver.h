// What the polar window tells; the main window passes it on.
#pragma once

#include <string_view>

namespace veerwatch {

/// What the button says that a turn is asked for with.
enum class TurnButton { Steer, Tack, Jibe };

class PolarObserver {
 public:
  virtual ~PolarObserver() = default;
  /// A value for the history: the channel's name and the value with its unit. Only while the window shows.
  virtual void OnPolarValue(std::string_view /*channel*/, std::string_view /*value*/) {}
  /// The window was shown or hidden.
  virtual void OnPolarVisible(bool /*visible*/) {}
  /// A turn was asked for: to `newHeading` from the present `heading` [deg magnetic, [0, 360)], which is not
  /// averaged, with the averaged true wind at `windAngleTrue` [deg relative, negative to port].
  virtual void OnManoeuvre(TurnButton /*button*/, float /*newHeading*/, float /*heading*/,
                           float /*windAngleTrue*/) {}
  /// The course is to be sailed from now on, or no more.
  virtual void OnSailCourse(bool /*wanted*/) {}
  /// The turn that the course prompts for is to be made now.
  virtual void OnSailTurn() {}
};

}  // namespace veerwatch
