// A dark desktop's palette.
#pragma once

#include <QPalette>

namespace veerwatch {

inline QPalette DarkPalette() {
  QPalette palette(QColor(0x2a, 0x2d, 0x31), QColor(0x1b, 0x1e, 0x22));
  palette.setColor(QPalette::Base, QColor(0x12, 0x14, 0x17));
  palette.setColor(QPalette::WindowText, QColor(0xe6, 0xea, 0xee));
  palette.setColor(QPalette::Text, QColor(0xe6, 0xea, 0xee));
  palette.setColor(QPalette::ButtonText, QColor(0xe6, 0xea, 0xee));
  return palette;
}

}  // namespace veerwatch
