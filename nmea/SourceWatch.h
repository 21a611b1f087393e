// Which sentences bring what, for who asks why a value stays blank: a source that was chosen and brings
// nothing while another one would, and a wind in a unit that is not read. Fed by the dispatcher, ticked each
// second by the receiver.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "instruments/Reading.h"
#include "nmea/SentenceTable.h"
#include "settings/Settings.h"

namespace veerwatch {

/// What became of the wind sentences, counted since the start.
struct WindCounts {
  long Used = 0;
  long Incomplete = 0;   ///< an angle, a reference, a speed or a unit was missing
  long OtherUnit = 0;    ///< in another unit than knots
  long NotChosen = 0;    ///< true wind while it is computed
  long SwitchedOff = 0;  ///< while MWV is not ticked

  long All() const { return Used + Incomplete + OtherUnit + NotChosen + SwitchedOff; }
};

class SourceWatch {
 public:
  explicit SourceWatch(const Settings& settings) : m_settings(settings) { Restart(); }

  /// The input starts again: nothing has come yet.
  void Restart();

  /// A second has passed.
  void Tick();

  /// Takes what a sentence of a type that is ticked brought. `complete`: nothing that it should hold was
  /// missing. `variationKnown`: a true course can be made magnetic.
  void Saw(const SentenceKind& kind, const Readings& readings, bool complete, bool variationKnown);
  /// A sentence of a type that is not ticked.
  void SawSwitchedOff(const SentenceKind& kind);

  /// A line for each value that its chosen source does not bring, as "Heading: nothing from RMC or VTG; HDG
  /// is there"; none in the first seconds.
  std::vector<std::string> Advice() const;

  const WindCounts& Winds() const { return m_winds; }

 private:
  enum Source {
    kHeadingHdg,
    kHeadingVhw,
    kHeadingRmc,
    kHeadingVtg,
    kSpeedVhw,
    kSpeedRmc,
    kSpeedVtg,
    kApparentWind,
    kTrueWind,
    kOtherUnit,  ///< a wind whose speed is in another unit than knots
    kSources
  };
  using Group = std::vector<Source>;

  void CountWind(const Readings& readings, bool complete);
  bool There(Source source) const;
  /// What to say of a value, "" for nothing: none of `chosen` is there while some of `others` are.
  std::string Missing(const char* value, const Group& chosen, const Group& others) const;

  const Settings& m_settings;
  std::array<int, kSources> m_age{};  ///< since it came last [s], at most kGone
  int m_running = 0;                  ///< since the start [s]
  std::string m_unit;                 ///< the one that is not read
  WindCounts m_winds;
};

}  // namespace veerwatch
