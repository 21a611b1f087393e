// The recommended settings as a list of ticks: each with what is set now and the reason. What is set already
// is ticked and greyed.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>
#include <array>
#include <functional>

#include "options/Recommended.h"

namespace veerwatch {

class RecommendedListQt final : public QScrollArea {
 public:
  explicit RecommendedListQt(QWidget* parent);

  /// Shows what is set in `seen`; all of them ticked with `tickAll`, else those alone that hold already.
  void Show(const RecommendedSeen& seen, bool tickAll);
  /// Ticks every line.
  void TickAll();
  /// What is ticked.
  RecommendedTicks Ticks() const;
  /// Called when a tick changes.
  void Changed(const std::function<void()>& handler) const;

  QSize sizeHint() const override;

 private:
  std::array<QCheckBox*, kRecommendationCount> m_ticks{};
  std::array<QLabel*, kRecommendationCount> m_reasons{};
};

}  // namespace veerwatch
