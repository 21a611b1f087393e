// The colours of the main window, derived from the palette that it wears: light, dark or the night's.
#pragma once

#include <QColor>
#include <QPalette>

#include "platform/ColoursQt.h"
#include "settings/TrackMode.h"

namespace veerwatch {

struct ThemeQt {
  /// A filled area and the text on it.
  struct Pair {
    QColor Fill;
    QColor Text;
  };

  explicit ThemeQt(const QPalette& palette);

  bool Dark;
  bool Night;
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

  /// A button of that pair that does not answer now.
  Pair Resting(const Pair& pair) const;

  /// The button of the mode that is on.
  Pair Mode(TrackMode mode) const;
};

/// Dresses every window of the program in the night palette, or again in that of the desktop.
void WearNightColours(bool night);

}  // namespace veerwatch
