#include "tack/frmTack.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "platform/ColoursQt.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr int kTimerInterval = 1000;  // [ms]
constexpr double kMillisecondsPerSecond = 1000.0;
constexpr int kTextHeight = 18;  // [px]
constexpr int kEntryHeight = 24;
constexpr int kHeadingHeight = 44;
constexpr int kMargin = 24;
constexpr int kSpacing = 14;
constexpr QSize kButtonSize(150, 52);
constexpr int kBarHeight = 30;
constexpr int kStepGap = 2;
/// Part of the text's colour in a text that does not answer.
constexpr double kDimmed = 0.6;

constexpr std::array<const char*, 4> kWords{"", "Steer", "Tack", "Jibe"};
constexpr const char* kManual = "Set tracking mode to Manual";
constexpr const char* kOvershoot = "Overshoot the heading";
constexpr const char* kLimit = "Limit the rate of change";
constexpr const char* kFilledAnew = "Heading or wind moved, filled anew: OK once more";
/// The longest: a question in two parts, and that the boat swings.
constexpr int kNoteLines = 4;

std::size_t IndexOf(ManoeuvreKind kind) { return static_cast<std::size_t>(kind); }

QString Text(const std::string& text) { return QString::fromStdString(text); }

QString Prompt(const char* word) { return QStringLiteral("&%1 to new heading:").arg(QLatin1String(word)); }

QFont Sized(QFont font, int pixels) {
  font.setPixelSize(pixels);
  return font;
}

/// A box for one number of up to `pattern`'s width, in figures of `pixels`.
EntryLineQt* Entry(const char* name, const QString& toolTip, const QString& pattern, int pixels,
                   QWidget* parent) {
  auto* box = new EntryLineQt(parent);
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(toolTip);
  box->setToolTip(toolTip);
  box->setAlignment(Qt::AlignRight);
  box->setFont(Sized(box->font(), pixels));
  const QSize figures = box->fontMetrics().size(Qt::TextSingleLine, pattern);
  box->setFixedSize(figures.width() + pixels, figures.height() * 5 / 4);
  return box;
}

QLabel* Caption(const char* name, const QString& text, QWidget* buddy, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(QLatin1String(name));
  label->setBuddy(buddy);
  return label;
}

}  // namespace

frmTack::frmTack(const TackParts& parts, QWidget* main) : QDialog(main), m_parts(parts) {
  setObjectName(QStringLiteral("frmTack"));
  setModal(false);
  TackRecall(m_parts.Store, m_settings);
  m_parts.TimerTack.Interval(kTimerInterval);
  MakeControls();
  Dim();
  m_told = m_parts.Main.Observers().Join(*this);
}

void frmTack::MakeControls() {
  setFont(Sized(font(), kTextHeight));
  txtHeading =
      Entry("txtHeading", QStringLiteral("Heading to turn to"), QStringLiteral("0000"), kHeadingHeight, this);
  txtOvershoot = Entry("txtOvershoot", QStringLiteral("How far to turn past the heading, then left to you"),
                       QStringLiteral("0000.0"), kEntryHeight, this);
  txtRate =
      Entry("txtRate", QStringLiteral("How fast to turn"), QStringLiteral("0000.0"), kEntryHeight, this);
  MakePrompt();
  MakeSteps();
  MakeButtons();
  LayOut();
}

void frmTack::MakePrompt() {
  lblPrompt = Caption("lblPrompt", QString(), txtHeading, this);
  lblPrompt->setFont(Sized(lblPrompt->font(), kEntryHeight));
  // Room for the longest, so that all three kinds are of one size.
  for (const char* word : kWords) {
    lblPrompt->setText(Prompt(word));
    lblPrompt->setMinimumWidth(std::max(lblPrompt->minimumWidth(), lblPrompt->sizeHint().width()));
  }
}

