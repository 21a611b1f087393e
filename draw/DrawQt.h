// From the numbers of a picture to Qt's types and back.
#pragma once

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QPainter>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <vector>

#include "draw/Shapes.h"

namespace veerwatch {

inline QPointF ToQt(const Point& point) { return {point.X, point.Y}; }
inline QRectF ToQt(const Box& box) { return {box.X, box.Y, box.Width, box.Height}; }
inline QLineF ToQt(const Stroke& stroke) { return {ToQt(stroke.From), ToQt(stroke.To)}; }

inline QPolygonF ToQt(const Polyline& line) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(line.size()));
  for (const Point& point : line) {
    polygon.append(ToQt(point));
  }
  return polygon;
}

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline Qt::Alignment ToQt(PlacedText::Side side) {
  switch (side) {
    case PlacedText::Side::Left:
      return Qt::AlignLeft;
    case PlacedText::Side::Right:
      return Qt::AlignRight;
    case PlacedText::Side::Middle:
      break;
  }
  return Qt::AlignHCenter;
}

/// One stroke after the other with the painter's pen.
inline void Draw(QPainter& painter, const std::vector<Stroke>& strokes) {
  for (const Stroke& stroke : strokes) {
    painter.drawLine(ToQt(stroke));
  }
}

/// With the painter's pen and brush.
inline void Draw(QPainter& painter, const Circle& circle) {
  painter.drawEllipse(ToQt(circle.Middle), circle.Radius, circle.Radius);
}

inline Point ToPoint(const QPointF& point) { return {point.x(), point.y()}; }
inline Box ToBox(const QRectF& box) { return {box.x(), box.y(), box.width(), box.height()}; }

/// The colour that is kept as 0xRRGGBB.
inline QColor FromRgb(std::uint32_t rgb) { return QColor(static_cast<QRgb>(rgb | 0xFF000000U)); }

/// The colour that is kept as 0xBBGGRR.
inline QColor FromBgr(std::uint32_t bgr) {
  constexpr std::uint32_t kByte = 0xFFU;
  return QColor(static_cast<int>(bgr & kByte), static_cast<int>((bgr >> 8U) & kByte),
                static_cast<int>((bgr >> 16U) & kByte));
}

/// The whole pixels nearest to a height of letters, at least 1.
inline int LetterPixels(double height) { return std::max(1, static_cast<int>(std::lround(height))); }

/// `base` with letters of that height [px].
inline QFont Letters(const QFont& base, double height, QFont::Weight weight = QFont::Normal) {
  QFont font(base);
  font.setPixelSize(LetterPixels(height));
  font.setWeight(weight);
  return font;
}

}  // namespace veerwatch
