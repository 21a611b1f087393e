#include "tack/TackControlsQt.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kTextHeight = 18;  // [px]
constexpr int kEntryHeight = 24;
constexpr int kHeadingHeight = 44;
constexpr int kMargin = 24;
constexpr int kSpacing = 14;
constexpr QSize kButtonSize(150, 52);
constexpr int kBarHeight = 30;
constexpr int kStepGap = 2;
constexpr int kStopHeight = 30;  // of its letters
constexpr std::array<const char*, 4> kWords{"", TrMark("Steer"), TrMark("Tack"), TrMark("Jibe")};
constexpr const char* kManual = TrMark("Set tracking mode to Manual");
constexpr const char* kOvershoot = TrMark("Overshoot the heading");
constexpr const char* kLimit = TrMark("Limit the rate of change");
/// The longest: a question in two parts, and that the boat swings.
constexpr int kNoteLines = 4;
/// On a small screen.
constexpr int kFewNoteLines = 2;

/// What stands in front of the heading, for each of kWords.
QString Prompt(std::size_t kind) {
  constexpr std::array<const char*, 4> kPrompts{
      "", TrMark("&Steer to new heading:"), TrMark("&Tack to new heading:"), TrMark("&Jibe to new heading:")};
  return TrQ(kPrompts[kind]);
}

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

TackControlsQt::TackControlsQt(QDialog& dialog) : m_dialog(dialog), m_noteLines(kNoteLines) {
  dialog.setFont(Sized(dialog.font(), kTextHeight));
  txtHeading =
      Entry("txtHeading", TrQ("Heading to turn to"), QStringLiteral("0000"), kHeadingHeight, &m_dialog);
  txtOvershoot = Entry("txtOvershoot", TrQ("How far to turn past the heading, then left to you"),
                       QStringLiteral("0000.0"), kEntryHeight, &m_dialog);
  txtRate = Entry("txtRate", TrQ("How fast to turn"), QStringLiteral("0000.0"), kEntryHeight, &m_dialog);
  MakePrompt();
  MakeSteps();
  MakeThenTrack();
  MakeButtons();
  LayOut();
}

void TackControlsQt::MakePrompt() {
  lblPrompt = Caption("lblPrompt", QString(), txtHeading, &m_dialog);
  lblPrompt->setFont(Sized(lblPrompt->font(), kEntryHeight));
  // Room for the longest, so that all three kinds are of one size.
  for (std::size_t kind = 0; kind < kWords.size(); ++kind) {
    lblPrompt->setText(Prompt(kind));
    lblPrompt->setMinimumWidth(std::max(lblPrompt->minimumWidth(), lblPrompt->sizeHint().width()));
  }
}

void TackControlsQt::MakeSteps() {
  lstTack = new QListWidget(&m_dialog);
  lstTack->setObjectName(QStringLiteral("lstTack"));
  lstTack->setAccessibleName(TrQ("Steps"));
  lstTack->setToolTip(TrQ("What happens when you press OK"));
  lstTack->setFocusPolicy(Qt::NoFocus);
  lstTack->setSelectionMode(QAbstractItemView::NoSelection);
  lstTack->setFrameShape(QFrame::NoFrame);
  lstTack->setSpacing(kStepGap);
  lstTack->viewport()->setAutoFillBackground(false);
  ProgressBarTack = new QProgressBar(&m_dialog);
  ProgressBarTack->setObjectName(QStringLiteral("ProgressBarTack"));
  ProgressBarTack->setAccessibleName(TrQ("Turned so far"));
  ProgressBarTack->setToolTip(TrQ("Degrees turned so far"));
  ProgressBarTack->setFormat(TrQ("%v of %m deg"));
  ProgressBarTack->setAlignment(Qt::AlignCenter);
  ProgressBarTack->setFixedHeight(kBarHeight);
  QSizePolicy keepsItsPlace = ProgressBarTack->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  ProgressBarTack->setSizePolicy(keepsItsPlace);
}

void TackControlsQt::MakeThenTrack() {
  chkThenTrack = new QCheckBox(TrQ("T&hen track"), &m_dialog);
  chkThenTrack->setObjectName(QStringLiteral("chkThenTrack"));
  chkThenTrack->setToolTip(TrQ("Ease the overshoot out, then track the wind angle of the other tack"));
  cboAngle = new QComboBox(&m_dialog);
  cboAngle->setObjectName(QStringLiteral("cboAngle"));
  cboAngle->setAccessibleName(TrQ("Angle of the other tack"));
  cboAngle->setToolTip(TrQ("Which wind angle is tracked then"));
  cboAngle->addItems({TrQ("Mirrored angle"), TrQ("Polar's best")});
}

