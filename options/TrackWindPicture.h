// The plot of the three methods on the wind that was recorded, as plain numbers.
#pragma once

#include <string>
#include <vector>

#include "options/TrackPreview.h"
#include "options/TrackWindRun.h"

namespace veerwatch {

/// What is drawn.
struct TrackWindInputs {
  Settings Tuning;  ///< limits and averages
  // The boxes as typed.
  std::string Bandwidth;  ///< [s]
  std::string Damping;
  std::string Lag;  ///< of the boat [s]
  std::vector<WindSample> Winds;
};

/// Runs every method and draws the error of each as the mean of ten seconds, beneath a legend of
/// `legendHeight`, for a size [plot units]. The largest error of the methods that hold the wind within 20
/// degrees gives the scale, and what lies beyond it is for the painter to cut; text that is not a number, and
/// what allows no run, end in Trouble.
TrackPreview TrackWindDraw(const TrackWindInputs& inputs, int width, int height, int legendHeight);

}  // namespace veerwatch
