// What tests look at in a grabbed window: its colours, whether its texts can be read, and where its picture
// is kept.
#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QString>
#include <algorithm>

#include "tests/ui/Contrast.h"

namespace veerwatch {

/// Keeps a picture for whoever wants to look at it: NAME.png in `pictures` beside the test program.
inline void KeepPicture(const QImage& image, const QString& name) {
  const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/pictures"));
  folder.mkpath(QStringLiteral("."));
  image.save(folder.filePath(name + QStringLiteral(".png")));
}

/// The part of a grab that `area` [px of the window] shows.
inline QImage PartOf(const QImage& grab, const QRect& area) {
  const double ratio = grab.devicePixelRatio();
  return grab.copy(QRectF(area.x() * ratio, area.y() * ratio, area.width() * ratio, area.height() * ratio)
                       .toAlignedRect()
                       .intersected(grab.rect()));
}

/// The colour that most of a picture has: what a text in it stands on.
inline QColor GroundOf(const QImage& image) {
  QHash<QRgb, int> counts;
  QRgb most = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (++counts[pixel] > counts.value(most)) {
        most = pixel;
      }
    }
  }
  return QColor::fromRgb(most);
}

/// The best contrast of anything in a picture with its ground: that of the text, where it shows one.
inline double InkContrast(const QImage& image) {
  const QColor ground = GroundOf(image);
  double best = 1.0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      best = std::max(best, ContrastRatio(image.pixelColor(x, y), ground));
    }
  }
  return best;
}

}  // namespace veerwatch
