#include "app/WindMenuQt.h"

#include <cmath>
#include <utility>

#include "app/WindLimitsQt.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kDodge = 10.0;  // [deg]

std::string Whole(double number) { return FormatNumber(static_cast<float>(number), "0"); }

}  // namespace

WindMenuQt::WindMenuQt(QMainWindow& window, const frmMainMenu& menu, Settings& settings, Helm& helm,
                       Notice notice)
    : m_window(window),
      m_settings(settings),
      m_helm(helm),
      m_notice(std::move(notice)),
      m_choices{{menu.mnuWindGuard, &Settings::m_bWindGuard},
                {menu.mnuWindShift, &Settings::m_bWindShift},
                {menu.mnuWindSide, &Settings::m_bWindSide},
                {menu.mnuWindPolar, &Settings::m_bWindPolar},
                {menu.mnuWindDodge, &Settings::m_bWindDodge}},
      mnuWindLast(menu.mnuWindLast),
      m_told(helm.Observers().Join(*this)) {
  for (const Choice& choice : m_choices) {
    QObject::connect(choice.Command, &QAction::toggled, &window, [this, chosen = choice.Chosen](bool on) {
      if (m_settings.*chosen != on) {
        m_settings.*chosen = on;
        m_notice("");
        ShowState();
      }
    });
  }
  QObject::connect(menu.mnuWindLast, &QAction::triggered, &window, [this] { m_helm.LastAngle(); });
  QObject::connect(menu.mnuWindLimits, &QAction::triggered, &window, [this] { AskLimits(); });
  const auto key = [&](Qt::Key pressed, std::function<void()> does) {
    auto* shortcut = new QShortcut(QKeySequence(QKeyCombination(Qt::ControlModifier, pressed)), &window);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &window, std::move(does));
    m_dodges.push_back(shortcut);
  };
  key(Qt::Key_Left, [this] { m_helm.Dodge(-kDodge); });
  key(Qt::Key_Right, [this] { m_helm.Dodge(kDodge); });
  key(Qt::Key_Up, [this] { m_helm.DodgeBack(); });
  ShowState();
}

void WindMenuQt::Reload() {
  m_notice("");
  ShowState();
}

void WindMenuQt::ShowState() {
  for (const Choice& choice : m_choices) {
    choice.Command->setChecked(m_settings.*choice.Chosen);
  }
  mnuWindLast->setEnabled(m_helm.Functions().CanLastAngle());
  for (QShortcut* shortcut : m_dodges) {
    shortcut->setEnabled(m_settings.m_bWindDodge);
  }
}

void WindMenuQt::AskLimits() {
  WindLimitsQt::Open({m_settings.m_fWindLeastApparent, m_settings.m_fWindLargestTrue,
                      m_settings.m_fWindShiftLimit, m_settings.m_fWindShiftTime},
                     m_window, [this](const WindLimits& limits) {
                       m_settings.m_fWindLeastApparent = limits.LeastApparent;
                       m_settings.m_fWindLargestTrue = limits.LargestTrue;
                       m_settings.m_fWindShiftLimit = limits.ShiftLimit;
                       m_settings.m_fWindShiftTime = limits.ShiftTime;
                     });
}

std::string WindMenuQt::TextOf(WindSays what) const {
  const bool apparent = m_helm.Loop().Side() == TrackSide::Apparent;
  const PolarAngle& polar = m_helm.Functions().PolarNow();
  switch (what) {
    case WindSays::GuardHolds:
      return Filled(Tr("Angle Guard: holds %1"),
                    {Whole(static_cast<double>(apparent ? m_settings.m_fWindLeastApparent
                                                        : m_settings.m_fWindLargestTrue))});
    case WindSays::PolarEdge:
      return Tr("Polar Angle: the best angle is the last one of the polar's table");
    case WindSays::PolarNone:
      return Filled(polar.Upwind()
                        ? Tr("Polar Angle Off: no best angle to windward in %1 kn; is a polar open?")
                        : Tr("Polar Angle Off: no best angle to leeward in %1 kn; is a polar open?"),
                    {Whole(polar.WindSpeed())});
    case WindSays::PolarByHand:
      return Tr("Polar Angle Off: another angle was set");
  }
  return {};
}

void WindMenuQt::OnWindSays(WindSays what) {
  m_notice(TextOf(what));
  ShowState();
}

void WindMenuQt::OnTrackMode(TrackMode mode) {
  if (mode != TrackMode::Track) {
    m_notice("");
  }
  ShowState();
}

}  // namespace veerwatch
