// What the instruments would give the program: for each value the sentences that bring it, which of them is
// used, and what stands there now. It reads the lines of the assistant's candidates into a record of its own;
// the program's is not touched. What is chosen here goes into settings by ApplyTo.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "connect/CalibrationDesk.h"
#include "instruments/InstrumentRecord.h"
#include "nmea/Dispatcher.h"
#include "nmea/SentenceTable.h"
#include "platform/Clock.h"
#include "settings/Settings.h"

namespace veerwatch {

enum class BoatValue { WindApparent, WindTrue, Heading, BoatSpeed, Variation, Waypoint };
inline constexpr std::size_t kBoatValues = 6;

/// What may bring a value, as it stands in its list, with its pace: "HDG 5/s", "computed".
struct ValueSource {
  std::string Name;
  std::string Text;
};

class ValueDesk {
 public:
  /// `present` are the settings of now, which the choices begin with.
  explicit ValueDesk(const Settings& present);
  ValueDesk(const ValueDesk&) = delete;
  ValueDesk& operator=(const ValueDesk&) = delete;

  /// Nothing has come yet, and nothing is chosen.
  void Restart();
  /// Takes a sentence whose frame is good.
  void Take(std::string_view line, const Moment& now);

  /// What brings a value, the best first.
  std::vector<ValueSource> Sources(BoatValue value, const Moment& now) const;
  /// Chooses one by its name. One that does not come counts as none.
  void Choose(BoatValue value, const std::string& name);
  /// The name of the one that is used: what was chosen, else the best; "" for none.
  std::string Chosen(BoatValue value) const;

  /// What it says now, as "-32 deg, 14.2 kn"; "--" for nothing in the last five seconds.
  std::string Figure(BoatValue value, const Moment& now) const;
  /// What follows when nothing brings it, as "no boat speed: the apparent wind only"; "" when something does.
  std::string Missing(BoatValue value) const;

  /// Sets the sources and the sentences that bring what is chosen. Sentences that did not come, and values
  /// that nothing brings, stay as they are.
  void ApplyTo(Settings& settings) const;

  /// What vane, log and compass ought to be set to, and where it is set.
  const CalibrationDesk& Calibration() const { return m_calibration; }
  void SetWindOffset(float offset);
  void SetSpeedFactor(float factor);
  void SetHeadingOffset(float offset);

  /// What the chosen sentences give.
  const InstrumentRecord& Record() const { return *m_record; }

 private:
  /// A sentence that brings a value.
  struct Bringer {
    BoatValue Value;
    const char* Name;           ///< in its list
    std::string_view Sentence;  ///< "" where it is computed
    long Count = 0;
    std::int64_t First = 0;  ///< [ms, steady]
    std::int64_t Last = 0;
  };

  void Calibrate(float Settings::*setting, float value);
  void See(BoatValue value, std::string_view sentence, const Moment& now);
  void SeeAll(const SentenceKind& kind, const Readings& readings, const Moment& now);
  bool There(const Bringer& bringer) const;
  bool Comes(BoatValue value) const { return !Chosen(value).empty(); }
  const Bringer* Used(BoatValue value) const;
  bool IsUsed(std::string_view sentence) const;

  const Settings m_present;
  Settings m_chosen;      ///< with what is chosen, for the record
  Settings m_calibrated;  ///< of which only the three that calibrate count
  CalibrationDesk m_calibration{m_calibrated};
  std::optional<InstrumentRecord> m_record;
  std::optional<Dispatcher> m_dispatcher;
  std::vector<Bringer> m_bringers;
  std::array<std::string, kBoatValues> m_wanted;  ///< names that were chosen
  bool m_otherUnit = false;                       ///< a wind came in another unit than knots
};

}  // namespace veerwatch
