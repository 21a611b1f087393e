// A file dialog whose own questions stop nothing but itself: whether a file may be replaced, and that one is
// not there. The toolkit's wait in loops of their own and block every window of the program.
#pragma once

#include <QFileDialog>

namespace veerwatch {

class FileDialogQt final : public QFileDialog {
 public:
  explicit FileDialogQt(QWidget* window) : QFileDialog(window) {}

 protected:
  void accept() override;
  /// What the toolkit still asks by itself, before it deletes a file, blocks this dialog and no other window.
  void childEvent(QChildEvent* event) override;

 private:
  /// Whether the file is asked for in the toolkit's own widgets and not by the desktop, which asks itself.
  bool OwnWidgets() const;
};

}  // namespace veerwatch
