#include "options/DeviceDialogQt.h"

#include <QDialogButtonBox>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "options/OptionControlsQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/WindowDialogsQt.h"

namespace veerwatch {

namespace {

constexpr int kLookInterval = 1000;  // [ms]
/// What the list is wide for, and high at least [characters and lines].
constexpr int kWidth = 84;
constexpr int kRows = 4;

constexpr const char* kForms = TrMark(
    "As /dev/ttyUSB0?baud=38400, tcp://host:10110, udp://:10110, tcp-listen://:10110 or "
    "file:///home/me/log.nmea. Several, with a comma and a blank between them, are one port.");

}  // namespace

void DeviceDialogQt::Open(Question question, QWidget* window, Answer answer) {
  auto* dialog = new DeviceDialogQt(std::move(question), window);
  connect(dialog, &QDialog::accepted, window,
          [dialog, answer = std::move(answer)] { answer(dialog->txtDevice->text().toStdString()); });
  dialog->open();
}

DeviceDialogQt::DeviceDialogQt(Question question, QWidget* window)
    : QDialog(window),
      m_choices(std::move(question.Choices)),
      m_finder(question.Finder),
      lstDevices(new QListWidget(this)),
      txtDevice(new QLineEdit(this)),
      lblDeviceRemark(new QLabel(this)) {
  setObjectName(QStringLiteral("dlgDevice"));
  setWindowTitle(TrQ("Veerwatch - Device"));
  setAttribute(Qt::WA_DeleteOnClose);
  // As large as those of its window.
  setFont(window->font());
  NameControl(*lstDevices, "lstDevices",
              TrMark("Serial ports that are plugged in, and what the profile names"));
  NameControl(*txtDevice, "txtDevice", TrMark("The device or endpoint of the port"));
  NameControl(*lblDeviceRemark, "lblDeviceRemark", TrMark("What is wrong with the device or endpoint"));
  // Names of devices are long, and what follows them tells them apart.
  lstDevices->setWordWrap(true);
  lstDevices->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lblDeviceRemark->setTextFormat(Qt::PlainText);
  lblDeviceRemark->setWordWrap(true);
  auto* forms = NewText(kForms, this);
  forms->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdDeviceOk = buttons->button(QDialogButtonBox::Ok);
  cmdDeviceOk->setObjectName(QStringLiteral("cmdDeviceOk"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdDeviceCancel"));

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(NewCaption(question.Caption.c_str(), lstDevices, this));
  rows->addWidget(lstDevices, 1);
  rows->addWidget(txtDevice);
  rows->addWidget(lblDeviceRemark);
  rows->addWidget(forms);
  rows->addWidget(buttons);
  // Two lines, so that nothing moves while one types.
  lblDeviceRemark->setMinimumHeight(2 * lblDeviceRemark->fontMetrics().lineSpacing());
  lblDeviceRemark->setAlignment(Qt::AlignTop);
  lstDevices->setMinimumHeight(kRows * lstDevices->fontMetrics().lineSpacing());
  lstDevices->setMinimumWidth(kWidth * fontMetrics().averageCharWidth());

  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(lstDevices, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* chosen) {
    if (chosen != nullptr) {
      txtDevice->setText(chosen->data(Qt::UserRole).toString());
    }
  });
  connect(lstDevices, &QListWidget::itemDoubleClicked, cmdDeviceOk, &QPushButton::click);
  connect(txtDevice, &QLineEdit::textChanged, this, [this] { Typed(); });
  connect(&m_look, &QTimer::timeout, this, [this] { Refresh(); });
  window->installEventFilter(this);

  ShowRows();
  Refresh();
  txtDevice->setText(QString::fromStdString(question.Present));
  Typed();
  txtDevice->setFocus();
  txtDevice->selectAll();
  m_look.start(kLookInterval);
}

bool DeviceDialogQt::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && IsHidden(*event)) {
    reject();
  }
  return QDialog::eventFilter(watched, event);
}

void DeviceDialogQt::Refresh() {
  if (m_finder != nullptr && m_choices.Plug(m_finder->Found())) {
    ShowRows();
    Typed();
  }
}

void DeviceDialogQt::ShowRows() {
  // What is typed stays, whatever is plugged in or out.
  const QSignalBlocker quiet(lstDevices);
  lstDevices->clear();
  for (const DeviceRow& row : m_choices.Rows()) {
    auto* item = new QListWidgetItem(QString::fromStdString(row.Text), lstDevices);
    item->setData(Qt::UserRole, QString::fromStdString(row.Endpoint));
    item->setSelected(row.Endpoint == txtDevice->text().toStdString());
  }
}

void DeviceDialogQt::Typed() {
  const std::string text = txtDevice->text().toStdString();
  const std::string wrong = m_choices.Wrong(text);
  lblDeviceRemark->setText(QString::fromStdString(wrong.empty() ? m_choices.Remark(text) : wrong));
  cmdDeviceOk->setEnabled(wrong.empty());
}

}  // namespace veerwatch
