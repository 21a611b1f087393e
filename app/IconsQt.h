// The program's own drawings as icons.
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace veerwatch {

/// Width of a mode's icon by its height: the drawing is square, at its right is the gap to the text.
inline constexpr double kModeIconShare = 1.4;

/// The drawing `name` ("off", "setup", "manual", "track") in `off`, and in `on` where its action is checked.
QIcon ModeIcon(const QString& name, const QColor& off, const QColor& on);

/// The icon of the program.
QIcon ProgramIcon();

}  // namespace veerwatch
