// Asks for the device or endpoint of a port. It opens modal to its window, which goes on meanwhile, and calls
// back; it goes with its window, unanswered, when that is hidden.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <string>

#include "options/DeviceChoices.h"

namespace veerwatch {

class DeviceDialogQt final : public QDialog {
 public:
  using Answer = std::function<void(const std::string& text)>;

  /// What is asked for.
  struct Question {
    std::string Caption;  ///< which port it is about
    std::string Present;  ///< where it leads now
    DeviceChoices Choices;
    const PortFinder* Finder;  ///< null for none; outlives the dialog
  };

  /// Opens the dialog on `window`. `answer` is called with a text that can be chosen; not when the user
  /// cancels.
  static void Open(Question question, QWidget* window, Answer answer);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  DeviceDialogQt(Question question, QWidget* window);

  void Refresh();
  void ShowRows();
  void Typed();

  DeviceChoices m_choices;
  const PortFinder* m_finder;
  QTimer m_look;
  QListWidget* lstDevices;
  QLineEdit* txtDevice;
  QLabel* lblDeviceRemark;
  QPushButton* cmdDeviceOk;
};

}  // namespace veerwatch
