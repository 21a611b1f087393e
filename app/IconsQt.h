// The program's own drawings as icons.
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace veerwatch {

/// The drawing `name` ("off", "setup", "manual", "track") in `off`, and in `on` where its action is checked.
QIcon ModeIcon(const QString& name, const QColor& off, const QColor& on);

/// The icon of the program.
QIcon ProgramIcon();

}  // namespace veerwatch
