#include "options/PortPageQt.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

QRadioButton* NewOption(const char* caption, const PortPageTexts::Control& texts, QWidget* parent) {
  auto* option = new QRadioButton(TrQ(caption), parent);
  NameControl(*option, texts.Name, texts.Hint);
  return option;
}

/// Names a text that the ports write.
void NameText(QLabel& label, const PortPageTexts::Control& texts) {
  NameControl(label, texts.Name, texts.Hint);
  label.setAccessibleName(TrQ(texts.Hint));
  label.setTextFormat(Qt::PlainText);
}

/// A row of options of which the first is chosen.
QHBoxLayout* OptionRow(const std::array<QRadioButton*, 2>& options, QWidget* parent) {
  auto* group = new QButtonGroup(parent);
  auto* row = new QHBoxLayout;
  for (QRadioButton* option : options) {
    group->addButton(option);
    row->addWidget(option);
  }
  options[0]->setChecked(true);
  row->addStretch();
  return row;
}

}  // namespace

const PortPageTexts& InputPageTexts() {
  static constexpr PortPageTexts kTexts{
      {"txtNmeaPort", TrMark("Input Comm Port")},
      {"cmdNmeaDevice", TrMark("Choose the device or the endpoint that the Input Comm Port leads to")},
      {"lblNmeaDevice", TrMark("Where the Input Comm Port leads")},
      {"lblNmeaStatus", TrMark("Input Comm Status")},
      {"lblNmeaReason", TrMark("Why the Input Comm Port is not open")},
      {"optNmeaListOff", TrMark("Input Display Comm Data - Off")},
      {"optNmeaListOn", TrMark("Input Display Comm Data - On")},
      // Deliberate: "Nema".
      {"lstNmeaData", TrMark("Input Nema Data, Highlighted indicates Decoded Data")},
      {"chkNmeaPause", TrMark("Hold the list still; what comes meanwhile is added afterwards")},
      {"cmdNmeaCopy", TrMark("Copy every line of the list to the clipboard")},
      {{{"optNmeaDataFormat(1)", TrMark("Display Data Format - Raw NMEA")},
        {"optNmeaDataFormat(2)", TrMark("Display Data Format - Decoded Error")}}},
      {TrMark("&Raw NMEA"), TrMark("D&ecoded Error")},
      {"cmbNmeaType", TrMark("Display one type of sentence only")}};
  return kTexts;
}

const PortPageTexts& OutputPageTexts() {
  // Deliberate: "OptPilotListOff" begins with a capital letter.
  static constexpr PortPageTexts kTexts{
      {"txtPilotPort", TrMark("Output Comm Port")},
      {"cmdPilotDevice", TrMark("Choose the device or the endpoint that the Output Comm Port leads to")},
      {"lblPilotDevice", TrMark("Where the Output Comm Port leads")},
      {"lblPilotStatus", TrMark("Output Comm Status")},
      {"lblPilotReason", TrMark("Why the Output Comm Port is not open")},
      {"OptPilotListOff", TrMark("Output Display Comm Data - Off")},
      {"optPilotListOn", TrMark("Output Display Comm Data - On")},
      {"lstPilotData", TrMark("Output Nema Data")},
      {"chkPilotPause", TrMark("Hold the list still; what comes meanwhile is added afterwards")},
      {"cmdPilotCopy", TrMark("Copy every line of the list to the clipboard")}};
  return kTexts;
}

