// What the main window shows of what the helm tells.

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>

#include "alarms/WatchText.h"
#include "app/FigureLook.h"
#include "app/frmMain.h"
#include "control/TrackAdvice.h"
#include "instruments/CompassPoint.h"
#include "pilot/LineLoad.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/NumberText.h"
#include "platform/PortNames.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Number(float value, std::string_view pattern) { return Text(FormatNumber(value, pattern)); }

void ShowText(QLabel& label, const QString& text) {
  if (label.text() != text) {
    label.setText(text);
  }
}

/// The keyboard is in an entry box of another window than the main one, which is not active. A question can
/// wait.
bool TypesElsewhere(const QWidget& main) {
  const QWidget* focus = QApplication::focusWidget();
  if (focus != nullptr && focus->window()->isModal()) {
    return false;
  }
  const auto* box = qobject_cast<const QLineEdit*>(focus);
  const auto* number = qobject_cast<const QAbstractSpinBox*>(focus);
  return !main.isActiveWindow() &&
         ((box != nullptr && !box->isReadOnly()) || (number != nullptr && !number->isReadOnly()));
}

}  // namespace

void frmMain::OnHeading(float heading) {
  ShowText(*m_panel->lblHeading, Number(heading, "0"));
  ShowSent();
}

void frmMain::OnBoatSpeed(float speed) { ShowText(*m_panel->lblBoatSpeed, Number(speed, "0.0")); }

void frmMain::OnWaypoint(float /*range*/, float bearing) {
  ShowText(*m_panel->lblWaypointBearing, Number(bearing, "0"));
}

void frmMain::OnWindApparent(float angle, float speed) {
  ShowText(*m_panel->lblAppWindAngle, Number(angle, "0"));
  ShowText(*m_panel->lblAppWindSpeed, Number(speed, "0.0"));
}

void frmMain::OnWindTrue(float angle, float speed) {
  ShowText(*m_panel->lblTrueWindAngle, Number(angle, "0"));
  ShowText(*m_panel->lblTrueWindSpeed, Number(speed, "0.0"));
}

void frmMain::OnWindIndicator(float direction, float speed) {
  m_wind = TrQ("Wind %1@%2").arg(TrQ(CompassPointName(direction)), Number(speed, ".0"));
  ShowTitle();
}

void frmMain::OnWatch(const WatchNow& watch) {
  m_watch = watch;
  m_panel->ShowAges(watch, m_bWatchBlankLost);
  ShowTitle();
  ShowSent();
}

void frmMain::ShowTitle() {
  const QString profile = m_profiles.Shown();
  const QString named = profile.isEmpty() ? QString() : QStringLiteral(" - ") + profile;
  if (m_wind.isEmpty()) {
    setWindowTitle(QString::fromLatin1(kApplicationTitle) + named);
    return;
  }
  const FigureLook look = LookOf(m_watch.Of(Watched::WindTrue), m_watch.Mode, m_bWatchBlankLost);
  QString caption = look.Blank ? TrQ("Wind --") : m_wind;
  if (look.Half) {
    caption += look.Age.empty() ? TrQ(" (Off)") : TrQ(" (%1 old)").arg(Text(look.Age));
  }
  caption += named;
  if (m_parts.Asks.IsForeground()) {
    caption.prepend(QString::fromLatin1(kApplicationTitle) + QStringLiteral(" - "));
  }
  if (windowTitle() != caption) {
    setWindowTitle(caption);
  }
}

void frmMain::OnInputStarts() { m_panel->BlankValues(); }

void frmMain::OnInputStatus(const PortStatus& status) {
  m_status->Show(StatusPanelsQt::kInput, Text(InputStatusText(status)));
}

void frmMain::OnInputFailure(const std::string& reason) {
  m_status->Explain(StatusPanelsQt::kInput, Text(reason));
}

void frmMain::OnOutputFailure(const std::string& reason) {
  m_outputFailure = reason;
  ExplainOutput();
}

void frmMain::ExplainOutput() {
  const HelmNow now = m_helm.Now();
  const auto load = LineLoadOf(now.PilotBytes, m_iPilotCadence, now.WindsASecond, now.PilotBaud);
  const bool full = m_outputFailure.empty() && load && load->Full();
  m_status->Explain(StatusPanelsQt::kOutput, Text(full ? LineLoadText(*load) : m_outputFailure));
}

void frmMain::OnOutputRefused(const PilotRefusal& refusal) {
  const std::string text = PilotRefusalText(refusal);
  m_status->Show(StatusPanelsQt::kOutput, Text(text));
  NoticeSet(AlarmKind::Pilot, text);
}

void frmMain::OnSourceAdvice(const std::vector<std::string>& lines) {
  m_advice = lines;
  ShowAdvice();
}

void frmMain::ShowAdvice() {
  std::string text;
  if (m_eTrackMode == TrackMode::Setup) {
    for (const std::string& line : m_advice) {
      text += (text.empty() ? "" : ". ") + line;
    }
  }
  NoticeSet(AlarmKind::Source, text);
}

void frmMain::OnOutputStatus(const PortStatus& status) {
  m_status->Show(StatusPanelsQt::kOutput, Text(OutputStatusText(status)));
}

void frmMain::OnDesired(float apparent, float trueWind) {
  m_panel->txtDesired[0]->Follow(Number(apparent, "0"));
  m_panel->txtDesired[1]->Follow(Number(trueWind, "0"));
}

