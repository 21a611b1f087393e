#include "polar/CourseControlsQt.h"

#include "draw/DrawQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

// In heights of the plot's labels.
constexpr double kSteerText = 1.35;
constexpr double kSteerMargin = 0.5;

}  // namespace

CourseControlsQt::CourseControlsQt(QWidget* plot)
    : frmLedger(new LedgerPanelQt(plot)),
      lblSteer(new TurnLabelQt(QStringLiteral("lblSteer"), TrQ("Steer -100 >"), plot)) {
  frmLedger->raise();
  Follow();
}

void CourseControlsQt::Show(const LedgerContent& content) {
  frmLedger->Show(content);
  lblSteer->Show(content.Steer);
  m_course = true;
  Follow();
}

void CourseControlsQt::Fade(bool fade) {
  frmLedger->Fade(fade);
  lblSteer->Fade(fade);
}

void CourseControlsQt::Hide() {
  m_course = false;
  Follow();
}

void CourseControlsQt::Want(bool wanted) {
  m_wanted = wanted;
  Follow();
}

void CourseControlsQt::Follow() {
  frmLedger->setVisible(m_course && m_wanted);
  lblSteer->setVisible(m_course && m_wanted);
}

PlotRoom CourseControlsQt::Room() {
  if (frmLedger->isHidden()) {
    return {};
  }
  frmLedger->Fit();
  return frmLedger->AtHome() ? PlotRoom{frmLedger->Layout().Width, frmLedger->Layout().Height} : PlotRoom{};
}

void CourseControlsQt::Place(const PolarStill& still) {
  if (frmLedger->isHidden()) {
    return;
  }
  frmLedger->Place(still.Legend.Corners);
  lblSteer->setFont(Letters(lblSteer->font(), still.TextHeight * kSteerText, QFont::DemiBold));
  lblSteer->setMargin(qRound(still.TextHeight * kSteerMargin));
  const QSize size = lblSteer->sizeHint();
  const Box place = SteerPlace(still.Geometry, still.Grid.Labels, size.width(), size.height());
  lblSteer->setGeometry(qRound(place.X), qRound(place.Y), size.width(), size.height());
}

}  // namespace veerwatch
