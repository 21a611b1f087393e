// The whole program: the main window on the real ports, timers, dialogs and profile.
#pragma once

#include <functional>

class QWidget;

namespace veerwatch {

/// Runs the program until its main window is closed, and returns its exit status; 1 when the settings could
/// not be saved, which is told in a window where the user closed it, 3 when another one runs with the same
/// profile. Once per process. `started` is called with the main window when it is shown.
int RunProgram(int argc, char* argv[], const std::function<void(QWidget&)>& started = {});

}  // namespace veerwatch
