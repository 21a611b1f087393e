// Listens to one candidate for ten seconds and says in one line what came, or why nothing did. On a serial
// line the ten seconds begin when its rate is found. Afterwards it goes on, so that whoever has ticked it
// sees what comes; a candidate that brought nothing is closed.
//
// What the program has open already is not opened twice: such a listener is told the lines, by Hear.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "connect/Candidate.h"
#include "connect/HeardLines.h"
#include "nmea/LineFault.h"
#include "nmea/LineFramer.h"
#include "platform/Clock.h"
#include "platform/NamedPort.h"
#include "platform/SerialPort.h"

namespace veerwatch {

class Listener final : private SerialPort::Events {
 public:
  static constexpr std::int64_t kListens = 10'000;  ///< [ms]
  /// What finding a rate may take: each one for three seconds [ms].
  static constexpr std::int64_t kSearches = 19'000;

  /// Hears of each good line.
  using Line = std::function<void(std::string_view line, const Moment& now)>;

  /// Opens the candidate. `make` and `exists` as for NamedPort; `clock` outlives this.
  Listener(Candidate candidate, const NamedPort::Maker& make, const DeviceExists& exists, const Clock& clock,
           Line line);
  /// One that the program itself has open: the port that it reads from.
  Listener(Candidate candidate, const Clock& clock, Line line);
  /// One that is not opened; `why` says so in the line.
  Listener(Candidate candidate, const Clock& clock, std::string why);

  /// A part of a second has passed.
  void Tick();
  /// Closes the port; what was heard stays.
  void Close();
  /// Opens the port again.
  void Open();
  /// A line of the port that the program itself has open.
  void Hear(std::string_view line, LineFault fault);

  const Candidate& Of() const { return m_candidate; }
  /// Its endpoint for the profile, with the rate that was found.
  std::string LeadsTo() const;
  /// The rate of the serial line, once it is found [baud].
  const std::optional<int>& Rate() const { return m_rate; }
  /// It is told the lines.
  bool InUse() const { return m_inUse; }
  /// The ten seconds are over, or it has failed: the line changes no more but for the counts.
  bool Over() const { return m_over; }
  /// Sentences came, so it may be ticked.
  bool Brings() const { return m_heard.Sentences() > 0; }
  const HeardLines& Heard() const { return m_heard; }
  /// What to say of it beside its name, as "38400: MWV R 2/s, HDG 5/s", "nothing comes" or "no such device".
  std::string Says() const;

 private:
  void OnComm(int commEvent) override;
  void OnPortLost() override;
  void Take(std::string_view line);
  /// Why there is nothing, by what the port complains of.
  std::string Silence() const;
  /// What the port complains of, in the words of a row; "" for nothing.
  std::string Complaint() const;
  /// What to add for one that brought sentences and has been silent for more than ten seconds; "" for others.
  std::string Stopped() const;
  void End(std::string why);
  bool Searching() const;

  Candidate m_candidate;
  const Clock& m_clock;
  Line m_line;
  std::unique_ptr<SerialPort> m_port;  ///< null for one in use, or one that has failed
  std::string m_place;                 ///< what its reasons begin with
  bool m_device = false;
  bool m_inUse = false;
  std::int64_t m_begun;     ///< when the ten seconds, or the search of the rate, began [ms, steady]
  std::int64_t m_last = 0;  ///< when a line came last [ms, steady]
  bool m_over = false;
  std::string m_why;  ///< what is wrong; "" for nothing
  std::optional<int> m_rate;
  LineFramer m_framer;
  HeardLines m_heard;
  std::string m_input;
  SerialPort::Connection m_connection;
};

}  // namespace veerwatch
