// The close of the main window, and what writes the profile.

#include <QApplication>
#include <QCloseEvent>
#include <cstdio>
#include <utility>

#include "app/frmMain.h"
#include "platform/VisibleText.h"

namespace veerwatch {

void frmMain::CloseUnasked() {
  // The end of the last window asks for the end of the program, too.
  if (m_unloaded) {
    return;
  }
  m_ask = false;
  m_unasked = true;
  if (QWidget* question = QApplication::activeModalWidget()) {
    question->close();
  }
  // The close that asks goes on behind its question.
  if (!m_asking) {
    close();
  }
}

void frmMain::tmrUnload_Timer() {
  m_parts.tmrUnload.Enabled(false);
  close();
}

bool frmMain::StopTracking() {
  // Deliberate: "is current tracking".
  m_asking = true;
  const bool yes =
      m_parts.Asks.AskYesNo(std::string(kApplicationTitle) + " - Closing",
                            "Veerwatch is current tracking the wind.\rDo you wish to stop tracking?");
  m_asking = false;
  return yes || !m_ask;
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (m_unloaded) {
    event->accept();
    return;
  }
  const bool tracking = m_tbrTrack->Button(TrackMode::Track)->isChecked();
  if (m_ask && tracking && !StopTracking()) {
    event->ignore();
    return;
  }
  LeaveControls();
  m_others.PilotTaken();
  NmeaStop();
  PilotStop();
  if (m_helm.Receiver().Receiving()) {
    m_ask = false;
    m_parts.tmrUnload.Enabled(true);
    event->ignore();
    return;
  }
  KeepSettings();
  m_unloaded = true;
  m_others.Hide();
  event->accept();
}

void frmMain::KeepSettings() {
  // A session that ends while the last message stands: the windows are hidden, and kept as they were.
  if (m_unloaded) {
    return;
  }
  // What was edited in the file meanwhile stays.
  Profile present;
  const Profile::LoadResult result = present.Load(m_sProfileFile);
  if (result == Profile::LoadResult::Read) {
    m_parts.Store = std::move(present);
  }
  ProfileWrite(m_parts.Store, *this, m_others);
  m_others.Store();
  m_saveFailure = m_parts.Store.Commit(m_sProfileFile).value_or("");
  if (!m_saveFailure.empty()) {
    std::fprintf(stderr, "%s\n", m_saveFailure.c_str());
  } else if (result == Profile::LoadResult::Unreadable) {
    const std::string text = m_sProfileFile + " could not be read: it was put aside";
    std::fprintf(stderr, "%s\n", VisibleText(text).c_str());
    NoticeSet(NoticeKind::Profile, text);
  }
  NoticeSet(NoticeKind::Save, m_saveFailure.empty() ? "" : "Settings not saved: " + m_saveFailure);
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
  if (!m_unloaded && m_bSaveWhileRunning && m_save.Tick(Keepable())) {
    KeepSettings();
    m_save.Saved(Keepable());
  }
}

}  // namespace veerwatch
