// The preview's plot with the numbers of its axes: bearings to its left, times beneath it.
#pragma once

#include "options/TrackPreviewQt.h"

namespace veerwatch {

class TrackAxesQt final : public QWidget {
 public:
  /// Takes `plot` in. Whoever draws the plot updates this.
  TrackAxesQt(TrackPreviewQt& plot, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeRoom();

  TrackPreviewQt& m_plot;
};

}  // namespace veerwatch
