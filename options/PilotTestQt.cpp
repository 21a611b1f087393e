#include "options/PilotTestQt.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <cmath>
#include <utility>

#include "options/OptionControlsQt.h"
#include "options/PilotTestWords.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kWhole = 1000;
constexpr int kLeastWidth = 30;  // in widths of a digit

QLabel* NewLines(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

void PilotTestQt::Ask(const Parts& parts, TakeOver takeOver) {
  const std::string title = Tr("Veerwatch - Test Pilot");
  const auto over = [told = parts.Over](const std::string& verdict) {
    if (told) {
      told(verdict);
    }
  };
  const std::string why = PilotTestHindrance(parts.Main.Now());
  if (!why.empty()) {
    parts.Asks.Inform(title, why);
    over(why);
    return;
  }
  parts.Asks.AskYesNo(title, PilotTestQuestion(), [parts, over, takeOver = std::move(takeOver)](bool yes) {
    if (!yes) {
      over("");
      return;
    }
    auto* dialog = new PilotTestQt(parts, takeOver);
    dialog->m_over = over;
    dialog->open();
    dialog->m_run.Begin();
  });
}

PilotTestQt::PilotTestQt(const Parts& parts, TakeOver takeOver)
    : QDialog(&parts.Window),
      m_main(parts.Main),
      m_takeOver(std::move(takeOver)),
      lblPilotTest(NewLines("lblPilotTest", this)),
      lblPilotTestAdvice(NewLines("lblPilotTestAdvice", this)),
      ProgressBarPilotTest(new QProgressBar(this)),
      cmdPilotTestTake(new QPushButton(TrQ("&Take Over"), this)),
      cmdPilotTestCancel(new QPushButton(TrQ("Cancel"), this)),
      m_run(parts.Main, parts.Time, [this] { Show(); }) {
  setObjectName(QStringLiteral("PilotTest"));
  setFont(parts.Window.font());
  setWindowTitle(TrQ("Veerwatch - Test Pilot"));
  setAttribute(Qt::WA_DeleteOnClose);
  parts.Window.installEventFilter(this);
  ProgressBarPilotTest->setObjectName(QStringLiteral("ProgressBarPilotTest"));
  ProgressBarPilotTest->setRange(0, kWhole);
  ProgressBarPilotTest->setTextVisible(false);
  NameControl(*cmdPilotTestTake, "cmdPilotTestTake",
              TrMark("Puts the lag and the suggestion into the boxes of the Tracking tab; Apply stores it"));
  NameControl(*cmdPilotTestCancel, "cmdPilotTestCancel", TrMark("Ends the test with the bearing of before"));
  cmdPilotTestTake->setAutoDefault(false);
  cmdPilotTestTake->setEnabled(false);
  connect(cmdPilotTestCancel, &QPushButton::clicked, this, [this] { reject(); });
  connect(cmdPilotTestTake, &QPushButton::clicked, this, [this] {
    m_takeOver(PilotTestLag(m_run.Test().Result()));
    accept();
  });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdPilotTestTake);
  buttons->addWidget(cmdPilotTestCancel);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(lblPilotTest);
  rows->addWidget(lblPilotTestAdvice);
  rows->addWidget(ProgressBarPilotTest);
  rows->addStretch();
  rows->addLayout(buttons);
  const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
  // Room for the result from the start, so that nothing moves.
  setMinimumSize(kLeastWidth * 2 * digit, 12 * fontMetrics().lineSpacing());
}

bool PilotTestQt::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide) {
    reject();
  }
  return QDialog::eventFilter(watched, event);
}

void PilotTestQt::Show() {
  if (m_run.Running()) {
    lblPilotTest->setText(QString::fromStdString(PilotTestStage(m_run.Test().At())));
    ProgressBarPilotTest->setValue(static_cast<int>(std::lround(m_run.Progress() * kWhole)));
    return;
  }
  ProgressBarPilotTest->hide();
  cmdPilotTestCancel->setText(TrQ("Close"));
  if (m_run.Test().At() == PilotTest::Stage::Done) {
    ShowResult();
  } else {
    lblPilotTest->setText(QString::fromStdString(Verdict()));
  }
}

std::string PilotTestQt::Verdict() const {
  return m_run.Test().At() == PilotTest::Stage::Done ? PilotTestWords(m_run.Test().Result())
                                                     : Filled(Tr("The test has ended: %1"), {m_run.Ended()});
}

void PilotTestQt::ShowResult() {
  const PilotTestResult& result = m_run.Test().Result();
  lblPilotTest->setText(QString::fromStdString(Verdict()));
  const HelmNow now = m_main.Now();
  const std::string advice = PilotTestAdvice(
      result, {now.WindsASecond.value_or(1.0), 0.0, now.Heading.has_value(), now.BoatSpeedKnown});
  lblPilotTestAdvice->setText(QString::fromStdString(advice));
  cmdPilotTestTake->setEnabled(!advice.empty());
}

void PilotTestQt::done(int result) {
  m_run.Stop();
  QDialog::done(result);
  m_over(Verdict());
}

}  // namespace veerwatch
