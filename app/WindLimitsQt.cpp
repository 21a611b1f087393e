#include "app/WindLimitsQt.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

void WindLimitsQt::Open(const WindLimits& present, QWidget& window, Answer answer) {
  auto* dialog = new WindLimitsQt(present, window);
  connect(dialog, &QDialog::accepted, &window,
          [dialog, answer = std::move(answer)] { answer(dialog->Typed()); });
  dialog->open();
}

WindLimitsQt::WindLimitsQt(const WindLimits& present, QWidget& window)
    : QDialog(&window),
      txtLeastApparent(Box("txtLeastApparent", present.LeastApparent, 10.0, 60.0, TrMark(" deg"))),
      txtLargestTrue(Box("txtLargestTrue", present.LargestTrue, 120.0, 179.0, TrMark(" deg"))),
      txtShiftLimit(Box("txtShiftLimit", present.ShiftLimit, 5.0, 90.0, TrMark(" deg"))),
      txtShiftTime(Box("txtShiftTime", present.ShiftTime, 5.0, 600.0, " s")) {
  setObjectName(QStringLiteral("dlgWindLimits"));
  setWindowTitle(TrQ("Veerwatch - Wind Limits"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* rows = new QFormLayout(this);
  const auto row = [&](const char* caption, QDoubleSpinBox* box) { rows->addRow(TrQ(caption), box); };
  rows->addRow(new QLabel(TrQ("Angle Guard"), this));
  row(TrMark("&Least apparent angle:"), txtLeastApparent);
  row(TrMark("Largest &true angle:"), txtLargestTrue);
  rows->addRow(new QLabel(TrQ("Shift Alarm"), this));
  row(TrMark("A &shift of more than:"), txtShiftLimit);
  row(TrMark("that l&asts for:"), txtShiftTime);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdWindLimitsOk"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdWindLimitsCancel"));
  rows->addRow(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QDoubleSpinBox* WindLimitsQt::Box(const char* name, float value, double least, double most,
                                  const char* unit) {
  auto* box = new QDoubleSpinBox(this);
  box->setObjectName(QLatin1String(name));
  box->setDecimals(0);
  box->setRange(least, most);
  box->setSuffix(TrQ(unit));
  box->setValue(static_cast<double>(value));
  box->setToolTip(TrQ("%1 to %2%3").arg(least).arg(most).arg(TrQ(unit)));
  return box;
}

WindLimits WindLimitsQt::Typed() const {
  const auto value = [](const QDoubleSpinBox* box) { return static_cast<float>(box->value()); };
  return {value(txtLeastApparent), value(txtLargestTrue), value(txtShiftLimit), value(txtShiftTime)};
}

}  // namespace veerwatch
