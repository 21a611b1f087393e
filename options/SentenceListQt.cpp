#include "options/SentenceListQt.h"

#include <QHeaderView>
#include <algorithm>
#include <utility>

#include "options/OptionControlsQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

SentenceListQt::SentenceListQt(QWidget* parent) : QTreeWidget(parent) {
  NameControl(*this, "lstNmeaSentence", TrMark("Which sentences are read"));
  setAccessibleName(TrQ("Nmea Sentences"));
  setHeaderLabel(TrQ("Nmea Sentences"));
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setSelectionMode(NoSelection);
  header()->setSectionsMovable(false);
  for (const SentenceKind& sentence : kSentences) {
    auto* row = new QTreeWidgetItem(this, {TrQ(sentence.Text)});
    row->setData(0, Qt::UserRole,
                 QString::fromLatin1(sentence.Name.data(), static_cast<qsizetype>(sentence.Name.size())));
    row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    row->setCheckState(0, Qt::Unchecked);
  }
  setCurrentItem(topLevelItem(0));
}

void SentenceListQt::Show(const OptionsForm& form) {
  for (std::size_t i = 0; i < form.NmeaSentence.size(); ++i) {
    topLevelItem(static_cast<int>(i))->setCheckState(0, form.NmeaSentence[i] ? Qt::Checked : Qt::Unchecked);
  }
}

void SentenceListQt::Read(OptionsForm& form) const {
  for (std::size_t i = 0; i < form.NmeaSentence.size(); ++i) {
    form.NmeaSentence[i] = topLevelItem(static_cast<int>(i))->checkState(0) == Qt::Checked;
  }
}

void SentenceListQt::Changed(std::function<void()> handler) {
  connect(this, &QTreeWidget::itemChanged, this, [tell = std::move(handler)] { tell(); });
}

void SentenceListQt::PutOver(const QWidget& place, const QRect& tabs) {
  constexpr int kMargin = 8;
  QRect room(place.mapTo(parentWidget(), QPoint(0, 0)), place.size());
  room.setBottom(std::min(room.bottom(), tabs.bottom() - kMargin));
  setGeometry(room);
}

QSize SentenceListQt::minimumSizeHint() const {
  int height = header()->sizeHint().height() + 2 * frameWidth();
  for (int row = 0; row < topLevelItemCount(); ++row) {
    height += sizeHintForRow(row);
  }
  return {sizeHintForColumn(0) + 2 * frameWidth(), height};
}

}  // namespace veerwatch
