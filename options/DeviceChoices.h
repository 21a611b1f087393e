// What may be chosen for the number of a port, and what a choice means: the serial ports that are plugged in,
// the endpoints that the profile names already, and whatever is typed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Endpoint.h"
#include "platform/PortFinder.h"
#include "platform/PortNames.h"

namespace veerwatch {

/// One choice.
struct DeviceRow {
  std::string Text;      ///< for the list
  std::string Endpoint;  ///< for the edit line

  friend bool operator==(const DeviceRow& a, const DeviceRow& b) = default;
};

/// What a text means for a port.
struct DevicePick {
  int Number = 1;         ///< the port that leads there
  bool IsNamed = false;   ///< the profile says so already, so nothing is to be named
  std::string Endpoints;  ///< as they are named

  friend bool operator==(const DevicePick& a, const DevicePick& b) = default;
};

class DeviceChoices {
 public:
  /// `named` is what the profile names now. `exists` says whether a device is there.
  DeviceChoices(std::vector<PortEntry> named, DeviceExists exists);

  /// Takes the serial ports that are plugged in now; true when the list is another one than before.
  bool Plug(const std::vector<FoundPort>& found);

  /// Serial ports first, each with its description and the maker's serial number, then what is named.
  const std::vector<DeviceRow>& Rows() const { return m_rows; }

  /// What is wrong with a text, for the user; "" when it can be chosen.
  std::string Wrong(std::string_view text) const;

  /// What one should know of a text that can be chosen: the devices of it that are not there now; "" for
  /// nothing.
  std::string Remark(std::string_view text) const;

  /// What the text means for the port of that number. Where another port of the profile leads there, it is
  /// that one: two ports cannot share a device, one port may serve both ways.
  DevicePick PickFor(std::string_view text, int number) const;

 private:
  std::string NumbersOf(std::string_view device) const;

  std::vector<PortEntry> m_named;
  DeviceExists m_exists;
  std::vector<DeviceRow> m_rows;
};

}  // namespace veerwatch
