#include "options/LiveListQt.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "options/OptionControlsQt.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr int kMargin = 6;  // [px] beside a line
constexpr int kGap = 4;     // [px] between two lines
constexpr int kHighlight = 80;
constexpr int kLeastLines = 4;
constexpr int kLeastColumns = 30;
/// The longest sentence that the standard allows, and its mark.
constexpr int kUsualColumns = 88;

/// Paints a line without measuring it: all characters are of one width.
class LineDelegateQt final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (index.data(LiveListModelQt::kHighlighted).toBool()) {
      QColor fill = option.palette.color(QPalette::Highlight);
      fill.setAlpha(kHighlight);
      painter->fillRect(option.rect, fill);
    }
    const QRect place = option.rect.adjusted(kMargin, 0, -kMargin, 0);
    const int columns = place.width() / std::max(1, option.fontMetrics.horizontalAdvance(QLatin1Char('0')));
    QString line = index.data().toString();
    if (line.size() > columns) {
      line.truncate(std::max(0, columns - 1));
      line.append(QChar(0x2026));
    }
    painter->setFont(option.font);
    painter->setPen(option.palette.color(QPalette::Text));
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    return {1, option.fontMetrics.height() + kGap};
  }
};

}  // namespace

// LiveListModelQt

void LiveListModelQt::Add(std::string_view text, bool highlighted) {
  if (m_lines.Full()) {
    beginRemoveRows({}, 0, 0);
    m_lines.RemoveOldest();
    endRemoveRows();
  }
  const int row = static_cast<int>(m_lines.Count());
  beginInsertRows({}, row, row);
  m_lines.Append(text, highlighted);
  endInsertRows();
}

void LiveListModelQt::Clear() {
  beginResetModel();
  m_lines.Clear();
  endResetModel();
}

int LiveListModelQt::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_lines.Count());
}

QVariant LiveListModelQt::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) {
    return {};
  }
  const LiveLines::Line& line = m_lines.At(static_cast<std::size_t>(index.row()));
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(VisibleBytes(line.Text));
    case kHighlighted:
      return line.Highlighted;
    default:
      return {};
  }
}

// LiveListQt

LiveListQt::LiveListQt(const char* name, const char* hint, QWidget* parent)
    : QListView(parent), m_lines(new LiveListModelQt(this)) {
  NameControl(*this, name, hint);
  setModel(m_lines);
  setItemDelegate(new LineDelegateQt(this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(NoSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  FixedFont();
}

void LiveListQt::Add(std::string_view text, bool highlighted) {
  m_lines->Add(text, highlighted);
  if (!m_scrolling) {
    m_scrolling = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          m_scrolling = false;
          scrollTo(m_lines->index(m_lines->rowCount() - 1), PositionAtTop);
        },
        Qt::QueuedConnection);
  }
}

QSize LiveListQt::sizeHint() const {
  const QFontMetrics metrics(font());
  return {kUsualColumns * metrics.horizontalAdvance(QLatin1Char('0')) + 2 * kMargin,
          3 * minimumSizeHint().height()};
}

QSize LiveListQt::minimumSizeHint() const {
  const QFontMetrics metrics(font());
  return {kLeastColumns * metrics.horizontalAdvance(QLatin1Char('0')) + 2 * kMargin,
          kLeastLines * (metrics.height() + kGap) + 2 * frameWidth()};
}

void LiveListQt::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange && !m_fitting) {
    FixedFont();
    updateGeometry();
  }
}

void LiveListQt::FixedFont() {
  m_fitting = true;
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  const QFont around = parentWidget()->font();
  if (around.pixelSize() > 0) {
    fixed.setPixelSize(around.pixelSize());
  } else {
    fixed.setPointSizeF(around.pointSizeF());
  }
  setFont(fixed);
  m_fitting = false;
}

}  // namespace veerwatch
