#include "platform/FileDialogQt.h"

#include <QChildEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>

namespace veerwatch {

bool FileDialogQt::OwnWidgets() const {
  return findChild<QLineEdit*>(QStringLiteral("fileNameEdit")) != nullptr;
}

void FileDialogQt::accept() {
  const QFileInfo file(selectedFiles().value(0));
  const bool missing = fileMode() == ExistingFile && !file.exists();
  const bool replaces = acceptMode() == AcceptSave && !testOption(DontConfirmOverwrite) && file.exists();
  if (!OwnWidgets() || selectedFiles().isEmpty() || file.isDir() || (!missing && !replaces)) {
    QFileDialog::accept();
    return;
  }
  const QString text = missing ? tr("%1\nFile not found.\nPlease verify the correct file name was given.")
                               : tr("%1 already exists.\nDo you want to replace it?");
  auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(), text.arg(file.fileName()),
                              missing ? QMessageBox::Ok : QMessageBox::Yes | QMessageBox::No, this);
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  if (replaces) {
    box->setDefaultButton(QMessageBox::No);
  }
  connect(box, &QDialog::finished, this, [this](int result) {
    if (result == QMessageBox::Yes) {
      setOption(DontConfirmOverwrite);
      QFileDialog::accept();
    }
  });
  box->open();
}

void FileDialogQt::childEvent(QChildEvent* event) {
  if (auto* box = event->polished() ? qobject_cast<QMessageBox*>(event->child()) : nullptr) {
    box->setWindowModality(Qt::WindowModal);
  }
  QFileDialog::childEvent(event);
}

}  // namespace veerwatch
