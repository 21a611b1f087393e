// The one door for everything that asks or calls the user: message boxes, file and colour dialogs, the beep,
// the foreground. DialogsQt is the real one; tests answer beforehand.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace veerwatch {

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Asks with "Yes" and "No" under an information sign; true for Yes. A carriage return in `text` breaks the
  /// line.
  virtual bool AskYesNo(const std::string& title, const std::string& text) = 0;
  /// Tells something with one button, "OK". A carriage return in `text` breaks the line.
  virtual void Inform(const std::string& title, const std::string& text) = 0;
  /// Asks for a file to write. `filter` is as "Pictures (*.png)"; `proposed` is a file name without folder.
  /// The path is in UTF-8, with the filter's ending where the user typed none; nothing when he cancels.
  virtual std::optional<std::string> SaveFile(const std::string& title, const std::string& filter,
                                              const std::string& proposed) = 0;
  /// Asks for a colour, beginning with `bgr` [0xBBGGRR]; nothing when the user cancels.
  virtual std::optional<std::uint32_t> PickColour(std::uint32_t bgr) = 0;
  /// Sounds the desktop's beep once.
  virtual void Beep() = 0;
  /// Brings the main window in front of all others.
  virtual void ToForeground() = 0;
  /// Whether the main window is the one that the user works in.
  virtual bool IsForeground() const = 0;
};

}  // namespace veerwatch
