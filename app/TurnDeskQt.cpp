#include "app/TurnDeskQt.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

#include "app/IconsQt.h"
#include "platform/Language.h"

namespace veerwatch {

namespace {

WindCrossing NamedBy(ManoeuvreKind kind) {
  return kind == ManoeuvreKind::Tack ? WindCrossing::Bow : WindCrossing::Stern;
}

}  // namespace

TurnDeskQt::TurnDeskQt(Parts parts) : m_parts(std::move(parts)), m_opener(&m_parts.Window) {
  connect(m_parts.Menu.mnuTurnTack, &QAction::triggered, this, [this] { KeyTurn(ManoeuvreKind::Tack); });
  connect(m_parts.Menu.mnuTurnJibe, &QAction::triggered, this, [this] { KeyTurn(ManoeuvreKind::Jibe); });
  connect(m_parts.Menu.mnuTurnStop, &QAction::triggered, this, [this] { Stop(); });
  m_parts.Run.Changed([this] { Show(); });
  QApplication::instance()->installEventFilter(this);
}

TurnDeskQt::~TurnDeskQt() { m_parts.Run.Changed({}); }

void TurnDeskQt::Show() {
  if (!m_window) {
    m_window = std::make_unique<frmTurn>(&m_parts.Window, [this] { Stop(); });
    m_window->setWindowIcon(ProgramIcon());
  }
  m_window->Show(m_parts.Run, *m_opener);
}

void TurnDeskQt::KeyTurn(ManoeuvreKind kind) { KeyBegin(kind, {}); }

TurnPlan TurnDeskQt::KeyPlan(ManoeuvreKind kind) {
  const TackSettings& kept = m_parts.Tack().Kept();
  const auto index = static_cast<std::size_t>(kind);
  TurnAsk ask;
  ask.Kind = kind;
  ask.Overshoot = kept.Overshoot[index];
  ask.Rate = kept.Rate[index];
  return Plan(ask, kept.Angle, m_parts.Main.Now());
}

void TurnDeskQt::KeyBegin(ManoeuvreKind kind, const std::string& asked) {
  const HelmNow now = m_parts.Main.Now();
  if (now.Mode != TrackMode::Track) {
    m_parts.Say(now.Hand == PilotHand::Turn ? Tr("No turn: one runs, Escape stops it")
                                            : Tr("No turn: Ctrl+T and Ctrl+J turn in Track"));
    return;
  }
  const TurnPlan plan = KeyPlan(kind);
  if (!plan.Refusal.empty()) {
    m_parts.Say(plan.Refusal);
    return;
  }
  const std::string question = PlanQuestion(plan, NamedBy(kind));
  if (question == asked) {
    Begin(plan);
    return;
  }
  m_parts.Asks.WarnYesNo(kApplicationTitle, PlanWords(plan) + "?", [this, kind, question](bool yes) {
    if (yes) {
      KeyBegin(kind, question);
    }
  });
}

TurnPlan TurnDeskQt::Plan(const TurnAsk& ask, TackAngle angle, const HelmNow& now) {
  TurnAsk whole = ask;
  const bool best = angle == TackAngle::Best && ask.Kind != ManoeuvreKind::Steer;
  if (best) {
    whole.Aim = m_parts.Best(ask.Kind == ManoeuvreKind::Tack);
  }
  TurnPlan plan = PlanTurn(whole, now);
  if (best && !whole.Aim && plan.Refusal.empty()) {
    plan.Refusal = Tr("No turn: the polar has no best angle");
  }
  return plan;
}

void TurnDeskQt::Begin(const TurnPlan& plan) {
  QWidget* active = QApplication::activeWindow();
  // A question that was answered, or the dialog, is gone in a moment.
  m_opener = active != nullptr && !active->isModal() && active->isVisible() && active != m_window.get()
                 ? active
                 : &m_parts.Window;
  m_parts.Run.Begin(plan, m_parts.Tack().Kept().StageLimit);
}

bool TurnDeskQt::Stop() {
  frmTack* dialog = m_parts.TackMade();
  const bool own = dialog != nullptr && dialog->Turning();
  if (!own && !m_parts.Run.Running()) {
    return false;
  }
  if (own) {
    dialog->reject();
  }
  if (m_parts.Run.Running()) {
    m_parts.Run.Stop();
    m_parts.Say(Tr("Turn stopped"));
  }
  return true;
}

bool TurnDeskQt::eventFilter(QObject* /*watched*/, QEvent* event) {
  const bool key = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  if (!key || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape ||
      static_cast<QKeyEvent*>(event)->modifiers() != Qt::NoModifier) {
    return false;
  }
  // First in any window, question, menu or box: what Escape means there otherwise can wait.
  if (event->type() == QEvent::KeyPress) {
    return Stop();
  }
  if (m_parts.Main.Now().Hand == PilotHand::Turn) {
    event->accept();
    return true;
  }
  return false;
}

}  // namespace veerwatch
