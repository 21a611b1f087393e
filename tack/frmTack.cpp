#include "tack/frmTack.h"

#include <QEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "instruments/MathLib.h"
#include "platform/ColoursQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr int kTimerInterval = 1000;  // [ms]
constexpr double kMillisecondsPerSecond = 1000.0;
/// Part of the text's colour in a text that does not answer.
constexpr double kDimmed = 0.6;

constexpr const char* kFilledAnew = TrMark("Heading or wind moved, filled anew: OK once more");

std::size_t IndexOf(ManoeuvreKind kind) { return static_cast<std::size_t>(kind); }

QString Text(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

frmTack::frmTack(const TackParts& parts, QWidget* main)
    : QDialog(main), TackControlsQt(static_cast<QDialog&>(*this)), m_parts(parts) {
  setObjectName(QStringLiteral("frmTack"));
  setModal(false);
  TackRecall(m_parts.Store, m_settings);
  m_parts.TimerTack.Interval(kTimerInterval);
  connect(cmdOk, &QPushButton::clicked, this, [this] { cmdOk_Click(); });
  for (const QLineEdit* box : {txtHeading, txtOvershoot}) {
    connect(box, &QLineEdit::textEdited, this, [this] { AskedAnew(); });
  }
  connect(chkThenTrack, &QCheckBox::toggled, this, [this] { AskedAnew(); });
  connect(cboAngle, &QComboBox::currentIndexChanged, this, [this] { AskedAnew(); });
  Dim();
  m_told = m_parts.Main.Observers().Join(*this);
}

void frmTack::TackOpen(float newHeading, const TurnFrom& from, WindCrossing said, QWidget& opener) {
  if (!m_turn.Open(newHeading, from.Heading, from.AutoPilot, from.WindAngle)) {
    return;
  }
  Steering(false);
  m_newHeading = newHeading;
  m_from = from;
  m_said = said;
  m_question.clear();
  m_asked.clear();
  ShowKind();
  chkThenTrack->setChecked(m_settings.ThenTrack);
  cboAngle->setCurrentIndex(static_cast<int>(m_settings.Angle));
  ShowEnabled();
  ShowWords();
  ShowNotes(m_parts.Now());
  ProgressBarTack->hide();
  constexpr int kFrame = 40;  // [px], with the caption
  Fit(opener.screen()->availableSize().height() - kFrame);
  txtHeading->selectAll();
  txtHeading->setFocus();
  StayInFrontOf(opener);
  show();
  raise();
  activateWindow();
}

void frmTack::StayInFrontOf(QWidget& opener) {
  // The windows of the desktop know each other only once they are made.
  winId();
  opener.winId();
  windowHandle()->setTransientParent(opener.windowHandle());
}

void frmTack::AskedAnew() {
  m_question.clear();
  if (Follows()) {
    m_asked.clear();
  }
  if (isVisible() && !m_turning) {
    ShowEnabled();
  }
  ShowWords();
  HelmChanged();
}

void frmTack::Dim() {
  QPalette colours;
  for (const auto& [text, ground] :
       {std::pair{QPalette::Text, QPalette::Base}, std::pair{QPalette::ButtonText, QPalette::Button},
        std::pair{QPalette::WindowText, QPalette::Window}}) {
    colours.setColor(QPalette::Disabled, text,
                     Legible(palette().color(QPalette::Active, ground),
                             palette().color(QPalette::Active, text), kDimmed, kDimmedContrast));
  }
  setPalette(colours);
  QPalette amber;
  amber.setColor(QPalette::WindowText, AmberText(palette().color(QPalette::Active, QPalette::Window)));
  lblNote->setPalette(amber);
}

void frmTack::ShowKind() {
  const std::size_t kind = IndexOf(m_turn.Kind());
  TackControlsQt::ShowKind(m_turn.Kind(), m_turn.Direction() != 0);
  txtHeading->Show(Text(FormatNumber(m_newHeading, "0")));
  txtOvershoot->Show(Text(ShortestText(m_settings.Overshoot[kind])));
  txtRate->Show(Text(ShortestText(m_settings.Rate[kind])));
}

void frmTack::Steering(bool steering) {
  if (steering) {
    // Ends the turn of whoever has the pilot.
    m_parts.Main.TurnBegins();
    m_parts.TimerTack.Enabled(true);
  } else if (m_turning) {
    m_parts.TimerTack.Enabled(false);
    m_parts.Main.TurnOver();
  }
  m_turning = steering;
  ShowStop(steering);
  ShowEnabled();
}

void frmTack::ShowEnabled() {
  const bool across = Follows() && m_turn.Kind() != ManoeuvreKind::Steer;
  txtHeading->setReadOnly(m_turning || across);
  for (QWidget* control : {static_cast<QWidget*>(cmdOk), static_cast<QWidget*>(txtOvershoot),
                           static_cast<QWidget*>(txtRate), static_cast<QWidget*>(chkThenTrack)}) {
    control->setEnabled(!m_turning);
  }
  cboAngle->setEnabled(!m_turning && across);
}

WindCrossing frmTack::Crossing() const {
  const float overshoot = LeadingNumber(txtOvershoot->text().toStdString());
  return CrossingOf(m_turn.Wind(), m_turn.Planned(TypedHeading(), overshoot));
}

float frmTack::TypedHeading() const { return LeadingNumber(txtHeading->text().toStdString(), m_newHeading); }

std::optional<TurnPlan> frmTack::Ahead() const {
  if (!isVisible() || m_turning) {
    return std::nullopt;
  }
  if (Follows()) {
    const TurnPlan plan = Plan(m_parts.Now().Helm);
    return plan.Refusal.empty() ? std::optional(plan) : std::nullopt;
  }
  TurnPlan plan;
  plan.Wind = m_turn.Wind();
  plan.Change = m_turn.Planned(TypedHeading(), LeadingNumber(txtOvershoot->text().toStdString()));
  const float rate = LeadingNumber(txtRate->text().toStdString());
  plan.Rate = rate > 0.0F ? static_cast<double>(rate) : Manoeuvre::kUsualRate;
  return plan.Change != 0.0 ? std::optional(plan) : std::nullopt;
}

void frmTack::ShowWords() {
  if (m_turning) {
    return;
  }
  if (Follows()) {
    ShowFollowed(m_parts.Now().Helm);
    return;
  }
  const float overshoot = LeadingNumber(txtOvershoot->text().toStdString());
  const double change = m_turn.Planned(TypedHeading(), overshoot);
  lblWords->setText(Text(TurnWords(change, CrossingOf(m_turn.Wind(), change))));
}

void frmTack::ShowNotes(const TurnNow& now) {
  std::string note = Follows() ? Plan(now.Helm).Refusal : TurnHindrance(now.Helm);
  cmdOk->setEnabled(note.empty());
  if (note.empty()) {
    const std::string apart = ApartText(TurnFromNow(now.Helm, m_from));
    note = m_question + (m_question.empty() || apart.empty() ? "" : "\n") + apart;
  }
  if (lblNote->text() != Text(note)) {
    lblNote->setText(Text(note));
    // Whoever hears the window instead of seeing it is on a box or on OK.
    for (QWidget* control : {static_cast<QWidget*>(cmdOk), static_cast<QWidget*>(txtHeading)}) {
      control->setAccessibleDescription(Text(note));
    }
  }
}

void frmTack::HelmChanged() {
  if (!m_turning && isVisible()) {
    const TurnNow now = m_parts.Now();
    if (Follows()) {
      ShowFollowed(now.Helm);
    }
    ShowNotes(now);
  }
}

void frmTack::FillAnew(const TurnNow& now, const TurnFrom& from) {
  const ManoeuvreKind kind = m_turn.Kind();
  const float newHeading = now.NewHeading.value_or(m_newHeading);
  if (!m_turn.Open(newHeading, from.Heading, from.AutoPilot, from.WindAngle)) {
    return;
  }
  m_newHeading = newHeading;
  m_from = from;
  std::vector<std::pair<EntryLineQt*, QString>> typed;
  for (EntryLineQt* box : {txtHeading, txtOvershoot, txtRate}) {
    if (box->isModified() && (box == txtHeading || m_turn.Kind() == kind)) {
      typed.emplace_back(box, box->text());
    }
  }
  ShowKind();
  for (const auto& [box, text] : typed) {
    box->setText(text);
    box->setModified(true);
  }
  ShowWords();
}

bool frmTack::AsksOnceMore(const TurnNow& now) {
  m_question.clear();
  const TurnFrom from = TurnFromNow(now.Helm, m_from);
  if (TurnHasMoved(m_from, from)) {
    FillAnew(now, from);
    m_question = Tr(kFilledAnew);
  }
  const std::string words = lblWords->text().toStdString();
  if (CrossesUnsaid(Crossing(), m_said, m_turn.Kind()) && std::exchange(m_asked, words) != words) {
    m_question += (m_question.empty() ? "" : "\n") + CrossingQuestion(Crossing());
  }
  return !m_question.empty();
}

void frmTack::RestoreEmptied() {
  for (EntryLineQt* box : {txtHeading, txtOvershoot, txtRate}) {
    if (m_parts.Main.m_bCarefulEntry && box->text().trimmed().isEmpty()) {
      box->Forget();
    }
  }
  ShowWords();
}

void frmTack::cmdOk_Click() {
  RestoreEmptied();
  if (Follows()) {
    BeginFollowed();
    return;
  }
  const TurnNow now = m_parts.Now();
  if (TurnHindrance(now.Helm).empty() && !AsksOnceMore(now)) {
    Begin();
  } else {
    ShowNotes(now);
  }
}

void frmTack::Keep() {
  const std::size_t kind = IndexOf(m_turn.Kind());
  m_settings.Overshoot[kind] = LeadingNumber(txtOvershoot->text().toStdString());
  m_settings.Rate[kind] = LeadingNumber(txtRate->text().toStdString());
  m_settings.ThenTrack = Follows();
  m_settings.Angle = Angle();
  for (EntryLineQt* box : {txtHeading, txtOvershoot, txtRate}) {
    box->Take();
  }
}

void frmTack::Begin() {
  m_parts.Main.TrackSetManual();
  Keep();
  const std::size_t kind = IndexOf(m_turn.Kind());
  m_turn.Start(TypedHeading(), m_settings.Overshoot[kind], m_settings.Rate[kind]);
  m_pace.Start(m_parts.Now().Helm.Sent);
  m_stepped = m_parts.Time.Now().Steady;
  lblNote->clear();
  // A bar without a length would show a turn that never ends.
  ProgressBarTack->setRange(0, std::max(1, static_cast<int>(std::lround(std::fabs(m_turn.Change())))));
  ShowProgress();
  ProgressBarTack->show();
  Steering(true);
}

// A turn that is followed to its end

TurnPlan frmTack::Plan(const HelmNow& now) const {
  for (const auto& [box, refusal] : {std::pair{txtHeading, TrMark("No turn: the heading is no number")},
                                     std::pair{txtOvershoot, TrMark("No turn: the overshoot is no number")},
                                     std::pair{txtRate, TrMark("No turn: the rate is no number")}}) {
    if (!StrictNumber(box->text().trimmed().toStdString())) {
      TurnPlan none;
      none.Refusal = Tr(refusal);
      return none;
    }
  }
  TurnAsk ask;
  ask.Kind = m_turn.Kind();
  ask.NewHeading = TypedHeading();
  ask.Overshoot = LeadingNumber(txtOvershoot->text().toStdString());
  ask.Rate = LeadingNumber(txtRate->text().toStdString());
  return m_parts.Followed.Plan(ask, Angle(), now);
}

void frmTack::ShowFollowed(const HelmNow& now) {
  const TurnPlan plan = Plan(now);
  lblWords->setText(plan.Refusal.empty() ? Text(PlanWords(plan)) : QString());
  if (plan.Refusal.empty() && plan.Kind != ManoeuvreKind::Steer) {
    const double heading = static_cast<double>(now.Heading.value_or(0.0F)) + plan.Change;
    txtHeading->Show(Text(FormatNumber(FoldBearing(heading), "0")));
  }
}

void frmTack::BeginFollowed() {
  const TurnNow now = m_parts.Now();
  const TurnPlan plan = Plan(now.Helm);
  ShowFollowed(now.Helm);
  const std::string asked = PlanQuestion(plan, m_said);
  m_question = std::exchange(m_asked, asked) == asked ? "" : asked;
  if (!plan.Refusal.empty() || !m_question.empty()) {
    ShowNotes(now);
    return;
  }
  Keep();
  accept();
  m_parts.Followed.Begin(plan);
}

void frmTack::ShowProgress() {
  ProgressBarTack->setValue(static_cast<int>(std::lround(std::fabs(m_turn.Progress()))));
}

void frmTack::TimerTack_Timer() {
  if (!m_turning) {
    return;
  }
  const std::int64_t now = m_parts.Time.Now().Steady;
  const double seconds = static_cast<double>(now - std::exchange(m_stepped, now)) / kMillisecondsPerSecond;
  const bool arrived = m_pace.Step(m_turn, m_parts.Now().Helm.Sent, seconds);
  lblNote->setText(m_pace.Waiting() ? TrQ("Waits: nothing leaves for the pilot") : QString());
  ShowProgress();
  txtHeading->Show(Text(FormatNumber(m_turn.Heading(), "0")));
  m_parts.Main.AutoPilotSet(m_turn.AutoPilot());
  if (arrived) {
    accept();
    parentWidget()->activateWindow();
  }
}

void frmTack::OnTurnEnds(TurnFate why) {
  if (!m_turning) {
    return;
  }
  if (why != TurnFate::Taken) {
    m_pace.Halt(m_turn, m_parts.Now().Helm.Sent);
    m_parts.Main.AutoPilotSet(m_turn.AutoPilot());
  }
  reject();
}

void frmTack::Unload() { TackStore(m_parts.Store, m_settings); }

void frmTack::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    Dim();
  }
}

bool frmTack::event(QEvent* event) {
  // A question of the window that this one stays in front of blocks it as well, and a turn has to be ended at
  // any time.
  if (event->type() == QEvent::WindowBlocked) {
    windowHandle()->setTransientParent(nullptr);
  }
  return QDialog::event(event);
}

void frmTack::done(int result) {
  Steering(false);
  QDialog::done(result);
}

}  // namespace veerwatch
