// "Options > Recommended...": the list of the recommended settings by itself. It opens modal to its window,
// which goes on meanwhile, and calls back.
#pragma once

#include <QDialog>
#include <functional>

#include "options/Recommended.h"
#include "options/RecommendedListQt.h"

namespace veerwatch {

class RecommendedQt final : public QDialog {
 public:
  using Answer = std::function<void(const RecommendedTicks& ticks)>;

  /// Opens the dialog on `window`. `answer` is called with what is ticked; not when the user cancels.
  static void Open(const RecommendedSeen& seen, QWidget& window, Answer answer);

 private:
  RecommendedQt(const RecommendedSeen& seen, QWidget& window);

  RecommendedListQt* lstRecommended;
};

}  // namespace veerwatch
