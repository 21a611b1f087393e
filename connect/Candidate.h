// Where a boat's instruments may be found: the serial ports that are plugged in, the usual places of the
// network, and what announces itself there. The assistant listens to each.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Endpoint.h"
#include "platform/PortFinder.h"

namespace veerwatch {

struct Candidate {
  std::string Name;      ///< for the list, as "USB serial (FTDI)" or "TCP 10110 on this computer"
  std::string Endpoint;  ///< as the profile writes it
  bool Adapter = false;  ///< a serial port that says what it is

  friend bool operator==(const Candidate& a, const Candidate& b) = default;
};

/// Each serial port with its description, at a rate that is to be found out.
std::vector<Candidate> SerialCandidates(const std::vector<FoundPort>& found);

/// TCP 10110, 2000 and 39150 on this computer, UDP 10110 and 2000 from the whole network.
std::vector<Candidate> UsualCandidates();

/// What a user types: the same TCP ports on `host`, a name or an address; with a port, as "gateway:1456",
/// that one alone. The path of a device, and an endpoint as the profile writes it, are themselves. Blanks
/// around it are dropped; none for an empty text.
std::vector<Candidate> HostCandidates(std::string_view host);

/// What a user types where one endpoint is meant: "gateway:2000" as "tcp://gateway:2000"; anything else as it
/// stands, without the blanks around it.
std::string EndpointOfPlace(std::string_view place);

/// What `avahi-browse -tpr` has printed: servers of NMEA 0183, and servers of Signal K, whose NMEA 0183 is
/// on TCP 10110. Lines of another kind, and addresses of another kind than IPv4, are passed over.
std::vector<Candidate> AnnouncedCandidates(std::string_view browsed);

/// Adds those of `more` whose endpoint `all` does not have.
void AddCandidates(std::vector<Candidate>& all, const std::vector<Candidate>& more);

/// Whether two endpoints cannot, or need not, be open at once: the same device at whatever rate, the same
/// host and port, the same port that is listened on.
bool SamePlace(const Endpoint& a, const Endpoint& b);

}  // namespace veerwatch
