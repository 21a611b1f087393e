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

constexpr std::array<Row, 13> kPlaces{{{"frmMain", "main-window.md", ""},
                                       {"frmPolar", "polar.md", ""},
                                       {"frmHistory", "history.md", ""},
                                       {"frmConfigPopup", "history.md", ""},
                                       {"frmDiagram", "settings.md", "Diagram"},
                                       {"frmAlarms", "main-window.md", "The banner"},
                                       {"frmTack", "tacking.md", ""},
                                       {"frmTurn", "tacking.md", "Then track"},
                                       {"frmConnect", "assistant.md", ""},
                                       {"dlgDevice", "connecting.md", "Ports"},
                                       {"dlgWindLimits", "wind-functions.md", ""},
                                       {"dlgRecommended", "settings.md", "Recommended"},
                                       {"PilotTest", "your-autopilot.md", "Five minutes"}}};

// In the order of the options' tabs.
constexpr std::array<const char*, 7> kTabs{"Input",    "Data",    "Output", "Tracking",
                                           "Simulate", "Diagram", "Watch"};

}  // namespace

ManualPlace ManualPlaceOf(std::string_view window, int tab) {
  if (window == "frmOptions") {
    const bool known = tab >= 0 && static_cast<std::size_t>(tab) < kTabs.size();
    return {"settings.md", known ? kTabs[static_cast<std::size_t>(tab)] : ""};
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