void frmMain::OnDelta(float apparent, float trueWind) {
  ShowText(*m_panel->lblDelta[0], Number(apparent, "0.0"));
  ShowText(*m_panel->lblDelta[1], Number(trueWind, "0.0"));
}

void frmMain::OnAutoPilot(float bearing) { m_panel->txtAutoPilot->Follow(Number(bearing, "0.0")); }

void frmMain::OnAlarm(TrackSide side, float error) {
  // What is typed for another window does not end up in a box of this one.
  if (!isActiveWindow()) {
    if (auto* box = dynamic_cast<EntryBoxQt*>(focusWidget())) {
      box->Forget();
    }
    m_panel->setFocus();
  }
  if (!m_others.ManoeuvreInFront() && !TypesElsewhere(*this)) {
    m_parts.Asks.ToForeground();
  }
  m_panel->ShowAlarm(side);
  m_alarms.StepSounds();
  m_status->Show(StatusPanelsQt::kOutput, TrQ("Alarm Limit Exceeded %1").arg(Number(error, "0")));
}

void frmMain::OnAlarmOver() {
  m_panel->HideAlarm();
  m_status->Show(StatusPanelsQt::kOutput, QString());
}

void frmMain::OnTrackMode(TrackMode mode) {
  m_instead.clear();
  ShowAdvice();
  if (mode != TrackMode::Switching) {
    m_tbrTrack->Button(mode)->setChecked(true);
  }
  ShowControls();
  ShowModeText();
  ShowSent();
}

void frmMain::OnPilotData(std::string_view /*sentence*/) { ShowSent(); }

void frmMain::OnTick() {
  ShowSent();
  m_status->Explain(StatusPanelsQt::kPilot, Text(TrackSwingsText(m_helm.Loop(), *this)));
  const auto leads = [this](int port) {
    return m_bSimulate ? QString() : Text(VisibleText(PortDevice(m_parts.Store, port)));
  };
  m_status->LeadsTo(StatusPanelsQt::kInput, leads(m_iNmeaPort));
  m_status->LeadsTo(StatusPanelsQt::kOutput, leads(m_iPilotPort));
  ExplainOutput();
}

void frmMain::ShowSent() {
  m_sent.Look(m_helm.Pilot().Sent(), m_parts.Time.Now().Steady);
  if (m_eTrackMode != TrackMode::Manual && m_eTrackMode != TrackMode::Track) {
    m_panel->ShowSent(QString(), false, QString(), false);
    m_panel->ShowFollows(QString(), false);
    return;
  }
  const QString heading = m_panel->lblHeading->text();
  m_panel->ShowSent(heading.isEmpty() ? heading : TrQ("Heading %1").arg(heading),
                    m_watch.Of(Watched::Heading).Gone(), Text(m_sent.Text()), m_sent.Late());
  const bool wrong = m_watch.Follow != FollowVerdict::Follows && m_watch.Follow != FollowVerdict::Unknown;
  m_panel->ShowFollows(SimulatesSteady() ? QString() : Text(FollowLine(m_watch)), wrong);
}

void frmMain::OnTrackSide(TrackSide side) {
  m_panel->optControl[side == TrackSide::Apparent ? 0 : 1]->setChecked(true);
}

void frmMain::OnTrackRefused(TrackRefusal why) {
  m_insteadTimer.stop();
  m_instead = TrQ(TrackRefusalText(why));
  ShowModeText();
}

void frmMain::OnWindLost(bool /*lost*/) { ShowModeText(); }

void frmMain::OnTurnEnds(TurnFate why) {
  if (why == TurnFate::Taken) {
    return;
  }
  SayForAWhile(Filled(Tr("Turn ended: %1"), {Tr(TurnFateText(why))}));
  m_alarms.TurnSounds();
}

void frmMain::SayForAWhile(const std::string& text) {
  m_instead = Text(text);
  m_insteadTimer.start();
  ShowModeText();
}

void frmMain::ShowPrompt(const std::string& text) {
  m_prompt = Text(text);
  NoticeSet(AlarmKind::Course, text);
  ShowModeText();
}

void frmMain::ShowControls() {
  const TrackSide side = m_helm.Loop().Side();
  m_panel->Enable(ControlsFor(m_eTrackMode, side), m_eTrackMode, side);
}

void frmMain::ShowModeText() {
  QString text;
  switch (m_eTrackMode) {
    case TrackMode::Off:
      text = TrQ("Off");
      break;
    case TrackMode::Setup:
      text = TrQ("Initialize");
      break;
    case TrackMode::Manual:
      text = TrQ("Manual");
      break;
    case TrackMode::Track:
      text = m_helm.Loop().Side() == TrackSide::Apparent ? TrQ("Tracking Apparent Wind")
                                                         : TrQ("Tracking True Wind");
      break;
    case TrackMode::Switching:
      break;
  }
  const bool needsInput = m_eTrackMode == TrackMode::Manual || m_eTrackMode == TrackMode::Track;
  if (needsInput && !m_helm.Receiver().Started()) {
    text += TrQ(", Input Stopped");
  } else if (needsInput && m_helm.Now().WindLost) {
    text += TrQ(", No Wind");
  }
  if (!m_prompt.isEmpty()) {
    text = m_prompt;
  }
  m_status->Show(StatusPanelsQt::kPilot, m_instead.isEmpty() ? text : m_instead);
}

}  // namespace veerwatch
