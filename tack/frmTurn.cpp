#include "tack/frmTurn.h"

#include <QEvent>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kWidth = 480;      // [px]
constexpr int kTextHeight = 22;  // [px]
constexpr int kFigureHeight = 17;
constexpr int kBarHeight = 28;
constexpr int kStopLetters = 48;
constexpr int kStopHeight = 110;
constexpr int kMargin = 16;
constexpr int kSpacing = 10;

QLabel* Line(const char* name, const char* toolTip, bool bold, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setToolTip(TrQ(toolTip));
  QFont letters = label->font();
  letters.setPixelSize(kTextHeight);
  letters.setBold(bold);
  label->setFont(letters);
  label->setWordWrap(true);
  return label;
}

int Rounded(double degrees) { return static_cast<int>(std::lround(degrees)); }

}  // namespace

frmTurn::frmTurn(QWidget* main, std::function<void()> stop) : QDialog(main), m_stop(std::move(stop)) {
  setObjectName(QStringLiteral("frmTurn"));
  setModal(false);
  setAttribute(Qt::WA_ShowWithoutActivating);
  lblTurn = Line("lblTurn", TrMark("What the boat does"), true, this);
  constexpr int kLines = 2;
  lblTurn->setMinimumHeight(kLines * lblTurn->fontMetrics().lineSpacing());
  lblStage = Line("lblStage", TrMark("How far she is"), false, this);
  ProgressBarTurn = new QProgressBar(this);
  ProgressBarTurn->setObjectName(QStringLiteral("ProgressBarTurn"));
  ProgressBarTurn->setAccessibleName(TrQ("Turned so far"));
  ProgressBarTurn->setFormat(TrQ("%v of %m deg"));
  ProgressBarTurn->setAlignment(Qt::AlignCenter);
  ProgressBarTurn->setFixedHeight(kBarHeight);
  QFont figures = ProgressBarTurn->font();
  figures.setPixelSize(kFigureHeight);
  ProgressBarTurn->setFont(figures);
  cmdStop = new StopButtonQt(kStopLetters, this);
  cmdStop->setFixedHeight(kStopHeight);
  connect(cmdStop, &QPushButton::clicked, this, &QDialog::reject);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  all->setSpacing(kSpacing);
  for (QWidget* part : {static_cast<QWidget*>(lblTurn), static_cast<QWidget*>(lblStage),
                        static_cast<QWidget*>(ProgressBarTurn), static_cast<QWidget*>(cmdStop)}) {
    all->addWidget(part);
  }
  setFixedWidth(kWidth);
}

void frmTurn::Show(const TurnRun& run, QWidget& opener) {
  if (!run.Running()) {
    hide();
    return;
  }
  const TurnEngine& engine = run.Engine();
  constexpr const char* kWords[]{"", TrMark("Steer"), TrMark("Tack"), TrMark("Jibe")};
  setWindowTitle(QStringLiteral("Veerwatch - ") + TrQ(kWords[static_cast<int>(run.Made().Kind)]));
  lblTurn->setText(QString::fromStdString(PlanWords(run.Made())));
  lblStage->setText(QString::fromStdString(engine.StageText()));
  ProgressBarTurn->setRange(0, std::max(1, Rounded(engine.Whole())));
  ProgressBarTurn->setValue(std::clamp(Rounded(engine.Turned()), 0, ProgressBarTurn->maximum()));
  if (!isVisible()) {
    ShowFirst(opener);
  }
}

void frmTurn::ShowFirst(QWidget& opener) {
  // The windows of the desktop know each other only once they are made.
  winId();
  opener.winId();
  windowHandle()->setTransientParent(opener.windowHandle());
  adjustSize();
  // Over the lower edge, where it hides the least.
  const QRect frame = opener.frameGeometry();
  move(frame.center().x() - width() / 2, std::max(frame.top(), frame.bottom() - height() - kMargin));
  show();
  raise();
}

bool frmTurn::event(QEvent* event) {
  // A question of the window that this one stays in front of blocks it as well, and a turn has to be ended at
  // any time.
  if (event->type() == QEvent::WindowBlocked) {
    windowHandle()->setTransientParent(nullptr);
  }
  return QDialog::event(event);
}

void frmTurn::done(int result) {
  QDialog::done(result);
  m_stop();
}

}  // namespace veerwatch
