// The one list of all that has to be said beside the status texts: the conditions that the watch finds, and
// the notices that any part gives under its kind. It keeps them ordered, knows what was acknowledged, and
// says what is to be heard; a window shows it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "control/WatchNow.h"
#include "platform/Clock.h"

namespace veerwatch {

/// Who has a notice; the most important first.
enum class AlarmKind {
  Course,   ///< the turn that a course prompts for
  Save,     ///< the settings could not be saved
  Profile,  ///< the profile could not be read
  Pilot,    ///< sentences that were chosen for the pilot do not leave
  Source,   ///< a source of data that brings nothing
  Record,   ///< a recording that has ended by itself
  Wind,     ///< what a wind function did by itself
};

/// One line of the list.
struct AlarmEntry {
  Level Rank = Level::Note;
  std::string Text;               ///< read across the cabin
  std::optional<Condition> What;  ///< nothing for a notice
  std::optional<Moment> Since;    ///< when it was found; nothing for a notice
  bool Acknowledged = false;      ///< it makes no sound any more
  std::string Value;              ///< the quantity with its source and age; "" where it is about none
  std::string Does;               ///< what the program does about it
  std::string Remedy;             ///< what the sailor can do
};

/// What is to be heard.
struct AlarmTone {
  std::optional<Level> Pattern;  ///< nothing is to be heard
  bool Rises = false;            ///< a red one was not answered for 30 s: louder
};

class AlarmCentre {
 public:
  /// What `kind` has to say now, its control characters as pictures; "" when nothing more.
  void Set(AlarmKind kind, const std::string& text);

  /// What the watch says now: at each HelmObserver::OnWatch.
  void Watch(const WatchNow& watch);

  /// The user has read the first notice: it goes until its kind says something else.
  void Dismiss();

  /// The user has taken note of all that stands: the lines stay, the sound stops. What comes anew, or turns
  /// worse, is heard again.
  void Acknowledge();

  /// Something stands that could be heard and is not acknowledged, muted or not.
  bool Unanswered() const;

  /// Nothing is heard for ten minutes from `now`.
  void Mute(const Moment& now) { m_mutedAt = now.Steady; }
  /// It is heard again.
  void Unmute() { m_mutedAt.reset(); }
  bool Muted(const Moment& now) const;

  /// What is to be heard at `now`: the pattern of the worst that is not acknowledged. Notices and the
  /// simulation are silent.
  AlarmTone Tone(const Moment& now) const;

  /// All that stands: the worst first, of one level the newer first, then the notices by their importance; a
  /// course's prompt stands before all that is only to be known.
  std::vector<AlarmEntry> Entries() const;

  /// The texts of Entries().
  std::vector<std::string> Texts() const;

  /// The one line: the first text, and how many more there are, as "No Wind 7 s +2 more". "" for none.
  std::string Line() const;

 private:
  struct Notice {
    std::string Text;
    bool Read = false;
  };
  bool Acknowledged(const Standing& standing) const;
  AlarmEntry EntryOf(const Standing& standing) const;

  std::map<AlarmKind, Notice> m_notices;
  WatchNow m_watch;
  /// The level at which each condition was acknowledged.
  std::array<std::optional<Level>, kConditionCount> m_acknowledged{};
  std::optional<std::int64_t> m_mutedAt;  ///< [ms of the steady clock]
};

}  // namespace veerwatch
