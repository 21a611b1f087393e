// What is typed into the main window, and its nudges.

#include <QApplication>
#include <utility>

#include "app/TypedAngle.h"
#include "app/frmMain.h"
#include "draw/DrawQt.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

QString Figure(float value, std::string_view pattern) { return ToQt(FormatNumber(value, pattern)); }

constexpr std::size_t At(int index) { return static_cast<std::size_t>(index - 1); }

/// The change that a nudge button asks for [deg, positive to starboard]: ten degrees with Shift.
float NudgeOf(int index) {
  const bool ten = QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
  return (index == 2 ? 1.0F : -1.0F) * (ten ? 10.0F : 1.0F);
}

}  // namespace

void frmMain::TakeAutoPilot(double bearing) {
  m_helm.UserSteersTo(bearing);
  m_panel->txtAutoPilot->Show(Figure(m_fAutoPilot, "0.0"));
}

void frmMain::TakeTyped(EntryBoxQt& box, float present, const QString& pattern,
                        std::function<void(float)> take) {
  const TrackMode mode = m_eTrackMode;
  const TypedAngle typed =
      ReadTypedAngle(box.text().toStdString(), present,
                     {m_bCarefulEntry, m_fTrackMaxSteerTo, m_helm.Now().Hand != PilotHand::Nobody});
  if (typed.What == TypedAngle::Fate::Take) {
    take(typed.Value);
    return;
  }
  box.Show(Figure(present, pattern.toStdString()));
  if (typed.What == TypedAngle::Fate::Ask) {
    const std::string text =
        Filled(Tr("%1: from %2 to %3?\rThat is more than %4 degrees, and the pilot follows."),
               {box.accessibleName().toStdString(), FormatNumber(present, "0"), ShortestText(typed.Value),
                ShortestText(m_fTrackMaxSteerTo)});
    m_asks->WarnYesNo(kApplicationTitle, text, [this, mode, typed, take = std::move(take)](bool yes) {
      if (yes && m_eTrackMode == mode) {
        take(typed.Value);
      }
    });
  }
}

void frmMain::txtAutoPilot_Taken() {
  TakeTyped(*m_panel->txtAutoPilot, m_fAutoPilot, QStringLiteral("0.0"),
            [this](float bearing) { TakeAutoPilot(static_cast<double>(bearing)); });
}

void frmMain::txtDesired_Taken(int index) {
  float& desired = DesiredAngle[static_cast<std::size_t>(index)];
  TakeTyped(*m_panel->txtDesired[At(index)], desired, QStringLiteral("0"),
            [this, index, &desired](float angle) {
              m_helm.Loop().SetDesired(static_cast<TrackSide>(index), static_cast<double>(angle));
              m_panel->txtDesired[At(index)]->Show(Figure(desired, "0"));
            });
}

void frmMain::cmdAutoPilot_Click(int index) {
  if (m_eTrackMode == TrackMode::Track) {
    TrackSteerTo(NudgeOf(index));
    return;
  }
  TakeAutoPilot(static_cast<double>(m_fAutoPilot) + static_cast<double>(NudgeOf(index)));
}

void frmMain::cmdDesired_Click(int index) { TrackSteerTo(NudgeOf(index)); }

void frmMain::NudgeKey(int index) {
  for (NudgeButtonQt* button : {m_panel->cmdAutoPilot[At(index)], m_panel->cmdDesiredApp[At(index)],
                                m_panel->cmdDesiredTrue[At(index)]}) {
    if (button->isEnabled()) {
      button->click();
      return;
    }
  }
}

}  // namespace veerwatch
