// The serial ports that are plugged in at this moment. PortFinderQt is the real one; tests have lists.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace veerwatch {

struct FoundPort {
  std::string Device;        ///< path, one that lasts where the system has one
  std::string Description;   ///< of the adapter; "" where it says nothing
  std::string SerialNumber;  ///< the maker's; "" for none

  friend bool operator==(const FoundPort& a, const FoundPort& b) = default;
};

class PortFinder {
 public:
  virtual ~PortFinder() = default;
  /// In the order of their names.
  virtual std::vector<FoundPort> Found() const = 0;
};

/// The name of `device` among the links of `folder`, which stays the same whatever is plugged in first; the
/// first one in the order of their names. `device` itself where there is none.
std::string LastingName(const std::string& device, const std::filesystem::path& folder = "/dev/serial/by-id");

}  // namespace veerwatch
