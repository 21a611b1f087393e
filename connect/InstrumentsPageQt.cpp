#include "connect/InstrumentsPageQt.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "options/OptionControlsQt.h"
#include "platform/Language.h"

namespace veerwatch {

InstrumentsPageQt::InstrumentsPageQt(ConnectDesk& desk, QWidget* parent)
    : ConnectPageQt("pagConnectInstruments", desk, parent),
      lstConnect(new QListWidget(this)),
      txtConnectHost(new QLineEdit(this)),
      cmdConnectListen(new QPushButton(TrQ("&Listen"), this)),
      cmdConnectAgain(new QPushButton(TrQ("Listen &Again"), this)),
      cmdConnectSimulate(new QPushButton(TrQ("Show me with a &simulated boat"), this)) {
  NameControl(*lstConnect, "lstConnect", TrMark("What was found; tick what brings your instruments"));
  NameControl(*txtConnectHost, "txtConnectHost",
              TrMark("Name or address of a gateway, as 192.168.1.1 or gateway:2000; a device; an endpoint"));
  NameControl(*cmdConnectListen, "cmdConnectListen", TrMark("Listens to that place as well"));
  NameControl(*cmdConnectAgain, "cmdConnectAgain", TrMark("Looks at every port anew, for ten seconds"));
  NameControl(*cmdConnectSimulate, "cmdConnectSimulate",
              TrMark("Closes this window and sails a simulated boat; no port is opened"));
  lstConnect->setWordWrap(true);
  lstConnect->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  constexpr int kRows = 5;
  lstConnect->setMinimumHeight(kRows * fontMetrics().lineSpacing());
  for (QPushButton* button : {cmdConnectListen, cmdConnectAgain, cmdConnectSimulate}) {
    button->setAutoDefault(false);
  }
  auto* host = new QHBoxLayout;
  host->addWidget(NewCaption(TrMark("Other &place:"), txtConnectHost, this));
  host->addWidget(txtConnectHost, 1);
  host->addWidget(cmdConnectListen);
  host->addWidget(cmdConnectAgain);
  auto* show = new QHBoxLayout;
  show->addWidget(cmdConnectSimulate);
  show->addStretch();
  auto* rows = new QVBoxLayout(this);
  auto* found = NewLines("lblConnectFound", TrQ("&Each place where instruments may be is listened to for ten "
                                                "seconds. Tick what brings yours; several may be ticked."));
  found->setTextFormat(Qt::AutoText);
  found->setBuddy(lstConnect);
  lstConnect->setAccessibleName(TrQ("Instruments"));
  rows->addWidget(found);
  rows->addWidget(lstConnect, 1);
  rows->addLayout(host);
  rows->addLayout(show);
  connect(lstConnect, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
    Desk().Heard().SetTicked(static_cast<std::size_t>(lstConnect->row(item)),
                             item->checkState() == Qt::Checked);
  });
  const auto listen = [this] {
    Desk().SearchHost(txtConnectHost->text().toStdString());
    Refresh();
  };
  connect(cmdConnectListen, &QPushButton::clicked, this, listen);
  connect(txtConnectHost, &QLineEdit::returnPressed, this, listen);
  connect(cmdConnectAgain, &QPushButton::clicked, this, [this] { m_again(); });
  connect(cmdConnectSimulate, &QPushButton::clicked, this, [this] { m_simulate(); });
}

void InstrumentsPageQt::Refresh() {
  const QSignalBlocker quiet(lstConnect);
  const int count = static_cast<int>(Desk().Heard().Count());
  while (lstConnect->count() > count) {
    delete lstConnect->takeItem(lstConnect->count() - 1);
  }
  for (int index = 0; index < count; ++index) {
    if (index == lstConnect->count()) {
      lstConnect->addItem(new QListWidgetItem);
    }
    ShowRow(index);
  }
  if (lstConnect->currentRow() < 0 && count > 0) {
    lstConnect->setCurrentRow(0);
  }
}

void InstrumentsPageQt::ShowRow(int index) {
  const Listening::Row row = Desk().Heard().RowAt(static_cast<std::size_t>(index));
  QListWidgetItem* item = lstConnect->item(index);
  const QString text = QString::fromStdString(row.Text);
  // What is the same is not drawn again.
  if (item->text() != text) {
    item->setText(text);
  }
  const QString details = QString::fromStdString(row.Details);
  if (item->toolTip() != details) {
    item->setToolTip(details);
  }
  const Qt::ItemFlags flags = row.Brings ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                                         : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (item->flags() != flags) {
    item->setFlags(flags);
  }
  // What cannot be ticked has no box.
  const QVariant tick =
      row.Brings ? QVariant(static_cast<int>(row.Ticked ? Qt::Checked : Qt::Unchecked)) : QVariant();
  if (item->data(Qt::CheckStateRole) != tick) {
    item->setData(Qt::CheckStateRole, tick);
  }
}

QString InstrumentsPageQt::Hint() const {
  if (!Desk().Heard().Ticked().empty()) {
    return {};
  }
  return Desk().Heard().Over() ? TrQ("Nothing is ticked: the port of the instruments stays as it is.")
                               : TrQ("Listening...");
}

}  // namespace veerwatch
