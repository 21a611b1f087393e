#include "connect/SteersPageQt.h"

#include <QVBoxLayout>

namespace veerwatch {

SteersPageQt::SteersPageQt(ConnectDesk& desk, bool tickAll, QWidget* parent)
    : ConnectPageQt("pagConnectSteers", desk, parent),
      m_tickAll(tickAll),
      m_list(new RecommendedListQt(this)) {
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(NewLines("lblConnectSteers",
                           TrQ("What suits most boats, and what is set now. Leave ticked what you want.")));
  rows->addWidget(m_list, 1);
  m_list->Changed([this] { Desk().SetRecommended(m_list->Ticks()); });
}

void SteersPageQt::Enter() {
  if (!m_shown) {
    m_shown = true;
    const Settings chosen = Desk().Chosen();
    m_list->Show({chosen, Desk().SmoothWindsNow()}, m_tickAll);
  }
  Desk().SetRecommended(m_list->Ticks());
}

void SteersPageQt::Refresh() {}

}  // namespace veerwatch
