#include "app/DiagnosisQt.h"

#include <QCoreApplication>
#include <QTimer>
#include <system_error>

#include "app/PortMakerQt.h"
#include "app/Report.h"
#include "app/ReportLog.h"
#include "app/ReportQt.h"
#include "app/WatchDiary.h"
#include "helm/Helm.h"
#include "platform/AtomicFile.h"
#include "platform/NamedPort.h"
#include "platform/PortNames.h"
#include "platform/Random.h"
#include "platform/TimerQt.h"
#include "settings/Settings.h"
#include "settings/SettingsTable.h"

namespace veerwatch {

namespace {

constexpr int kListens = 10000;  // [ms]
constexpr int kTick = 1000;      // [ms]

std::filesystem::path Target(const std::filesystem::path& file) {
  std::error_code error;
  return LinkTarget(file, error);
}

}  // namespace

/// A helm in Setup, which reads and sends nothing.
struct DiagnosisQt::Ears {
  Ears(Profile& profile, const Clock& clock)
      : Input(profile, PortMaker(clock), DeviceIsThere),
        Output(profile, PortMaker(clock), DeviceIsThere),
        TheHelm(Set, Input, Output, Ticks, clock, Noise),
        Log(TheHelm.Observers(), clock) {
    SettingsRead(SettingsTable(), profile, Set);
    Ticks.Interval(kTick);
    Ticks.Ticks([this] { TheHelm.Tick(); });
    TheHelm.Modes().TrackSetSetup();
  }

  Settings Set;
  NamedPort Input;
  NamedPort Output;
  TimerQt Ticks{QStringLiteral("tmrNmea")};
  SeededRandom Noise{1};
  Helm TheHelm;
  ReportLog Log;
};

DiagnosisQt::DiagnosisQt(const std::filesystem::path& profileFile)
    : m_file(profileFile), m_lock(Target(profileFile)), m_loaded(m_profile.Load(profileFile)) {
  if (!m_lock.HeldByAnother()) {
    m_ears = std::make_unique<Ears>(m_profile, m_clock);
  }
  QTimer::singleShot(m_ears ? kListens : 0, QCoreApplication::instance(), &QCoreApplication::quit);
}

DiagnosisQt::~DiagnosisQt() = default;

std::string DiagnosisQt::Text() const {
  ReportFacts facts{m_clock.Now().Wall,
                    VEERWATCH_VERSION,
                    ToolkitText(),
                    SystemText(),
                    m_profile,
                    {},
                    {},
                    {},
                    WatchLinesOf(m_file, m_clock.Now().Wall)};
  if (m_ears) {
    facts.Now = m_ears->TheHelm.Now();
    facts.Sentences = m_ears->Log.SentenceLines();
  } else {
    facts.Instead = "Another Veerwatch runs with this profile: its Help > Save Report... knows what came.";
  }
  if (m_loaded == Profile::LoadResult::Missing) {
    facts.Instead = "There is no profile: these are the defaults.";
  } else if (m_loaded == Profile::LoadResult::Unreadable) {
    facts.Instead = "The profile cannot be read: these are the defaults.";
  }
  return ReportText(facts);
}

}  // namespace veerwatch
