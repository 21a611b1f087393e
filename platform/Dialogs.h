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
  /// The same under a warning sign.
  virtual bool WarnYesNo(const std::string& title, const std::string& text) = 0;
  /// Shows a message and does not wait for the user, so that nothing else stands still meanwhile.
  virtual void Inform(const std::string& title, const std::string& text) = 0;
  /// An input box that starts with `preset`; what stands in it at the end, nothing when it was cancelled.
  virtual std::optional<std::string> AskText(const std::string& title, const std::string& prompt,
                                             const std::string& preset) = 0;
  /// Lets the user choose a file that there is, starting at `proposed`; its whole name, nothing when it was
  /// cancelled. `filter` is a description and a pattern with a bar between them, as "(*.pol)|*.pol".
  virtual std::optional<std::string> OpenFile(const std::string& filter, const std::string& proposed) = 0;
  /// The same for a file to write; asks nothing about one that there is already.
  virtual std::optional<std::string> SaveFile(const std::string& filter, const std::string& proposed) = 0;
  /// Asks for a file to write to and, before it replaces one, whether it may. `filter` is as "Pictures
  /// (*.png)"; `proposed` is a file name without folder. The path is in UTF-8, with the filter's ending where
  /// the user typed none; nothing when it was cancelled.
  virtual std::optional<std::string> ExportFile(const std::string& title, const std::string& filter,
                                                const std::string& proposed) = 0;
  /// Lets the user choose a colour, 0xBBGGRR, starting at `present`; nothing when it was cancelled.
  virtual std::optional<std::uint32_t> PickColour(std::uint32_t present) = 0;
  /// Shows a page, a file on this computer, in the desktop's browser; false when nothing there shows pages.
  virtual bool ShowPage(const std::string& file) = 0;
  /// Sounds the desktop's beep once.
  virtual void Beep() = 0;
  /// Brings the main window in front of all others.
  virtual void ToForeground() = 0;
  /// Whether the main window is the one that the user works in.
  virtual bool IsForeground() const = 0;
};

}  // namespace veerwatch
