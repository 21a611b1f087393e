#include "options/LiveListQt.h"

#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>
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
    // Only the characters that show: a hostile line has thousands.
    const int advance = Advance(option.fontMetrics);
    const int first = std::max(0, -option.rect.left() / advance - 1);
    const int shown = option.widget->width() / advance + 3;
    const QRect place = option.rect.adjusted(kMargin + first * advance, 0, 0, 0);
    painter->setFont(option.font);
    painter->setPen(option.palette.color(QPalette::Text));
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                      index.data().toString().mid(first, shown));
  }

  /// As wide as the longest line.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const auto* lines = static_cast<const LiveListModelQt*>(index.model());
    const auto longest = static_cast<int>(lines->Lines().Longest());
    return {longest * Advance(option.fontMetrics) + 2 * kMargin, option.fontMetrics.height() + kGap};
  }

 private:
  static int Advance(const QFontMetrics& metrics) {
    return std::max(1, metrics.horizontalAdvance(QLatin1Char('0')));
  }
};

}  // namespace

// LiveListModelQt

bool LiveListModelQt::Add(std::string_view text, bool highlighted) {
  if (m_lines.NoteType(text) && m_typeFound) {
    m_typeFound();
  }
  if (!m_lines.Wants(text)) {
    return false;
  }
  if (m_lines.Paused()) {
    m_lines.Wait(text, highlighted);
    return false;
  }
  if (m_lines.Full()) {
    beginRemoveRows({}, 0, 0);
    m_lines.RemoveOldest();
    endRemoveRows();
  }
  const int row = static_cast<int>(m_lines.Count());
  beginInsertRows({}, row, row);
  m_lines.Append(text, highlighted);
  endInsertRows();
  return true;
}

void LiveListModelQt::Pause(bool paused) {
  beginResetModel();
  m_lines.Pause(paused);
  endResetModel();
}

void LiveListModelQt::Type(std::string_view type) {
  beginResetModel();
  m_lines.Type(type);
  endResetModel();
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
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  FixedFont();
}

void LiveListQt::Add(std::string_view text, bool highlighted) {
  if (m_lines->Add(text, highlighted)) {
    FollowSoon();
  }
}

void LiveListQt::FollowSoon() {
  if (!m_scrolling) {
    m_scrolling = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          m_scrolling = false;
          // The place sideways stays.
          scrollToBottom();
        },
        Qt::QueuedConnection);
  }
}

void LiveListQt::Pause(bool paused) {
  const int down = verticalScrollBar()->value();
  const int sideways = horizontalScrollBar()->value();
  m_lines->Pause(paused);
  executeDelayedItemsLayout();
  verticalScrollBar()->setValue(down);
  horizontalScrollBar()->setValue(sideways);
  if (!paused) {
    FollowSoon();
  }
}

void LiveListQt::CopyAll() const {
  QString text;
  for (int row = 0; row < m_lines->rowCount(); ++row) {
    text += m_lines->index(row).data().toString() + QLatin1Char('\n');
  }
  QGuiApplication::clipboard()->setText(text);
}

QSize LiveListQt::sizeHint() const {
  const QFontMetrics metrics(font());
  return {kUsualColumns * metrics.horizontalAdvance(QLatin1Char('0')) + 2 * kMargin,
          3 * minimumSizeHint().height()};
}

QSize LiveListQt::minimumSizeHint() const {
  const QFontMetrics metrics(font());
  return {kLeastColumns * metrics.horizontalAdvance(QLatin1Char('0')) + 2 * kMargin,
          kLeastLines * (metrics.height() + kGap) + horizontalScrollBar()->sizeHint().height() +
              2 * frameWidth()};
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
