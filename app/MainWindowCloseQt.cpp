// The close of the main window, and what writes the profile.

#include <QCloseEvent>
#include <cstdio>
#include <utility>

#include "app/frmMain.h"
#include "platform/Language.h"
#include "platform/VisibleText.h"

namespace veerwatch {

void frmMain::CloseUnasked() {
  // The end of the last window asks for the end of the program, too.
  if (m_unloaded) {
    return;
  }
  m_ask = false;
  m_unasked = true;
  m_profiles.Stay();
  close();
}

void frmMain::tmrUnload_Timer() {
  m_parts.tmrUnload.Enabled(false);
  close();
}

void frmMain::AskToStop() {
  // Deliberate: "is current tracking".
  m_asks->AskYesNo(Filled(Tr("%1 - Closing"), {kApplicationTitle}),
                   Tr("Veerwatch is current tracking the wind.\rDo you wish to stop tracking?"),
                   [this](bool yes) {
                     if (yes) {
                       m_ask = false;
                       close();
                     } else {
                       m_profiles.Stay();
                     }
                   });
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (m_unloaded) {
    event->accept();
    return;
  }
  if (event->spontaneous()) {
    m_profiles.Stay();
  }
  if (m_ask && m_tbrTrack->Button(TrackMode::Track)->isChecked()) {
    AskToStop();
    // A Yes closes again, but for one that has come already.
    if (m_ask) {
      event->ignore();
      return;
    }
  }
  LeaveControls();
  m_others.ConnectHide();
  m_helm.UserTakesPilot();
  NmeaStop();
  PilotStop();
  if (m_helm.Receiver().Receiving()) {
    m_ask = false;
    m_parts.tmrUnload.Enabled(true);
    event->ignore();
    return;
  }
  KeepSettings();
  m_report.Diary().Save();
  m_unloaded = true;
  m_others.Hide();
  m_alarms.Hide();
  event->accept();
}

void frmMain::KeepSettings() {
  // A session that ends while the last message stands: the windows are hidden, and kept as they were.
  if (m_unloaded) {
    return;
  }
  m_others.ConnectEndTrial();
  // What was edited in the file meanwhile stays, but for ports that were given another device here.
  const std::vector<PortEntry> named = PortEntries(m_parts.Store);
  Profile present;
  const Profile::LoadResult result = present.Load(m_sProfileFile);
  if (result == Profile::LoadResult::Read) {
    m_parts.Store = std::move(present);
    NameNewer(m_parts.Store, m_named, named);
  }
  m_named = PortEntries(m_parts.Store);
  ProfileWrite(m_parts.Store, *this, m_others);
  m_others.Store();
  m_saveFailure = m_parts.Store.Commit(m_sProfileFile).value_or("");
  if (!m_saveFailure.empty()) {
    std::fprintf(stderr, "%s\n", m_saveFailure.c_str());
  } else if (result == Profile::LoadResult::Unreadable) {
    constexpr const char* kAside = TrMark("%1 could not be read: it was put aside");
    std::fprintf(stderr, "%s\n", VisibleText(Filled(kAside, {m_sProfileFile})).c_str());
    NoticeSet(AlarmKind::Profile, Filled(Tr(kAside), {m_sProfileFile}));
  }
  NoticeSet(AlarmKind::Save,
            m_saveFailure.empty() ? "" : Filled(Tr("Settings not saved: %1"), {m_saveFailure}));
}

Profile frmMain::Present() {
  m_others.Store();
  Profile present = m_parts.Store;
  ProfileWrite(present, *this, m_others);
  return present;
}

ProfilesMenuQt::Does frmMain::ProfileWishes() {
  return {[this] { return Present(); },
          [this] {
            KeepSettings();
            return m_saveFailure;
          },
          [this] { close(); },
          [this] {
            m_parts.ProfileFile = m_sProfileFile = m_parts.Profiles->File().string();
            m_report.Diary().Keep(m_sProfileFile);
            ShowTitle();
          }};
}

std::string frmMain::Keepable() {
  m_others.Store();
  Settings kept = *this;
  kept.m_fAutoPilot = 0.0F;
  kept.DesiredAngle = {};
  Profile profile = m_parts.Store;
  ProfileWrite(profile, kept, m_others);
  return profile.Content();
}

void frmMain::tmrSave_Timer() {
  m_report.Diary().Save();
  if (!m_unloaded && m_bSaveWhileRunning && m_save.Tick(Keepable())) {
    KeepSettings();
    m_save.Saved(Keepable());
  }
}

}  // namespace veerwatch
