// The manual in a window of the program: its own Markdown with the pictures, which lie in the program. Links
// between the pages work; a link that leads out of them is not followed.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QWidget>
#include <functional>

#include "app/ManualPlace.h"

namespace veerwatch {

/// A page, with its pictures no wider than the window and without light at night.
class ManualPagesQt final : public QTextBrowser {
 public:
  explicit ManualPagesQt(QWidget* parent);

  /// Shows `page`, an address in the program, from the heading with that slug on; "" for its beginning.
  void Show(const QUrl& page, const QString& slug);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int PictureRoom() const;
  void ShowAnew();
  void ScrollTo(const QString& slug);

  int m_pictureWidth = 0;  ///< that the pictures were made for [px]
};

class frmManual final : public QWidget {
 public:
  /// `inBrowser` shows the manual in the desktop's browser; without it nothing offers that.
  explicit frmManual(const std::function<void()>& inBrowser = {});

  QPushButton* cmdBack;
  QPushButton* cmdContents;
  QPushButton* cmdBrowser;
  QLabel* lblOutside;  ///< where a link leads that is not followed
  ManualPagesQt* txtManual;

  /// Shows that place, in front of all other windows.
  void Open(const ManualPlace& place);

 private:
  void Follow(const QUrl& link) const;
};

}  // namespace veerwatch
