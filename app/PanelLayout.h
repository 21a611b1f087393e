// Where everything stands on the instrument panel: pure arithmetic from the panel's size, so that at any
// size the places neither overlap nor leave the panel. Used by InstrumentPanelQt.
#pragma once

#include <array>
#include <vector>

#include "draw/Shapes.h"

namespace veerwatch {

/// All places count from the panel's upper left corner.
struct PanelLayout {
  /// A value with its caption above it.
  struct Readout {
    Box Caption;
    Box Value;
  };

  /// The card of one wind: what is measured above, what is held below.
  struct Wind {
    Box Card;
    Box Option;
    Readout Angle;
    Readout Speed;
    Readout Desired;
    Readout Delta;
    Box Port;
    Box Starboard;
  };

  struct Instrument {
    Box Card;
    Readout Value;
  };

  /// The card of the autopilot bearing.
  struct Pilot {
    Box Card;
    Readout Bearing;
    Box Heading;  ///< the boat's heading, under the bearing
    Box Sent;     ///< how long ago the bearing was sent, beside it
    Box Follows;  ///< what the boat makes of it, under both
    Box Port;
    Box Starboard;
  };

  Box Banner;                 ///< above all cards; its room stays free while nothing is said
  std::array<Wind, 2> Winds;  ///< apparent, true
  Instrument Heading;
  Instrument BoatSpeed;
  Instrument Waypoint;
  Pilot AutoPilot;

  double Margin = 0.0;       ///< between cards and to the panel's edge [px]
  double CaptionText = 0.0;  ///< height of caption texts [px], at least 6
  double BannerText = 0.0;   ///< height of the banner's text [px], at least 6
  double ButtonText = 0.0;   ///< height of texts on buttons and options [px], at least 6
};

/// The places for a panel of `width` by `height` [px, above 0]. A wide panel has the winds side by side above
/// one row of instruments, a tall one has everything in two columns.
PanelLayout LayPanel(double width, double height);

/// Widths [px] of status panels side by side that share `room`. Each has its part of it, as `shares` (above
/// 0) weigh them; one that needs more for its text, as `needed` says, takes it from those that have more than
/// they need. Where the room is not enough for all, the widest give way, down to one width.
std::vector<double> ShareRoom(double room, const std::vector<double>& shares,
                              const std::vector<double>& needed);

}  // namespace veerwatch
