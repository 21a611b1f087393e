#include "options/DeviceChoices.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

DeviceChoices::DeviceChoices(std::vector<PortEntry> named, DeviceExists exists)
    : m_named(std::move(named)), m_exists(std::move(exists)) {
  Plug({});
}

bool DeviceChoices::Plug(const std::vector<FoundPort>& found) {
  std::vector<DeviceRow> rows;
  for (const FoundPort& port : found) {
    std::string text = port.Device;
    if (!port.Description.empty()) {
      text += " - " + port.Description;
    }
    if (!port.SerialNumber.empty()) {
      text += Filled(Tr(", serial number %1"), {port.SerialNumber});
    }
    rows.push_back({VisibleText(text + NumbersOf(port.Device)), port.Device});
  }
  for (const PortEntry& entry : m_named) {
    rows.push_back({VisibleText(Filled(Tr("Port %1: %2"), {std::to_string(entry.Number), entry.Endpoints})),
                    entry.Endpoints});
  }
  return std::exchange(m_rows, std::move(rows)) != m_rows;
}

/// " (port 1)" where a port leads to that device, at whatever rate; "" for none.
std::string DeviceChoices::NumbersOf(std::string_view device) const {
  for (const PortEntry& entry : m_named) {
    const auto parsed = ParseEndpoints(entry.Endpoints, m_exists);
    const auto* endpoints = std::get_if<std::vector<Endpoint>>(&parsed);
    if (endpoints != nullptr && std::any_of(endpoints->begin(), endpoints->end(), [&](const Endpoint& one) {
          return one.What == Endpoint::Kind::Device && one.Path == device;
        })) {
      return Filled(Tr(" (port %1)"), {std::to_string(entry.Number)});
    }
  }
  return {};
}

std::string DeviceChoices::Wrong(std::string_view text) const {
  if (Trim(text).empty()) {
    return Tr("Choose a device of the list, or type one.");
  }
  const auto parsed = ParseEndpoints(text, m_exists);
  const auto* wrong = std::get_if<std::string>(&parsed);
  return wrong != nullptr ? *wrong : std::string();
}

std::string DeviceChoices::Remark(std::string_view text) const {
  const auto parsed = ParseEndpoints(text, m_exists);
  std::string remark;
  if (const auto* endpoints = std::get_if<std::vector<Endpoint>>(&parsed)) {
    for (const Endpoint& one : *endpoints) {
      const bool onDisk = one.What == Endpoint::Kind::Device || one.What == Endpoint::Kind::File;
      if (onDisk && !m_exists(one.Path)) {
        remark += (remark.empty() ? "" : "; ") + Filled(Tr("%1 is not there now"), {one.Path});
      }
    }
  }
  return remark;
}

DevicePick DeviceChoices::PickFor(std::string_view text, int number) const {
  DevicePick pick{number, false, std::string(Trim(text))};
  for (const PortEntry& entry : m_named) {
    // A port of its own stays where it is, also when another one leads there, too.
    if (entry.Endpoints == pick.Endpoints && (!pick.IsNamed || entry.Number == number)) {
      pick.Number = entry.Number;
      pick.IsNamed = true;
    }
  }
  return pick;
}

}  // namespace veerwatch
