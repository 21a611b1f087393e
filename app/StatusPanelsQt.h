// The three panels of the main window's status bar. They share its width, so that a long text has the room
// that the others leave free.
#pragma once

#include <QString>
#include <QWidget>
#include <array>
#include <cstddef>

#include "app/PanelControlsQt.h"

namespace veerwatch {

class StatusPanelsQt final : public QWidget {
 public:
  static constexpr int kPilot = 1;
  static constexpr int kInput = 2;
  static constexpr int kOutput = 3;

  explicit StatusPanelsQt(QWidget* parent);

  void Show(int index, const QString& text);
  /// The last line of the panel's tool tip; "" for none.
  void Explain(int index, const QString& reason);
  /// Where the panel's port leads, for its tool tip; "" for nowhere.
  void LeadsTo(int index, const QString& endpoints);
  void Theme(const ThemeQt& theme);
  /// Height of the texts [px].
  void TextHeight(int pixels);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Place();
  void ShowToolTip(std::size_t panel);

  std::array<CaptionQt*, 3> m_panels{};
  std::array<QString, 3> m_reasons;
  std::array<QString, 3> m_endpoints;
};

}  // namespace veerwatch
