// Where the manual tells of a window: F1 opens it there.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

struct ManualPlace {
  std::string Page;     ///< file name in docs/manual, as "polar.md"
  std::string Heading;  ///< of a part of the page; "" for its beginning

  bool operator==(const ManualPlace&) const = default;
};

/// The place for the window or dialog with that object name. `tab` is the open tab of the options dialog
/// [0, 6] or the open page of the assistant [0, 4] and counts nowhere else. The manual's first page for a
/// window that it does not know.
ManualPlace ManualPlaceOf(std::string_view window, int tab);

/// A heading as the end of a link names it: "The watch" as "the-watch".
std::string HeadingSlug(std::string_view heading);

}  // namespace veerwatch
