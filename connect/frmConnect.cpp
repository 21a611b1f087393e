#include "connect/frmConnect.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <string>
#include <utility>

#include "connect/ReadyPageQt.h"
#include "connect/SteersPageQt.h"
#include "connect/ValuesPageQt.h"
#include "options/PilotTestQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kRefreshes = 500;  // [ms]
constexpr QSize kUsualSize(820, 560);
constexpr double kScreenShare = 0.94;
constexpr double kTitleShare = 1.3;  ///< of the size of the other texts

/// The page, which scrolls where the screen has no room for all of it.
QScrollArea* Scrolling(QWidget* page, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(page);
  page->setAutoFillBackground(false);
  area->viewport()->setAutoFillBackground(false);
  return area;
}

}  // namespace

frmConnect::frmConnect(Parts parts, QWidget* main)
    : QDialog(main),
      m_parts(std::move(parts)),
      m_asks(m_parts.Asks.Of(*this)),
      m_desk(m_parts.Desk),
      lblConnectPage(new QLabel(this)),
      m_stack(new QStackedWidget(this)),
      lblConnectHint(new QLabel(this)) {
  setObjectName(QStringLiteral("frmConnect"));
  setWindowTitle(TrQ("Veerwatch - Connect Your Boat"));
  setAttribute(Qt::WA_QuitOnClose, false);
  lblConnectPage->setObjectName(QStringLiteral("lblConnectPage"));
  QFont title = font();
  title.setPointSizeF(title.pointSizeF() * kTitleShare);
  title.setBold(true);
  lblConnectPage->setFont(title);
  lblConnectHint->setObjectName(QStringLiteral("lblConnectHint"));
  lblConnectHint->setWordWrap(true);
  lblConnectHint->setTextFormat(Qt::PlainText);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(lblConnectPage);
  MakePages();
  rows->addWidget(m_stack, 1);
  rows->addWidget(lblConnectHint);
  MakeButtons();
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (QPushButton* button : {cmdConnectBack, cmdConnectNext, cmdConnectCancel}) {
    buttons->addWidget(button);
  }
  rows->addLayout(buttons);
  m_timer.setObjectName(QStringLiteral("tmrConnect"));
  m_timer.setInterval(kRefreshes);
  connect(&m_timer, &QTimer::timeout, this, [this] {
    m_desk.Tick();
    Refresh();
  });
  resize(kUsualSize.boundedTo(screen()->availableSize() * kScreenShare));
}

void frmConnect::MakePages() {
  m_instruments = new InstrumentsPageQt(m_desk, m_stack);
  m_instruments->Simulate([this] {
    done(QDialog::Rejected);
    m_parts.Simulate();
  });
  m_instruments->Again([this] { Search(); });
  m_autopilot = new AutopilotPageQt(m_desk, m_stack);
  m_autopilot->Test([this] { TestPilot(); });
  m_pages = {m_instruments, new ValuesPageQt(m_desk, m_stack), m_autopilot,
             new SteersPageQt(m_desk, m_parts.NewProfile, m_stack), new ReadyPageQt(m_desk, m_stack)};
  for (ConnectPageQt* page : m_pages) {
    m_areas.push_back(Scrolling(page, m_stack));
    m_stack->addWidget(m_areas.back());
  }
}

void frmConnect::MakeButtons() {
  const auto button = [this](const char* name, const char* text) {
    auto* made = new QPushButton(TrQ(text), this);
    made->setObjectName(QLatin1String(name));
    return made;
  };
  cmdConnectBack = button("cmdConnectBack", TrMark("&Back"));
  cmdConnectNext = button("cmdConnectNext", TrMark("&Next"));
  cmdConnectCancel = button("cmdConnectCancel", TrMark("Cancel"));
  cmdConnectBack->setAutoDefault(false);
  cmdConnectCancel->setAutoDefault(false);
  cmdConnectNext->setDefault(true);
  connect(cmdConnectBack, &QPushButton::clicked, this, [this] { Turn(m_stack->currentIndex() - 1); });
  connect(cmdConnectNext, &QPushButton::clicked, this, [this] {
    // What was typed since the last look counts, too.
    if (Page().Blocks()) {
      return;
    }
    if (m_stack->currentIndex() + 1 < m_stack->count()) {
      Turn(m_stack->currentIndex() + 1);
    } else {
      Save();
    }
  });
  connect(cmdConnectCancel, &QPushButton::clicked, this, [this] { reject(); });
}

void frmConnect::Search() {
  m_desk.Search(m_instruments->txtConnectHost->text().toStdString());
  if (m_parts.Browser != nullptr) {
    m_parts.Browser->Read("avahi-browse", {"-a", "-t", "-p", "-r"},
                          [self = QPointer<frmConnect>(this)](const std::string& text) {
                            // It may come when the window has gone.
                            if (self && self->isVisible()) {
                              self->m_desk.SearchAnnounced(text);
                            }
                          });
  }
  Refresh();
}

void frmConnect::Turn(int page) {
  Page().Leave();
  m_stack->setCurrentIndex(page);
  Page().Enter();
  Refresh();
  // The keyboard begins in front of the page's first control, and the eye at its top.
  Page().setFocus();
  m_areas.at(static_cast<std::size_t>(page))->verticalScrollBar()->setValue(0);
}

void frmConnect::Refresh() {
  Page().Refresh();
  const int page = m_stack->currentIndex();
  const bool last = page + 1 == m_stack->count();
  lblConnectPage->setText(TrQ("%1 of %2: %3").arg(page + 1).arg(m_stack->count()).arg(Page().Title()));
  lblConnectHint->setText(Page().Hint());
  cmdConnectNext->setEnabled(!Page().Blocks());
  cmdConnectBack->setEnabled(page > 0);
  cmdConnectNext->setText(last ? TrQ("Save and &go to Setup") : TrQ("&Next"));
}

void frmConnect::TestPilot() {
  PilotTestQt::Ask({m_parts.Desk.Main, m_parts.Desk.Time, *m_asks, *this,
                    [this](const std::string& verdict) { m_autopilot->Verdict(verdict); }},
                   [this](const std::string& lag) { m_desk.TakeLag(lag); });
}

void frmConnect::Save() {
  m_timer.stop();
  m_desk.Save();
  m_parts.Saved();
  accept();
}

void frmConnect::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || focusWidget() != m_instruments->txtConnectHost) {
    QDialog::keyPressEvent(event);
  }
}

void frmConnect::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous() && !m_timer.isActive()) {
    m_timer.start();
    Search();
    m_instruments->lstConnect->setFocus();
  }
}

void frmConnect::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (!event->spontaneous()) {
    m_timer.stop();
    m_desk.End();
  }
}

void frmConnect::done(int result) {
  QDialog::done(result);
  deleteLater();
}

}  // namespace veerwatch
