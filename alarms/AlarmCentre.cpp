#include "alarms/AlarmCentre.h"

#include <algorithm>
#include <cstddef>

#include "alarms/WatchText.h"
#include "platform/Language.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

bool AboutValue(Condition what) {
  return what != Condition::PilotLost && what != Condition::ManyWinds && what != Condition::PilotLineFull &&
         what != Condition::Simulation;
}

/// What the program does about a notice, and what the user can do.
AlarmEntry NoticeEntry(AlarmKind kind, const std::string& text) {
  AlarmEntry entry;
  entry.Text = text;
  switch (kind) {
    case AlarmKind::Course:
      entry.Does = Tr("Holds the leg, and turns when it is told to");
      entry.Remedy = Tr("Enter turns; Course > Sail the Course in the polar window ends it");
      break;
    case AlarmKind::Save:
      entry.Does = Tr("Keeps the settings, steers on, and tries again at the next change and at the close");
      entry.Remedy = Tr("Make room on the disk; may you write in that folder?");
      break;
    case AlarmKind::Profile:
      entry.Does = Tr("Works with the defaults");
      entry.Remedy = Tr("Close the program and look at the file");
      break;
    case AlarmKind::Pilot:
      entry.Does = Tr("Sends the pilot no sentence that would be wrong without it");
      entry.Remedy =
          Tr("Options > Data: a sentence that brings it; Options > Output: a profile that does without");
      break;
    case AlarmKind::Source:
      entry.Does = Tr("Tells it");
      entry.Remedy = Tr("Options > Data: choose the source that is there");
      break;
    case AlarmKind::Record:
      entry.Does = Tr("Records no more, and goes on with everything else");
      entry.Remedy = Tr("Make room on the disk, then File > Record Input...");
      break;
    case AlarmKind::Wind:
      entry.Does = Tr("Holds the angle that stands in the desired box");
      entry.Remedy = Tr("Options > Wind");
      break;
  }
  return entry;
}

}  // namespace

void AlarmCentre::Set(AlarmKind kind, const std::string& text) {
  const std::string visible = VisibleText(text);
  Notice& notice = m_notices[kind];
  if (notice.Text != visible) {
    notice = {visible, visible.empty()};
  }
}

void AlarmCentre::Watch(const WatchNow& watch) {
  m_watch = watch;
  for (std::size_t i = 0; i < kConditionCount; ++i) {
    if (watch.Find(static_cast<Condition>(i)) == nullptr) {
      m_acknowledged[i].reset();
    }
  }
}

void AlarmCentre::Dismiss() {
  for (auto& [kind, notice] : m_notices) {
    if (!notice.Read && !notice.Text.empty()) {
      notice.Read = true;
      return;
    }
  }
}

void AlarmCentre::Acknowledge() {
  for (const Standing& standing : m_watch.Conditions()) {
    m_acknowledged[static_cast<std::size_t>(standing.What)] = standing.Rank;
  }
}

bool AlarmCentre::Acknowledged(const Standing& standing) const {
  const auto& at = m_acknowledged[static_cast<std::size_t>(standing.What)];
  return at && *at <= standing.Rank;
}

bool AlarmCentre::Unanswered() const {
  const auto conditions = m_watch.Conditions();
  return std::any_of(conditions.begin(), conditions.end(), [this](const Standing& standing) {
    return standing.What != Condition::Simulation && !Acknowledged(standing);
  });
}

bool AlarmCentre::Muted(const Moment& now) const {
  constexpr std::int64_t kMute = 600000;  // [ms]
  return m_mutedAt && now.Steady - *m_mutedAt < kMute;
}

AlarmTone AlarmCentre::Tone(const Moment& now) const {
  constexpr std::int64_t kUnanswered = 30000;  // [ms]
  AlarmTone tone;
  if (Muted(now)) {
    return tone;
  }
  for (const Standing& standing : m_watch.Conditions()) {
    if (standing.What == Condition::Simulation || Acknowledged(standing)) {
      continue;
    }
    tone.Pattern = tone.Pattern.value_or(standing.Rank);
    tone.Rises =
        tone.Rises || (standing.Rank == Level::Red && now.Steady - standing.Since.Steady >= kUnanswered);
  }
  return tone;
}

AlarmEntry AlarmCentre::EntryOf(const Standing& standing) const {
  AlarmEntry entry;
  entry.Rank = standing.Rank;
  entry.Text = WatchText(standing);
  entry.What = standing.What;
  entry.Since = standing.Since;
  entry.Acknowledged = Acknowledged(standing);
  if (AboutValue(standing.What)) {
    entry.Value = ValueText(standing.Value, m_watch.Of(standing.Value));
  }
  entry.Does = WatchDoes(standing, m_watch);
  entry.Remedy = WatchRemedy(standing.What);
  return entry;
}

std::vector<AlarmEntry> AlarmCentre::Entries() const {
  std::vector<AlarmEntry> entries;
  for (const Standing& standing : m_watch.Conditions()) {
    entries.push_back(EntryOf(standing));
  }
  // A prompt does not wait behind what is only to be known.
  const auto notes = std::find_if(entries.begin(), entries.end(),
                                  [](const AlarmEntry& entry) { return entry.Rank == Level::Note; });
  auto prompts = static_cast<std::size_t>(notes - entries.begin());
  for (const auto& [kind, notice] : m_notices) {
    if (!notice.Read && !notice.Text.empty()) {
      const auto at = kind == AlarmKind::Course ? prompts++ : entries.size();
      entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(at), NoticeEntry(kind, notice.Text));
    }
  }
  return entries;
}

std::vector<std::string> AlarmCentre::Texts() const {
  std::vector<std::string> texts;
  for (const AlarmEntry& entry : Entries()) {
    texts.push_back(entry.Text);
  }
  return texts;
}

std::string AlarmCentre::Line() const {
  const std::vector<std::string> texts = Texts();
  if (texts.empty()) {
    return {};
  }
  return texts.size() == 1 ? texts.front()
                           : Filled(Tr("%1 +%2 more"), {texts.front(), std::to_string(texts.size() - 1)});
}

}  // namespace veerwatch
