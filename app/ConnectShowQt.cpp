#include "app/ConnectShowQt.h"

#include <QLabel>
#include <QPushButton>
#include <filesystem>
#include <initializer_list>
#include <system_error>

#include "app/IconsQt.h"
#include "connect/frmConnect.h"
#include "platform/LanguageQt.h"
#include "platform/PortNames.h"

namespace veerwatch {

ConnectShowQt::ConnectShowQt(Needs needs) : m_needs(std::move(needs)) {}

ConnectShowQt::~ConnectShowQt() { delete m_window; }

bool ConnectShowQt::NoProfile() const {
  std::error_code error;
  return !std::filesystem::exists(m_needs.Parts.ProfileFile, error);
}

void ConnectShowQt::Show() {
  if (!Can()) {
    return;
  }
  if (!m_window) {
    m_window = new frmConnect(frmConnect::Parts{{m_needs.Main,
                                                 m_needs.Parts.Store,
                                                 m_needs.Parts.Time,
                                                 m_needs.Parts.Finder,
                                                 m_needs.Parts.Ports,
                                                 DeviceIsThere,
                                                 {m_needs.SmoothWinds, m_needs.SetSmoothWinds}},
                                                m_needs.Parts.Asks,
                                                m_needs.Parts.Reader,
                                                NoProfile(),
                                                [this] { Saved(); },
                                                [this] { Simulate(); }},
                              &m_needs.Window);
    m_window->setWindowIcon(ProgramIcon());
  }
  m_window->show();
  m_window->raise();
  m_window->activateWindow();
}

void ConnectShowQt::Hide() {
  if (m_window) {
    m_window->reject();
  }
}

void ConnectShowQt::EndTrial() {
  if (m_window) {
    m_window->EndTrial();
  }
}

void ConnectShowQt::Saved() {
  m_needs.Changed();
  DropOffer();
  m_needs.Main.KeepSettings();
}

void ConnectShowQt::Simulate() {
  m_needs.Main.TrackSetOff();
  m_needs.Main.m_bSimulate = true;
  m_needs.Main.m_eSimulateModel = SimulateModel::Boat;
  m_needs.Changed();
  m_needs.Main.TrackSetSetup();
  m_needs.Main.TrackSetManual();
}

void ConnectShowQt::Offer(QMainWindow& window) {
  if (!Can() || !NoProfile() || m_offer) {
    return;
  }
  window.addToolBarBreak();
  m_offer = new QToolBar(&window);
  m_offer->setObjectName(QStringLiteral("tbrConnect"));
  m_offer->setMovable(false);
  m_offer->setContextMenuPolicy(Qt::PreventContextMenu);
  auto* text = new QLabel(TrQ("New here?"), m_offer);
  text->setContentsMargins(text->fontMetrics().averageCharWidth(), 0, text->fontMetrics().averageCharWidth(),
                           0);
  auto* open = new QPushButton(TrQ("&Connect Your Boat..."), m_offer);
  open->setObjectName(QStringLiteral("cmdConnectOffer"));
  open->setToolTip(TrQ("Finds the instruments and the autopilot, and sets the program up for them"));
  auto* close = new QPushButton(TrQ("Close"), m_offer);
  close->setObjectName(QStringLiteral("cmdConnectOfferClose"));
  close->setToolTip(TrQ("Takes this line away; Help > Connect Your Boat... stays"));
  auto* room = new QWidget(m_offer);
  room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  for (QWidget* each : std::initializer_list<QWidget*>{text, open, room, close}) {
    m_offer->addWidget(each);
  }
  QObject::connect(open, &QPushButton::clicked, m_offer, [this] { Show(); });
  QObject::connect(close, &QPushButton::clicked, m_offer, [this] { DropOffer(); });
  window.addToolBar(m_offer);
}

void ConnectShowQt::DropOffer() {
  if (m_offer) {
    m_offer->hide();
    m_offer->deleteLater();
    m_offer = nullptr;
  }
}

}  // namespace veerwatch
