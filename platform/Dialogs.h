// The one door for everything that asks or calls the user: message boxes, file and colour dialogs, the beep,
// the foreground. Nothing here waits for the user: each question stands open in front of its window and calls
// back, and everything else goes on. DialogsQt is the real one; tests answer in the user's place.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QWidget;  // a window of the toolkit: named here, known to the adapter alone

namespace veerwatch {

/// What one window asks and tells its user. A question blocks this window and no other.
///
/// `answer` is called once, when the user has answered; who cancels or closes a question has answered with
/// false or with nothing. It is not called when the question is withdrawn: because the window is hidden, or
/// because this object ends. So whatever the object's owner holds is there when an answer comes; whatever
/// else a question rested on may have changed meanwhile. While a question of the window is open no other one
/// is asked: the open one comes to the front, and the new `answer` is dropped. An answer may ask the next
/// question. With dialogs that need no user, in tests, it may come before the call returns.
class WindowDialogs {
 public:
  using YesNo = std::function<void(bool yes)>;
  using Text = std::function<void(const std::optional<std::string>& text)>;
  using Colour = std::function<void(std::optional<std::uint32_t> colour)>;

  virtual ~WindowDialogs() = default;
  /// Asks with "Yes" and "No" under an information sign. A carriage return in `text` breaks the line.
  virtual void AskYesNo(const std::string& title, const std::string& text, YesNo answer) = 0;
  /// The same under a warning sign.
  virtual void WarnYesNo(const std::string& title, const std::string& text, YesNo answer) = 0;
  /// Shows a message that blocks nothing. It takes the place of the same one that is still open, and goes
  /// when the window is hidden.
  virtual void Inform(const std::string& title, const std::string& text) = 0;
  /// An input box that starts with `preset`; the answer is what stands in it at the end.
  virtual void AskText(const std::string& title, const std::string& prompt, const std::string& preset,
                       Text answer) = 0;
  /// Lets the user choose a file that there is, starting at `proposed`; the answer is its whole name.
  /// `filter` is a description and a pattern with a bar between them, as "(*.pol)|*.pol".
  virtual void OpenFile(const std::string& filter, const std::string& proposed, Text answer) = 0;
  /// The same for a file to write; asks nothing about one that there is already.
  virtual void SaveFile(const std::string& filter, const std::string& proposed, Text answer) = 0;
  /// Asks for a file to write to and, before it replaces one, whether it may. `filter` is as "Pictures
  /// (*.png)"; `proposed` is a file name without folder. The path is in UTF-8, with the filter's ending where
  /// the user typed none.
  virtual void ExportFile(const std::string& title, const std::string& filter, const std::string& proposed,
                          Text answer) = 0;
  /// Lets the user choose a colour, 0xBBGGRR, starting at `present`.
  virtual void PickColour(std::uint32_t present, Colour answer) = 0;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// The dialogs of `window`, which keeps them as long as it wants answers.
  virtual std::unique_ptr<WindowDialogs> Of(QWidget& window) = 0;
  /// Shows a message in front of the window that the user works in.
  virtual void Inform(const std::string& title, const std::string& text) = 0;
  /// Shows a page, a file on this computer, in the desktop's browser; false when nothing there shows pages.
  virtual bool ShowPage(const std::string& file) = 0;
  /// Sounds the desktop's beep once.
  virtual void Beep() = 0;
  /// Brings the main window, with its question if it asks one, in front of all others. Questions of other
  /// windows stay open behind it.
  virtual void ToForeground() = 0;
  /// Whether the main window is the one that the user works in.
  virtual bool IsForeground() const = 0;
};

}  // namespace veerwatch
