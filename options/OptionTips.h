// What the tool tip of a control of the options dialog says besides its hint: the unit and the range of the
// number in it, as the settings' table has them, and when to change it.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace veerwatch {

/// A control and what its tip says.
struct OptionTip {
  std::string_view Control;  ///< its name
  const char* When;          ///< a sentence, marked for the catalogues
  // The key of the setting that is typed into it; "" for what is chosen or pressed, and for no setting.
  std::string_view Section{};
  std::string_view Key{};
};

/// A row for each control in which something is set, page by page.
std::span<const OptionTip> OptionTips();

/// The tip of the control with that name: its `hint`, "Range: above 0, in s." where something is typed into
/// it, and the sentence, each on lines of its own of about 50 characters, in the user's language. The hint
/// alone for a control without a row, such as one that only shows something.
std::string OptionTipText(std::string_view control, const std::string& hint);

}  // namespace veerwatch
