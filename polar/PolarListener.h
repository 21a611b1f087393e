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
};

}  // namespace veerwatch
