#include "app/SailDeskQt.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

#include "app/MarkLegsOf.h"
#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr int kSaidFor = 10000;  // [ms]

WindCrossing NamedBy(ManoeuvreKind kind) {
  return kind == ManoeuvreKind::Tack ? WindCrossing::Bow : WindCrossing::Stern;
}

}  // namespace

SailDeskQt::SailDeskQt(Parts parts)
    : m_parts(std::move(parts)),
      m_run({m_parts.Set, m_parts.Boat, m_parts.Run, [this] { return Mark(); },
             [this](const MarkAsk& ask) { return MarkLegsOf(m_parts.Polar().Model().Table(), ask); },
             m_parts.Turns, [this] { return m_parts.Polar().Model().Settings().TackByItself; }, m_parts.Begin,
             [this] { Show(); }, m_parts.Sound, [this](CourseEnd why) { Ended(why); }}) {
  m_said.setSingleShot(true);
  m_said.setInterval(kSaidFor);
  connect(&m_said, &QTimer::timeout, this, [this] { Show(); });
  QApplication::instance()->installEventFilter(this);
}

std::optional<CourseMark> SailDeskQt::Mark() const {
  const PolarSettings& course = m_parts.Polar().Model().Settings();
  if (!course.CourseWaypoint || course.CourseWaypointIndex == CourseSource::None) {
    return std::nullopt;
  }
  if (course.CourseWaypointIndex == CourseSource::TargetBearing) {
    return CourseMark{static_cast<double>(course.CourseTargetBearing), std::nullopt};
  }
  const InstrumentData& data = m_parts.Boat.Data();
  if (!data.WaypointValid || m_parts.Boat.Now().Watch.Of(Watched::Waypoint).State == Freshness::Lost) {
    return std::nullopt;
  }
  return CourseMark{static_cast<double>(data.WaypointBearing), static_cast<double>(data.WaypointRange)};
}

void SailDeskQt::Wanted(bool wanted) {
  if (!wanted) {
    m_run.End(CourseEnd::ByUser);
    return;
  }
  if (const auto why = m_run.Begin()) {
    SayWhy(Filled(Tr("No course to sail: %1"), {Tr(CourseEndText(*why))}));
  }
}

void SailDeskQt::SayWhy(const std::string& text) {
  m_parts.Polar().SailShow({false, text, {}});
  m_parts.Say(text);
  m_said.start();
}

void SailDeskQt::Ended(CourseEnd why) {
  m_parts.Notice({});
  if (why == CourseEnd::ByUser) {
    Show();
    return;
  }
  SayWhy(Filled(Tr("Sail the Course ended: %1"), {Tr(CourseEndText(why))}));
  m_parts.Sound();
}

void SailDeskQt::Show() {
  SailView view;
  view.Sails = m_run.Running();
  view.Line = m_run.Line();
  view.Prompt.Caption = m_run.Prompt();
  if (!view.Prompt.Caption.empty()) {
    view.Prompt.Back = m_run.Plan().Change < 0.0 ? TurnColor::Port : TurnColor::Starboard;
  }
  m_said.stop();
  m_parts.Polar().SailShow(view);
  m_parts.Notice(m_run.Prompt());
}

void SailDeskQt::Turn() {
  if (m_run.Prompt().empty()) {
    return;
  }
  const TurnPlan plan = m_run.Plan();
  if (!plan.Refusal.empty()) {
    m_parts.Say(plan.Refusal);
    return;
  }
  const std::string question = PlanQuestion(plan, NamedBy(plan.Kind));
  if (question.empty()) {
    m_run.TurnNow();
    return;
  }
  m_parts.Asks.WarnYesNo(kApplicationTitle, PlanWords(plan) + "?", [this, question](bool yes) {
    if (yes && !m_run.Prompt().empty() &&
        PlanQuestion(m_run.Plan(), NamedBy(m_run.PromptKind())) == question) {
      m_run.TurnNow();
    }
  });
}

std::optional<TurnPlan> SailDeskQt::Ahead() const {
  if (m_run.Prompt().empty()) {
    return std::nullopt;
  }
  const TurnPlan plan = m_run.Plan();
  return plan.Refusal.empty() ? std::optional(plan) : std::nullopt;
}

bool SailDeskQt::Listens() const {
  if (m_run.Prompt().empty() || QApplication::activePopupWidget() != nullptr ||
      QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  const QWidget* active = QApplication::activeWindow();
  const QWidget* focus = QApplication::focusWidget();
  const auto* box = qobject_cast<const QLineEdit*>(focus);
  const bool types = (box != nullptr && !box->isReadOnly()) || qobject_cast<const QAbstractSpinBox*>(focus);
  return !types && (active == &m_parts.Window || active == &m_parts.Polar());
}

bool SailDeskQt::eventFilter(QObject* /*watched*/, QEvent* event) {
  const bool key = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  if (!key) {
    return false;
  }
  const auto* pressed = static_cast<QKeyEvent*>(event);
  const bool enter = pressed->key() == Qt::Key_Return || pressed->key() == Qt::Key_Enter;
  if (!enter || (pressed->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier || !Listens()) {
    return false;
  }
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
  } else if (!pressed->isAutoRepeat()) {
    Turn();
  }
  return true;
}

}  // namespace veerwatch
