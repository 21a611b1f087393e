#include "app/AlarmDeskQt.h"

#include <QStringList>
#include <algorithm>

#include "alarms/AlarmLines.h"
#include "app/IconsQt.h"
#include "draw/DrawQt.h"
#include "helm/Why.h"

namespace veerwatch {

AlarmDeskQt::AlarmDeskQt(const MainWindowParts& parts, MainWindowApi& main, BannerQt& banner, QWidget& window)
    : m_parts(parts), m_main(main), m_banner(banner), m_window(window), m_told(main.Observers().Join(*this)) {
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
  ShowList();
}

void AlarmDeskQt::Mute(bool mute) {
  if (mute) {
    m_centre.Mute(m_parts.Time.Now());
  } else {
    m_centre.Unmute();
  }
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
  ShowBanner();
  ShowList();
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
      std::any_of(entries.begin(), entries.end(),
                  [](const AlarmEntry& entry) { return entry.What && !entry.Acknowledged; }),
      m_centre.Muted(now),
      std::any_of(entries.begin(), entries.end(), [](const AlarmEntry& entry) { return !entry.What; }));
}

}  // namespace veerwatch
