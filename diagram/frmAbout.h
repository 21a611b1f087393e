// The about box: title, version, what the program is, and a notice.
#pragma once

#include <QDialog>
#include <QIcon>
#include <QLabel>
#include <string_view>

namespace veerwatch {

class frmAbout final : public QDialog {
 public:
  /// Makes the box, hidden, for the program `title` of `version` "major.minor".
  frmAbout(std::string_view title, std::string_view version, const QIcon& icon);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  /// Draws the icon, at night in red.
  void ShowIcon();

  QLabel* picIcon;
};

}  // namespace veerwatch
