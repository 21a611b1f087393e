// The one door for everything that asks or calls the user: message boxes, the beep, the foreground.
// DialogsQt is the real one; tests answer beforehand.
#pragma once

#include <string>

namespace veerwatch {

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Asks with "Yes" and "No" under an information sign; true for Yes. A carriage return in `text` breaks the
  /// line.
  virtual bool AskYesNo(const std::string& title, const std::string& text) = 0;
  /// Sounds the desktop's beep once.
  virtual void Beep() = 0;
  /// Brings the main window in front of all others.
  virtual void ToForeground() = 0;
  /// Whether the main window is the one that the user works in.
  virtual bool IsForeground() const = 0;
};

}  // namespace veerwatch
