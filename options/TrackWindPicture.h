// The plot of the three methods on the wind that was recorded, as plain numbers.
#pragma once

#include <vector>

#include "options/TrackPreview.h"
#include "options/TrackWindRun.h"

namespace veerwatch {

/// What is drawn.
struct TrackWindInputs {
  Settings Tuning;  ///< bandwidth, damping, limits and averages
  double Lag = 0.0;
  std::vector<WindSample> Winds;
};

/// Runs every method and draws the error of each as the mean of ten seconds, beneath a legend of
/// `legendHeight`, for a size [plot units]. The largest error gives the scale; what allows no run ends in
/// Trouble.
TrackPreview TrackWindDraw(const TrackWindInputs& inputs, int width, int height, int legendHeight);

}  // namespace veerwatch
