#include "app/AlarmDeskQt.h"

#include <QStringList>
#include <algorithm>

#include "alarms/AlarmLines.h"
#include "app/IconsQt.h"
#include "draw/DrawQt.h"
#include "helm/Why.h"

namespace veerwatch {

AlarmDeskQt::AlarmDeskQt(const MainWindowParts& parts, const frmMainMenu& menu, MainWindowApi& main,
                         BannerQt& banner, QWidget& window)
    : m_parts(parts),
      m_menu(menu),
      m_main(main),
      m_banner(banner),
      m_window(window),
      m_space(QKeySequence(Qt::Key_Space), &window),
      m_told(main.Observers().Join(*this)) {
  m_space.setContext(Qt::ApplicationShortcut);
  m_space.setAutoRepeat(false);
  m_space.setEnabled(false);
  QObject::connect(&m_space, &QShortcut::activated, &banner, [this] { Acknowledge(); });
  QObject::connect(menu.mnuViewAlarms, &QAction::triggered, &banner, [this] { ListShow(); });
  QObject::connect(menu.mnuViewMute, &QAction::triggered, &banner, [this](bool checked) { Mute(checked); });
  QObject::connect(&banner, &QAbstractButton::clicked, &banner, [this] {
    Acknowledge();
    ListShow();
  });
}

void AlarmDeskQt::NoticeSet(AlarmKind kind, const std::string& text) {
  m_centre.Set(kind, text);
  ShowBanner();
  ShowList();
}

void AlarmDeskQt::Acknowledge() {
  m_centre.Acknowledge();
  Sound();
  ShowList();
}

void AlarmDeskQt::Mute(bool mute) {
  if (mute) {
    m_centre.Mute(m_parts.Time.Now());
  } else {
    m_centre.Unmute();
  }
  Sound();
  ShowList();
}

void AlarmDeskQt::ListShow() {
  if (!m_list) {
    m_list = std::make_unique<frmAlarms>(
        frmAlarms::Parts{[this] { Acknowledge(); }, [this](bool mute) { Mute(mute); },
                         [this] {
                           m_centre.Dismiss();
                           ShowBanner();
                           ShowList();
                         }},
        &m_window);
    m_list->setWindowIcon(ProgramIcon());
  }
  m_list->show();
  m_list->raise();
  m_list->activateWindow();
  ShowList();
}

void AlarmDeskQt::Hide() {
  if (m_list) {
    m_list->hide();
  }
}

void AlarmDeskQt::OnWatch(const WatchNow& watch) {
  m_centre.Watch(watch);
  Sound();
  ShowBanner();
  ShowList();
}

void AlarmDeskQt::Play(const TonePattern& pattern) {
  if (m_parts.Tone == nullptr || !m_parts.Tone->Play(ToneSamples(pattern, Sounder::kRate))) {
    m_parts.Asks.Beep();
  }
}

void AlarmDeskQt::StepSounds() {
  if (m_main.m_eWatchSound == AlarmSound::Beep && !Muted()) {
    m_parts.Asks.Beep();
  }
}

void AlarmDeskQt::TurnSounds() {
  if (!Muted()) {
    Test(m_main.m_eWatchSound);
  }
}

void AlarmDeskQt::Test(AlarmSound sound) {
  if (sound == AlarmSound::Tone) {
    Play(PatternOf(Level::Red, false));
  } else {
    m_parts.Asks.Beep();
  }
}

void AlarmDeskQt::Sound() {
  const Moment now = m_parts.Time.Now();
  const bool tones = m_main.m_eWatchSound == AlarmSound::Tone;
  const bool heard = tones || !m_main.m_sWatchCommand.empty();
  const AlarmTone tone = heard ? m_centre.Tone(now) : AlarmTone{};
  m_menu.mnuViewMute->setChecked(Muted());
  m_space.setEnabled(heard && m_centre.Unanswered());
  const auto pattern = m_schedule.Next(tone, now.Steady);
  if (!pattern) {
    return;
  }
  if (tones) {
    Play(*pattern);
  }
  if (m_parts.Buzzer != nullptr && !m_main.m_sWatchCommand.empty()) {
    m_parts.Buzzer->Run(m_main.m_sWatchCommand, m_centre.Line());
  }
}

void AlarmDeskQt::ShowBanner() {
  const std::vector<AlarmEntry> entries = m_centre.Entries();
  if (entries.empty()) {
    m_banner.Show(Level::Note, QString(), 0);
    return;
  }
  m_banner.Show(entries.front().Rank, ToQt(entries.front().Text), static_cast<int>(entries.size()) - 1);
}

void AlarmDeskQt::ShowList() {
  if (!m_list || !m_list->isVisible()) {
    return;
  }
  const Moment now = m_parts.Time.Now();
  const std::int32_t offset = m_parts.Time.UtcOffset(now.Wall);
  const std::vector<AlarmEntry> entries = m_centre.Entries();
  std::vector<frmAlarms::Block> blocks;
  for (const AlarmEntry& entry : entries) {
    QStringList lines;
    for (const std::string& line : AlarmLines(entry, now, offset)) {
      lines.append(ToQt(line));
    }
    blocks.push_back({entry.Rank, ToQt(entry.Text), lines.join(QLatin1Char('\n'))});
  }
  const Why why = m_main.Now().Sentence;
  m_list->Show(blocks, why.Sent ? ToQt(WhyText(why)) : QString());
  m_list->ShowButtons(
      m_centre.Unanswered(), m_centre.Muted(now),
      std::any_of(entries.begin(), entries.end(), [](const AlarmEntry& entry) { return !entry.What; }));
}

}  // namespace veerwatch
