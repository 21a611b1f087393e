// One fault on the real program: it tracks by the sentences of a simulated boat on pseudo terminals,
// something breaks on the way, and what the program says and sends is written down. Many run side by side,
// each in real time.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pilot/WireBoat.h"
#include "tests/e2e/Process.h"
#include "tests/support/Pty.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {

class FaultRun;

/// What the pilot is to get while a fault lasts, from its third second on.
enum class PilotGets {
  Sentences,  ///< one for each wind, as before
  Kept,       ///< the same, and the bearing moves by less than 3 degrees
  Nothing,
};

/// A fault and what is to come of it.
struct Fault {
  std::string Name{};   ///< as a row of a table
  std::string Text{};   ///< what the banner is to say
  double Within = 5.0;  ///< after the fault's beginning [s]
  PilotGets Pilot = PilotGets::Sentences;
  /// What arrives instead of a line of the instruments [whole, without its line end], `seconds` after the
  /// beginning; lines with line ends.
  std::function<std::string(const std::string& line, double seconds)> OnWire{};
  std::function<void(FaultRun&)> Begins{};
  std::function<void(FaultRun&)> Ends{};
  /// Lines of the profile, by their sections.
  std::map<std::string, std::string> Settings{};
  bool Apparent = false;        ///< holds the apparent wind, else the true one
  double Angle = 100.0;         ///< true wind angle at which it begins to track [deg relative]
  double WindRate = 2.0;        ///< winds a second
  bool TrueWindSensor = false;  ///< the instruments send a true wind, too
  double Lasts = 14.0;          ///< [s]
  /// The text goes when the fault is over; nothing where a newer one may stand in its place.
  std::optional<bool> Goes = true;
  double MostOff = 25.0;        ///< of the held angle, on the boat [deg]
  bool OutputFromStart = true;  ///< the pilot's port is there
};

class FaultRun {
 public:
  explicit FaultRun(const Fault& fault);

  /// False when the program does not start.
  bool Starts();
  /// Lets the time go on: to be called every few milliseconds until it is over.
  void Turn();
  bool Over() const { return m_phase == Phase::Over; }

  // For Fault::Begins and Fault::Ends.

  WireBoat& Boat() { return m_boat; }
  /// The plugs are pulled, and put in again.
  void PullInput() { Pull("in", *m_in); }
  void PullOutput() { Pull("out", *m_out); }
  void PlugInput();
  void PlugOutput();
  /// Nobody reads what the pilot is sent, and its line is full; somebody reads again, what is new.
  void PilotStopsReading() { m_pilotReads = false; }
  void PilotReadsAgain();
  /// Whatever else arrives, beside the instruments.
  void Arrives(std::string_view bytes) const { m_in->Write(bytes); }
  void Tell(const std::string& command) { m_program.Tell(command); }
  /// The whole process stands still for so long, as in a computer that is suspended [s].
  void Sleep(double seconds);

  // What came of it.

  /// When the text was shown, after the beginning [s]; nothing when it was not.
  std::optional<double> Said() const { return m_saidAt; }
  /// Every text of the banner since the beginning, for a report.
  const std::string& Texts() const { return m_texts; }
  /// Whether it was shown when everything was over.
  bool StillSaid() const { return m_shown.find(m_fault.Text) != std::string::npos; }
  /// Whether anything was shown before the beginning.
  const std::string& SaidBefore() const { return m_saidBefore; }
  /// Sentences for the pilot since the third second of the fault.
  int Sentences() const { return m_sentences; }
  /// How far the bearing moved meanwhile, at most [deg].
  double BearingMoved() const { return m_moved; }
  /// The latest sentence while the fault lasted, after its beginning [s].
  double LastSentence() const { return m_lastSentence; }
  /// How far the boat's wind angle was off the held one while the fault lasted, at most [deg].
  double Off() const { return m_off; }
  /// Whatever was no whole and good sentence.
  int BadSentences() const { return m_boat.Reader().BadSentences(); }
  bool Runs() { return m_program.Runs(); }
  const Fault& Of() const { return m_fault; }

 private:
  enum class Phase { Starts, Sails, Tracks, Broken, Mended, Over };

  double Seconds() const;
  void Next(Phase phase);
  void FillTheLine() const;
  void Sail();
  void Hear();
  void HearPilot();
  void Look();
  double HeldAngle() const;
  void Link(const char* name, const Pty& pty) const;
  /// Its name goes first: its number may be that of another terminal a moment later.
  void Pull(const char* name, Pty& pty) const;
  std::string Profile() const;

  const Fault& m_fault;
  WireBoat m_boat;
  std::unique_ptr<Pty> m_in = std::make_unique<Pty>();
  std::unique_ptr<Pty> m_out = std::make_unique<Pty>();
  TemporaryFolder m_links;  ///< the devices under names that outlive them
  Process m_program;
  std::size_t m_heard = 0;
  Phase m_phase = Phase::Starts;
  std::chrono::steady_clock::time_point m_begin;
  double m_asked = 0.0;    // what the banner shows [s]
  double m_sailed = 0.0;   // [s]
  double m_phaseAt = 0.0;  // [s]
  bool m_pilotReads = true;
  std::string m_waiting;  // bytes that the input has not taken yet
  std::string m_line;     // of the pilot
  std::string m_shown;
  std::string m_saidBefore;
  std::string m_texts;
  std::optional<double> m_saidAt;
  int m_sentences = 0;
  std::optional<double> m_bearing;
  double m_moved = 0.0;
  double m_lastSentence = 0.0;
  double m_held = 0.0;
  std::optional<double> m_wakes;  ///< it stands still until then [s]
  double m_off = 0.0;
};

}  // namespace veerwatch
