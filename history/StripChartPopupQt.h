// The configuration pop-up of a strip chart: which traces show and in which colour, the span, the scales, and
// the commands to save. It holds no settings of its own; every change is told at once.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <functional>
#include <vector>

#include "history/TraceGroups.h"
#include "history/TraceSettings.h"

namespace veerwatch {

class StripChartPopupQt final : public QFrame {
 public:
  /// What the user asks for.
  struct Commands {
    std::function<void(const TraceSettings&)> Changed;
    std::function<void(int trace)> PickColour;  ///< counts from 0
    std::function<void()> SavePicture;
    std::function<void()> SaveData;
    std::function<void()> Defaults;
  };

  /// The name and the kind of a scale.
  struct ScaleRow {
    QString Name;
    ScaleKind Kind;
  };

  StripChartPopupQt(QWidget* chart, const std::vector<QString>& traces, const std::vector<ScaleRow>& scales,
                    Commands commands);

  /// Shows what is chosen now, in the colours that the traces have.
  void Show(const TraceSettings& settings, const std::vector<QColor>& colours);

 private:
  struct Scale {
    QCheckBox* Automatic;
    QDoubleSpinBox* Low;
    QDoubleSpinBox* High;
  };

  void MakeTraces(const std::vector<QString>& traces, QGridLayout* grid);
  void MakeScales(const std::vector<ScaleRow>& scales, QGridLayout* grid);
  void Take();

  Commands m_commands;
  TraceSettings m_settings;
  bool m_showing = false;  ///< controls are being filled
  std::vector<QCheckBox*> m_shown;
  std::vector<QToolButton*> m_colours;
  QComboBox* m_span;
  QCheckBox* m_marks;
  std::vector<Scale> m_scales;
};

}  // namespace veerwatch
