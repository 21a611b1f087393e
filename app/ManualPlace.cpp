#include "app/ManualPlace.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace veerwatch {

namespace {

struct Row {
  std::string_view Window;
  const char* Page;
  const char* Heading;
};

constexpr std::array<Row, 12> kPlaces{{{"frmMain", "main-window.md", ""},
                                       {"frmPolar", "polar.md", ""},
                                       {"frmHistory", "history.md", ""},
                                       {"frmConfigPopup", "history.md", ""},
                                       {"frmDiagram", "settings.md", "Diagram"},
                                       {"frmAlarms", "main-window.md", "The banner"},
                                       {"frmTack", "tacking.md", ""},
                                       {"frmTurn", "tacking.md", "Then track"},
                                       {"dlgDevice", "connecting.md", "Ports"},
                                       {"dlgWindLimits", "wind-functions.md", ""},
                                       {"dlgRecommended", "settings.md", "Recommended"},
                                       {"PilotTest", "your-autopilot.md", "Five minutes"}}};

// In the order of the options' tabs.
constexpr std::array<const char*, 7> kTabs{"Input",    "Data",    "Output", "Tracking",
                                           "Simulate", "Diagram", "Watch"};

// In the order of the assistant's pages.
constexpr std::array<const char*, 5> kPages{"1. Instruments", "2. Values", "3. Autopilot", "4. How it steers",
                                            "5. Ready"};

/// The heading at `index`; "" for an index that is none.
template <std::size_t Count>
const char* HeadingAt(const std::array<const char*, Count>& headings, int index) {
  const bool known = index >= 0 && static_cast<std::size_t>(index) < Count;
  return known ? headings[static_cast<std::size_t>(index)] : "";
}

}  // namespace

ManualPlace ManualPlaceOf(std::string_view window, int tab) {
  if (window == "frmOptions") {
    return {"settings.md", HeadingAt(kTabs, tab)};
  }
  if (window == "frmConnect") {
    return {"assistant.md", HeadingAt(kPages, tab)};
  }
  const auto* const row =
      std::find_if(kPlaces.begin(), kPlaces.end(), [window](const Row& one) { return one.Window == window; });
  return row == kPlaces.end() ? ManualPlace{"README.md", ""} : ManualPlace{row->Page, row->Heading};
}

std::string HeadingSlug(std::string_view heading) {
  std::string slug;
  for (const char c : heading) {
    if (c >= 'A' && c <= 'Z') {
      slug += static_cast<char>(c - 'A' + 'a');
    } else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-') {
      slug += c;
    } else if (c == ' ') {
      slug += '-';
    }
  }
  return slug;
}

}  // namespace veerwatch
