// What the polar window tells; the main window passes it on.
#pragma once

#include <string_view>

namespace veerwatch {

class PolarListener {
 public:
  virtual ~PolarListener() = default;
  /// A value for the history: the channel's name and the value with its unit. Only while the window shows.
  virtual void OnPolarValue(std::string_view /*channel*/, std::string_view /*value*/) {}
  /// The window was shown or hidden.
  virtual void OnPolarVisible(bool /*visible*/) {}
  /// A turn was asked for: to `newHeading` from the present `heading` [deg magnetic, [0, 360)], with the
  /// averaged true wind at `windAngleTrue` [deg relative, negative to port].
  virtual void OnManoeuvre(float /*newHeading*/, float /*heading*/, float /*windAngleTrue*/) {}
};

}  // namespace veerwatch
