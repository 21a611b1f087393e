// A boat on two pseudo terminals: what her instruments send, and her pilot listening.
#pragma once

#include <string>
#include <string_view>

#include "pilot/WireBoat.h"
#include "tests/support/Pty.h"

namespace veerwatch {

class Wire {
 public:
  const std::string& Instruments() const { return m_instruments.Device(); }
  const std::string& Pilot() const { return m_pilot.Device(); }
  const WireBoat& Boat() const { return m_boat; }

  /// Lets the boat sail on, and gives her pilot what the program sent.
  void Sail(double seconds) {
    const std::string sent = m_boat.Step(seconds);
    m_winds += CountOf(sent, "MWV");
    m_waiting += sent;
    m_waiting.erase(0, m_instruments.Write(m_waiting));
    m_boat.Steer(m_pilot.Read());
  }

  /// Wind sentences that went out.
  std::size_t Winds() const { return m_winds; }

 private:
  static std::size_t CountOf(std::string_view text, std::string_view what) {
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + what.size())) {
      ++count;
    }
    return count;
  }

  Pty m_instruments;
  Pty m_pilot;
  WireBoat m_boat{GustyBoat(), 280.0, 1};
  std::string m_waiting;
  std::size_t m_winds = 0;
};

}  // namespace veerwatch
