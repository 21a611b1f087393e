// The colours of the main window, derived from the desktop's palette, light or dark.
#pragma once

#include <QColor>
#include <QPalette>

#include "control/TrackMode.h"

namespace veerwatch {

struct ThemeQt {
  /// A filled area and the text on it.
  struct Pair {
    QColor Fill;
    QColor Text;
  };

  explicit ThemeQt(const QPalette& palette);

  bool Dark;
  QColor Window;
  QColor Card;
  QColor Edge;   ///< line around a card
  QColor Field;  ///< inside of an entry box
  QColor Text;
  QColor Caption;
  QColor Dimmed;   ///< text that does not answer now, still legible
  QColor Accent;   ///< what is chosen
  Pair Port;       ///< nudges to port
  Pair Starboard;  ///< nudges to starboard

  /// The button of the mode that is on.
  Pair Mode(TrackMode mode) const;
};

/// `share` [0, 1] of `over` on `under`.
QColor Mixed(const QColor& under, const QColor& over, qreal share);

}  // namespace veerwatch