void TackControlsQt::MakeButtons() {
  cmdOk = new QPushButton(TrQ("OK"), &m_dialog);
  cmdOk->setObjectName(QStringLiteral("cmdOk"));
  cmdOk->setToolTip(TrQ("Take the pilot and begin to turn"));
  cmdOk->setDefault(true);
  cmdCancel = new QPushButton(TrQ("&Cancel"), &m_dialog);
  cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
  cmdCancel->setToolTip(TrQ("Stop here and leave the pilot as it is"));
  // A second Enter must not stop the turn that the first one began.
  cmdCancel->setAutoDefault(false);
  for (QPushButton* button : {cmdOk, cmdCancel}) {
    button->setMinimumSize(kButtonSize);
  }
  QObject::connect(cmdCancel, &QPushButton::clicked, &m_dialog, &QDialog::reject);
}

void TackControlsQt::LayOut() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kSpacing);
  grid->addWidget(lblPrompt, 0, 0);
  grid->addWidget(txtHeading, 0, 1);
  grid->addWidget(new QLabel(TrQ("deg M"), &m_dialog), 0, 2);
  grid->addWidget(Caption("lblOvershoot", TrQ("&Overshoot"), txtOvershoot, &m_dialog), 1, 0);
  grid->addWidget(txtOvershoot, 1, 1, Qt::AlignRight);
  grid->addWidget(new QLabel(TrQ("deg"), &m_dialog), 1, 2);
  grid->addWidget(Caption("lblRate", TrQ("&Rate of Change (deg/sec)"), txtRate, &m_dialog), 2, 0);
  grid->addWidget(txtRate, 2, 1, Qt::AlignRight);
  grid->setColumnStretch(0, 1);
  lblWords = new QLabel(&m_dialog);
  lblWords->setObjectName(QStringLiteral("lblWords"));
  lblWords->setToolTip(TrQ("What the boat will do"));
  lblNote = new QLabel(&m_dialog);
  lblNote->setObjectName(QStringLiteral("lblNote"));
  lblNote->setWordWrap(true);
  lblNote->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  cmdStop = new StopButtonQt(kStopHeight, &m_dialog);
  QObject::connect(cmdStop, &QPushButton::clicked, &m_dialog, &QDialog::reject);
  ShowStop(false);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kSpacing);
  auto* then = new QVBoxLayout;
  then->setSpacing(kStepGap);
  then->addWidget(chkThenTrack);
  then->addWidget(cboAngle);
  buttons->addLayout(then);
  buttons->addStretch();
  buttons->addWidget(cmdOk);
  buttons->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(&m_dialog);
  all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  all->setSpacing(kSpacing);
  all->addLayout(grid);
  all->addWidget(lblWords);
  all->addWidget(lstTack);
  auto* notes = new QVBoxLayout;
  notes->setSpacing(0);
  notes->addWidget(lblNote);
  notes->addWidget(cmdStop);
  all->addLayout(notes);
  all->addWidget(ProgressBarTack);
  all->addLayout(buttons);
  all->setSizeConstraint(QLayout::SetFixedSize);
}

void TackControlsQt::ShowStop(bool turning) const {
  const int line = lblNote->fontMetrics().lineSpacing();
  const int lines = turning ? 1 : m_noteLines;
  lblNote->setFixedHeight(lines * line);
  cmdStop->setFixedHeight((m_noteLines - 1) * line);
  cmdStop->setVisible(turning);
}

void TackControlsQt::Fit(int height) {
  lstTack->show();
  m_noteLines = kNoteLines;
  ShowStop(false);
  const bool small = m_dialog.sizeHint().height() > height;
  lstTack->setHidden(small);
  m_noteLines = small ? kFewNoteLines : kNoteLines;
  ShowStop(false);
}

void TackControlsQt::ShowKind(ManoeuvreKind kind, bool overshoots) {
  const auto at = static_cast<std::size_t>(kind);
  m_dialog.setWindowTitle(QStringLiteral("Veerwatch - ") + TrQ(kWords[at]));
  lblPrompt->setText(Prompt(at));
  lstTack->clear();
  for (const char* step : {kManual, kOvershoot, kLimit}) {
    if (step != kOvershoot || overshoots) {
      lstTack->addItem(QStringLiteral("%1) %2").arg(lstTack->count() + 1).arg(TrQ(step)));
    }
  }
  // Room for the steps of a tack, for the same reason.
  constexpr int kMostSteps = 3;
  lstTack->setFixedHeight(kMostSteps * (lstTack->sizeHintForRow(0) + 2 * kStepGap));
}

}  // namespace veerwatch
