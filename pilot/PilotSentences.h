// Builds what leaves for the pilot in one step, as a bundle: PilotOutput sends it, the options dialog shows
// it. One text for each bearing stands in all of its sentences.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pilot/PilotBundle.h"
#include "pilot/PilotForm.h"
#include "platform/Clock.h"

namespace veerwatch {

class InstrumentRecord;

/// What a step has to say.
struct PilotValues {
  /// A bearing [deg magnetic, [0, 360], finite] that is good, without anything else.
  PilotValues(float bearing) : Bearing(bearing) {}  // NOLINT(google-explicit-constructor): mostly just that

  float Bearing;
  bool Good = true;                ///< else the sentences say that they do not hold
  std::optional<float> Variation;  ///< where it is known [deg, east positive]
  bool OldVariation = false;       ///< one was known, and is too old
  struct Apparent {
    float Angle = 0.0F;  ///< [deg relative, [-180, 180]]
    float Speed = 0.0F;  ///< [kn]
  };
  std::optional<Apparent> Wind;
};

/// `bearing` [deg magnetic] with what the record holds at `now`: the smoothed apparent wind, and a variation
/// that is at most an hour old. A simulated one is always of now.
PilotValues PilotValuesOf(float bearing, const InstrumentRecord& record, const Settings& settings,
                          const Moment& now);

/// Why sentences that were chosen do not leave.
struct PilotRefusal {
  enum class Why {
    None,
    NoVariation,   ///< a true bearing is wanted
    OldVariation,  ///< the same, and the variation is older than an hour
    NoSentence,    ///< none was chosen
    NoWind,        ///< there is none to send
  };
  Why Reason = Why::None;
  PilotType First = PilotType::Apb;  ///< of those that need a variation
  bool operator==(const PilotRefusal&) const = default;
};

/// "True APB Needs the Variation", "RMB: Variation Older Than 1 h", "No Sentence Chosen", "No Wind to Send";
/// "" for none.
std::string PilotRefusalText(const PilotRefusal& refusal);

class PilotSentences {
 public:
  /// What a sentence is made of.
  struct Parts {
    const PilotForm& Form;
    std::string_view Magnetic;  ///< the bearing as its text
    std::string_view True;
    bool Good = true;

    /// The bearing of APB, and its letter.
    std::string_view Bearing() const { return Form.True ? True : Magnetic; }
    std::string_view Kind() const { return Form.True ? "T" : "M"; }
    std::string_view Status() const { return Good ? "A" : "V"; }
    /// Adds the mode where it is wanted.
    void AddMode(PilotBundle& bundle) const;
  };

  /// Builds the bundle in place of the one before; nothing is allocated. Sentences that need a true bearing
  /// are left out where it is not known, and all where APB is one of them: never is a magnetic number called
  /// true. Of values that are not good only sentences with a status, or a mode, are built.
  PilotRefusal Build(const PilotForm& form, const PilotValues& values);

  const PilotBundle& Bundle() const { return m_bundle; }

 private:
  PilotRefusal BuildWind(const PilotForm& form, const PilotValues& values);
  void Add(PilotType type, const Parts& parts);

  PilotBundle m_bundle;
};

}  // namespace veerwatch
