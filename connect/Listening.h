// Listens to every candidate at once: the list of the assistant's first page. What the program itself has
// open stays open; its lines are taken from the helm.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "connect/Candidate.h"
#include "connect/Listener.h"
#include "helm/MainWindowApi.h"
#include "platform/Clock.h"
#include "platform/Endpoint.h"
#include "platform/NamedPort.h"
#include "platform/Profile.h"

namespace veerwatch {

class Listening final : private HelmObserver {
 public:
  /// What it works with. All but the functions outlive it.
  struct Parts {
    MainWindowApi& Main;
    const Profile& Store;
    const Clock& Time;
    NamedPort::Maker Make;
    DeviceExists Exists;
  };

  /// A row of the list.
  struct Row {
    std::string Text;     ///< name and what came, as "USB serial (FTDI), 38400: MWV R 2/s"
    std::string Details;  ///< where it leads, and each sentence with its talker
    bool Brings = false;  ///< it may be ticked
    bool Ticked = false;
    bool Over = false;  ///< its ten seconds are over
  };

  /// `line` hears of each sentence of a candidate that is ticked.
  Listening(Parts parts, Listener::Line line);

  /// Forgets all and listens to `candidates`, and to what the program has open now.
  void Begin(const std::vector<Candidate>& candidates);
  /// Listens to those that are not among them yet.
  void Add(const std::vector<Candidate>& candidates);
  /// Closes all; the rows stay as they are.
  void End();
  /// Opens those again that are ticked, after End().
  void Resume();
  /// A part of a second has passed. Ticks what brings sentences that the program reads and nobody else
  /// brings, once, when its ten seconds are over.
  void Tick();

  std::size_t Count() const { return m_rows.size(); }
  Row RowAt(std::size_t index) const;
  void SetTicked(std::size_t index, bool ticked);
  /// All rows have had their time.
  bool Over() const;
  /// The endpoints that are ticked, with the rates that were found, joined as one port; "" for none.
  std::string Ticked() const;
  /// Those that may lead to the autopilot, the likely ones first: an adapter that is silent, what is ticked,
  /// and the computer's own serial ports.
  std::vector<std::string> ForPilot() const;

 private:
  struct Heard {
    std::unique_ptr<Listener> Of;
    bool Ticked = false;
    bool Offered = false;               ///< it was ticked once, or is not to be
    std::vector<const Heard*> Twins{};  ///< others that bring the same
  };

  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override;
  void Open(const Candidate& candidate);
  /// What becomes of a line of the row that comes next.
  Listener::Line NextRow();
  /// The endpoints of a text; none for one that cannot be read.
  std::vector<Endpoint> EndpointsOf(const std::string& text) const;
  /// Looks for rows that bring the same.
  void FindTwins();
  /// What is said of them.
  static std::string TwinWords(const Heard& row);
  static bool IsTicked(const Heard* row) { return row->Ticked; }

  Parts m_parts;
  Listener::Line m_line;
  std::deque<Heard> m_rows;       ///< where each stays in its place
  std::vector<Endpoint> m_input;  ///< what the program reads from now
  std::vector<Endpoint> m_pilot;  ///< what it writes to
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