void frmTack::MakeSteps() {
  lstTack = new QListWidget(this);
  lstTack->setObjectName(QStringLiteral("lstTack"));
  lstTack->setAccessibleName(QStringLiteral("Steps"));
  lstTack->setToolTip(QStringLiteral("What happens when you press OK"));
  lstTack->setFocusPolicy(Qt::NoFocus);
  lstTack->setSelectionMode(QAbstractItemView::NoSelection);
  lstTack->setFrameShape(QFrame::NoFrame);
  lstTack->setSpacing(kStepGap);
  lstTack->viewport()->setAutoFillBackground(false);
  ProgressBarTack = new QProgressBar(this);
  ProgressBarTack->setObjectName(QStringLiteral("ProgressBarTack"));
  ProgressBarTack->setAccessibleName(QStringLiteral("Turned so far"));
  ProgressBarTack->setToolTip(QStringLiteral("Degrees turned so far"));
  ProgressBarTack->setFormat(QStringLiteral("%v of %m deg"));
  ProgressBarTack->setAlignment(Qt::AlignCenter);
  ProgressBarTack->setFixedHeight(kBarHeight);
  QSizePolicy keepsItsPlace = ProgressBarTack->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  ProgressBarTack->setSizePolicy(keepsItsPlace);
}

void frmTack::MakeButtons() {
  cmdOk = new QPushButton(QStringLiteral("OK"), this);
  cmdOk->setObjectName(QStringLiteral("cmdOk"));
  cmdOk->setToolTip(QStringLiteral("Take the pilot and begin to turn"));
  cmdOk->setDefault(true);
  cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
  cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
  cmdCancel->setToolTip(QStringLiteral("Stop here and leave the pilot as it is"));
  // A second Enter must not stop the turn that the first one began.
  cmdCancel->setAutoDefault(false);
  for (QPushButton* button : {cmdOk, cmdCancel}) {
    button->setMinimumSize(kButtonSize);
  }
  connect(cmdOk, &QPushButton::clicked, this, [this] { cmdOk_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmTack::LayOut() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kSpacing);
  grid->addWidget(lblPrompt, 0, 0);
  grid->addWidget(txtHeading, 0, 1);
  grid->addWidget(new QLabel(QStringLiteral("deg M"), this), 0, 2);
  grid->addWidget(Caption("lblOvershoot", QStringLiteral("&Overshoot"), txtOvershoot, this), 1, 0);
  grid->addWidget(txtOvershoot, 1, 1, Qt::AlignRight);
  grid->addWidget(new QLabel(QStringLiteral("deg"), this), 1, 2);
  grid->addWidget(Caption("lblRate", QStringLiteral("&Rate of Change (deg/sec)"), txtRate, this), 2, 0);
  grid->addWidget(txtRate, 2, 1, Qt::AlignRight);
  grid->setColumnStretch(0, 1);
  lblWords = new QLabel(this);
  lblWords->setObjectName(QStringLiteral("lblWords"));
  lblWords->setToolTip(QStringLiteral("What the boat will do"));
  lblNote = new QLabel(this);
  lblNote->setObjectName(QStringLiteral("lblNote"));
  lblNote->setWordWrap(true);
  lblNote->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblNote->setFixedHeight(kNoteLines * lblNote->fontMetrics().lineSpacing());
  for (const QLineEdit* box : {txtHeading, txtOvershoot}) {
    connect(box, &QLineEdit::textEdited, this, [this] {
      m_question.clear();
      ShowWords();
      HelmChanged();
    });
  }
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kSpacing);
  buttons->addStretch();
  buttons->addWidget(cmdOk);
  buttons->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  all->setSpacing(kSpacing);
  all->addLayout(grid);
  all->addWidget(lblWords);
  all->addWidget(lstTack);
  all->addWidget(lblNote);
  all->addWidget(ProgressBarTack);
  all->addLayout(buttons);
  all->setSizeConstraint(QLayout::SetFixedSize);
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
  ShowWords();
  HelmChanged();
  ProgressBarTack->hide();
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

void frmTack::Dim() {
  QPalette colours;
  for (const auto& [text, ground] :
       {std::pair{QPalette::Text, QPalette::Base}, std::pair{QPalette::ButtonText, QPalette::Button}}) {
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
  setWindowTitle(QStringLiteral("Veerwatch - ") + QLatin1String(kWords[kind]));
  lblPrompt->setText(Prompt(kWords[kind]));
  txtHeading->Show(Text(FormatNumber(m_newHeading, "0")));
  txtOvershoot->Show(Text(ShortestText(m_settings.Overshoot[kind])));
  txtRate->Show(Text(ShortestText(m_settings.Rate[kind])));
  lstTack->clear();
  for (const char* step : {kManual, kOvershoot, kLimit}) {
    if (step != kOvershoot || m_turn.Direction() != 0) {
      lstTack->addItem(QStringLiteral("%1) %2").arg(lstTack->count() + 1).arg(QLatin1String(step)));
    }
  }
  // Room for the steps of a tack, for the same reason.
  constexpr int kMostSteps = 3;
  lstTack->setFixedHeight(kMostSteps * (lstTack->sizeHintForRow(0) + 2 * kStepGap));
}

void frmTack::Steering(bool steering) {
  m_parts.TimerTack.Enabled(steering);
  if (steering) {
    m_parts.Main.TurnBegins();
  } else {
    m_parts.Main.TurnOver();
  }
  txtHeading->setReadOnly(steering);
  for (QWidget* control :
       {static_cast<QWidget*>(cmdOk), static_cast<QWidget*>(txtOvershoot), static_cast<QWidget*>(txtRate)}) {
    control->setEnabled(!steering);
  }
}

WindCrossing frmTack::Crossing() const {
  const float overshoot = LeadingNumber(txtOvershoot->text().toStdString());
  return CrossingOf(m_turn.Wind(), m_turn.Planned(TypedHeading(), overshoot));
}

float frmTack::TypedHeading() const { return LeadingNumber(txtHeading->text().toStdString(), m_newHeading); }

void frmTack::ShowWords() {
  if (m_parts.TimerTack.Enabled()) {
    return;
  }
  const float overshoot = LeadingNumber(txtOvershoot->text().toStdString());
  const double change = m_turn.Planned(TypedHeading(), overshoot);
  lblWords->setText(Text(TurnWords(change, CrossingOf(m_turn.Wind(), change))));
}

void frmTack::ShowNotes(const TurnNow& now) {
  std::string note = TurnHindrance(now.Helm);
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
  if (!m_parts.TimerTack.Enabled()) {
    ShowNotes(m_parts.Now());
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
    m_question = kFilledAnew;
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
  const TurnNow now = m_parts.Now();
  if (TurnHindrance(now.Helm).empty() && !AsksOnceMore(now)) {
    Begin();
  } else {
    ShowNotes(now);
  }
}

void frmTack::Begin() {
  m_parts.Main.TrackSetManual();
  const std::size_t kind = IndexOf(m_turn.Kind());
  m_settings.Overshoot[kind] = LeadingNumber(txtOvershoot->text().toStdString());
  m_settings.Rate[kind] = LeadingNumber(txtRate->text().toStdString());
  for (EntryLineQt* box : {txtHeading, txtOvershoot, txtRate}) {
    box->Take();
  }
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

void frmTack::ShowProgress() {
  ProgressBarTack->setValue(static_cast<int>(std::lround(std::fabs(m_turn.Progress()))));
}

void frmTack::TimerTack_Timer() {
  if (!m_parts.TimerTack.Enabled()) {
    return;
  }
  const std::int64_t now = m_parts.Time.Now().Steady;
  const double seconds = static_cast<double>(now - std::exchange(m_stepped, now)) / kMillisecondsPerSecond;
  const bool arrived = m_pace.Step(m_turn, m_parts.Now().Helm.Sent, seconds);
  lblNote->setText(m_pace.Waiting() ? QStringLiteral("Waits: nothing leaves for the pilot") : QString());
  ShowProgress();
  txtHeading->Show(Text(FormatNumber(m_turn.Heading(), "0")));
  m_parts.Main.AutoPilotSet(m_turn.AutoPilot());
  if (arrived) {
    accept();
    parentWidget()->activateWindow();
  }
}

void frmTack::OnTurnEnds(TurnFate why) {
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
  m_parts.TimerTack.Enabled(false);
  m_parts.Main.TurnOver();
  QDialog::done(result);
}

}  // namespace veerwatch