PortPageQt::PortPageQt(const PortPageTexts& texts, QWidget* parent)
    : QWidget(parent),
      Port(new OptionEntryQt(texts.Port.Name, texts.Port.Hint, this)),
      Choose(new QPushButton(TrQ("De&vice..."), this)),
      Device(new QLabel(this)),
      Status(new QLabel(this)),
      Reason(new QLabel(this)),
      ListOff(NewOption(TrMark("Of&f"), texts.ListOff, this)),
      ListOn(NewOption(TrMark("O&n"), texts.ListOn, this)),
      Pause(new QCheckBox(TrQ("Pa&use"), this)),
      Copy(new QPushButton(TrQ("Cop&y All"), this)),
      List(new LiveListQt(texts.List.Name, texts.List.Hint, this)),
      m_rows(new QGridLayout) {
  NameControl(*Choose, texts.Choose.Name, texts.Choose.Hint);
  Choose->setAutoDefault(false);
  NameText(*Device, texts.Device);
  // A long name ends at the edge of the page; the tool tip has all of it.
  Device->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  NameText(*Status, texts.Status);
  NameText(*Reason, texts.Reason);
  Reason->setWordWrap(true);
  Reason->hide();

  auto* port = new QHBoxLayout;
  port->addWidget(Port);
  port->addWidget(Choose);
  port->addSpacing(kGroupGap / 2);
  port->addWidget(Status);
  port->addSpacing(kGroupGap / 2);
  port->addWidget(Reason, 1);
  port->addStretch();
  m_rows->setColumnStretch(1, 1);
  m_rows->addWidget(NewCaption(TrMark("&Comm:"), Port, this), 0, 0);
  m_rows->addLayout(port, 0, 1);
  m_rows->addWidget(NewText(TrMark("Leads to:"), this), 1, 0);
  m_rows->addWidget(Device, 1, 1);
  m_rows->addWidget(NewText(TrMark("Display:"), this), kDisplay, 0);
  auto* display = OptionRow({ListOff, ListOn}, this);
  // In front of the room at the end of the row.
  display->insertSpacing(display->count() - 1, kGroupGap);
  display->insertWidget(display->count() - 1, Pause);
  display->addWidget(Copy);
  m_rows->addLayout(display, kDisplay, 1);
  if (texts.Format[0].Name != nullptr) {
    m_rows->addWidget(NewText(TrMark("Format:"), this), kFormat, 0);
    m_rows->addLayout(FormatRow(texts), kFormat, 1);
  }
  NameControl(*Pause, texts.Pause.Name, texts.Pause.Hint);
  NameControl(*Copy, texts.Copy.Name, texts.Copy.Hint);
  connect(Pause, &QCheckBox::toggled, List, &LiveListQt::Pause);
  connect(Copy, &QPushButton::clicked, List, &LiveListQt::CopyAll);
  auto* page = new QVBoxLayout(this);
  page->addLayout(m_rows);
  page->addWidget(List, 1);
}

QLayout* PortPageQt::FormatRow(const PortPageTexts& texts) {
  for (std::size_t i = 0; i < Format.size(); ++i) {
    Format[i] = NewOption(texts.FormatCaption[i], texts.Format[i], this);
  }
  auto* row = OptionRow(Format, this);
  Type = new QComboBox(this);
  NameControl(*Type, texts.Type.Name, texts.Type.Hint);
  Type->addItem(TrQ("All"));
  Type->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  row->addWidget(NewCaption(TrMark("Ty&pe:"), Type, this));
  row->addWidget(Type);
  List->Model().TypeFound([this] { OfferTypes(); });
  connect(Type, &QComboBox::activated, this,
          [this](int index) { List->Type(index > 0 ? Type->itemText(index).toStdString() : std::string()); });
  return row;
}

void PortPageQt::Insert(QWidget* frame) const { m_rows->addWidget(frame, kInserted, 0, 1, 2); }

void PortPageQt::Leads(const std::string& endpoints) const {
  const QString text = QString::fromStdString(endpoints);
  Device->setText(text);
  Device->setToolTip(text);
  Choose->setEnabled(!text.isEmpty());
}

void PortPageQt::Explain(const std::string& reason) const {
  Reason->setText(QString::fromStdString(reason));
  Reason->setVisible(!reason.empty());
}

void PortPageQt::OfferTypes() const {
  int row = 1;
  for (const std::string& known : List->Model().Lines().Types()) {
    const QString type = QString::fromStdString(known);
    if (Type->itemText(row) != type) {
      Type->insertItem(row, type);
    }
    ++row;
  }
}

}  // namespace veerwatch
