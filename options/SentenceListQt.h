// The list of the sentence types with their check boxes. It stands over the tabs, not on a page.
#pragma once

#include <QRect>
#include <QTreeWidget>
#include <functional>

#include "options/OptionsForm.h"

namespace veerwatch {

class SentenceListQt final : public QTreeWidget {
 public:
  explicit SentenceListQt(QWidget* parent);

  void Show(const OptionsForm& form);
  void Read(OptionsForm& form) const;

  /// Whom to tell when a check box changes, whoever changed it.
  void Changed(std::function<void()> handler);

  /// Stands over `place`, a widget on one of the tabs in `tabs`, and ends above their lower edge.
  void PutOver(const QWidget& place, const QRect& tabs);

  QSize minimumSizeHint() const override;
};

}  // namespace veerwatch
