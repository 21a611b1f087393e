// The close of the main window, and what writes the profile.

#include <QApplication>
#include <QCloseEvent>
#include <cstdio>
#include <utility>

#include "app/frmMain.h"
#include "platform/AtomicFile.h"
#include "platform/VisibleText.h"

namespace veerwatch {

void frmMain::CloseUnasked() {
  m_ask = false;
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
  // What was edited in the file meanwhile stays.
  Profile present;
  const Profile::LoadResult result = present.Load(m_sProfileFile);
  if (result == Profile::LoadResult::Read) {
    m_parts.Store = std::move(present);
  } else if (result == Profile::LoadResult::Unreadable) {
    std::fprintf(stderr, "%s: cannot be read any more%s\n", VisibleText(m_sProfileFile).c_str(),
                 OtherKind(m_sProfileFile).empty() ? ", it is put aside" : "");
  }
  ProfileWrite(m_parts.Store, *this, m_others);
  m_others.Store();
  if (const auto failure = m_parts.Store.Commit(m_sProfileFile)) {
    std::fprintf(stderr, "%s\n", failure->c_str());
  }
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
