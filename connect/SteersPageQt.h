// The assistant's page "How it steers": what is recommended beside what is set now.
#pragma once

#include "connect/ConnectPageQt.h"
#include "options/RecommendedListQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

class SteersPageQt final : public ConnectPageQt {
 public:
  /// `tickAll`: everything is ticked in the beginning, as in a new profile.
  SteersPageQt(ConnectDesk& desk, bool tickAll, QWidget* parent);

  QString Title() const override { return TrQ("How it steers"); }
  void Enter() override;
  void Refresh() override;

 private:
  bool m_tickAll;
  bool m_shown = false;  ///< the ticks are the user's
  RecommendedListQt* m_list;
};

}  // namespace veerwatch
