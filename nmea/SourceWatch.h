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
  void SawSwitchedOff(const SentenceKind& kind) { ++m_notUsed[PlaceOf(kind)]; }

  /// A line for each value that its chosen source does not bring, as "Heading: nothing from RMC or VTG; HDG
  /// is there", and for each sentence that is not ticked and could bring it, as "VWR seen 12 times, not
  /// used"; none in the first seconds.
  std::vector<std::string> Advice() const;

  WindCounts Winds() const;

 private:
  enum Source {
    kHeadingHdg,
    kHeadingVhw,
    kHeadingHdm,
    kHeadingHdt,
    kHeadingThs,
    kHeadingRmc,
    kHeadingVtg,
    kSpeedVhw,
    kSpeedRmc,
    kSpeedVtg,
    kApparentMwv,
    kApparentVwr,
    kTrueMwv,
    kTrueVwt,
    kTrueMwd,
    kOtherUnit,  ///< a wind whose speed is in another unit than knots
    kSources
  };
  using Group = std::vector<Source>;

  static std::size_t PlaceOf(const SentenceKind& kind) {
    return static_cast<std::size_t>(&kind - kSentences.data());
  }
  static const SentenceKind& KindOf(Source source);

  void CountWind(const Readings& readings, bool complete);
  bool There(Source source) const;
  /// What to say of a value, "" for nothing: none of `chosen` is there while some of `others` are. It names
  /// those of `chosen` that are ticked, or are so by default.
  std::string Missing(const char* value, const Group& chosen, const Group& others) const;
  /// Adds the sentences that are not ticked and would bring what none of `chosen` brings.
  void AddNotUsed(const Group& chosen, std::vector<std::string>& lines) const;

  const Settings& m_settings;
  std::array<int, kSources> m_age{};  ///< since it came last [s], at most kGone
  int m_running = 0;                  ///< since the start [s]
  std::string m_unit;                 ///< the one that is not read
  WindCounts m_winds;
  std::array<long, kSentences.size()> m_notUsed{};  ///< sentences of types that are not ticked
};

}  // namespace veerwatch
