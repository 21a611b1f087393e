// Plots as SVG texts: maps of coloured cells, and curves over time.
#pragma once

#include <string>
#include <vector>

namespace veerwatch {

struct MapCell {
  std::string Text;
  std::string Colour;  ///< as SVG writes it
};

/// One map: columns along, rows downwards.
struct MapPanel {
  std::string Title;
  std::vector<std::vector<MapCell>> Cells;  ///< [row][column]
};

/// Maps that share their axes.
struct MapPlot {
  std::string AlongName;
  std::string DownName;
  std::vector<std::string> Along;
  std::vector<std::string> Down;
  std::vector<MapPanel> Panels;
  std::vector<MapCell> Key;  ///< what the colours mean
};

std::string SvgOf(const MapPlot& plot);

struct Curve {
  std::string Name;
  std::string Colour;
  std::vector<double> Values;  ///< one a second
};

/// Curves over the seconds, the scale from `least` to `most`, which are whole multiples of `step`.
struct CurvePlot {
  std::string Title;
  double Least = -10.0;
  double Most = 10.0;
  double Step = 5.0;
  std::vector<Curve> Curves;  ///< all of one length
};

/// One below the other.
std::string SvgOf(const std::vector<CurvePlot>& plots);

}  // namespace veerwatch
