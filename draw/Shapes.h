// What every picture is made of as numbers, before a painter strokes it: points, boxes, strokes and texts
// [px at a scale of 100 %, origin at the upper left, Y downwards]. DrawQt.h leads them to Qt's types.
#pragma once

#include <string>
#include <vector>

namespace veerwatch {

struct Point {
  double X = 0.0;
  double Y = 0.0;

  bool operator==(const Point&) const = default;
};

struct Box {
  double X = 0.0;
  double Y = 0.0;
  double Width = 0.0;
  double Height = 0.0;

  double Right() const { return X + Width; }
  double Bottom() const { return Y + Height; }
  Point Middle() const { return {X + Width / 2.0, Y + Height / 2.0}; }
  bool Contains(double x, double y) const { return x >= X && x < Right() && y >= Y && y < Bottom(); }
  /// Whether the two share an area; edges that only touch do not.
  bool Overlaps(const Box& other) const {
    return X < other.Right() && other.X < Right() && Y < other.Bottom() && other.Y < Bottom();
  }

  bool operator==(const Box&) const = default;
};

struct Circle {
  Point Middle;
  double Radius = 0.0;

  bool operator==(const Circle&) const = default;
};

/// A straight line.
struct Stroke {
  Point From;
  Point To;

  bool operator==(const Stroke&) const = default;
};

/// A line through all of its points.
using Polyline = std::vector<Point>;

/// A text of one line, in the middle of the height of its box.
struct PlacedText {
  enum class Side { Left, Middle, Right };

  std::string Text;
  Box Place;
  double Height = 0.0;  ///< of the letters' font
  Side Align = Side::Left;
};

}  // namespace veerwatch
