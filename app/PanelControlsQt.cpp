#include "app/PanelControlsQt.h"

#include <QEvent>
#include <QFocusEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <tuple>

#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr qreal kRadius = 8.0;
/// Part of a box's height that the figures may fill.
constexpr qreal kFillHeight = 0.86;
constexpr qreal kFillWidth = 0.88;
/// From the last figure to the edge [heights of a capital].
constexpr qreal kEdgeRoom = 0.1;
/// Width of a nudge's arrow with the gaps around it [heights of a capital].
constexpr qreal kArrowRoom = 3.2;
/// A font size [px] to measure with.
constexpr int kMeasureSize = 200;

/// Width of `text` with figures of equal width.
qreal TabularWidth(const QFontMetricsF& metrics, const QString& text) {
  const qreal digit = metrics.horizontalAdvance(QLatin1Char('0'));
  qreal width = 0.0;
  for (const QChar character : text) {
    width += character.isDigit() ? digit : metrics.horizontalAdvance(character);
  }
  return width;
}

/// Whether focus came from the keyboard, so that the user looks for it.
bool ByKeyboard(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
         event.reason() == Qt::ShortcutFocusReason || event.reason() == Qt::OtherFocusReason;
}

void PaintFocus(QPainter& painter, const QRectF& box, const QColor& colour) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, 2.0));
  painter.drawRoundedRect(box.adjusted(3.0, 3.0, -3.0, -3.0), kRadius - 2.0, kRadius - 2.0);
}

}  // namespace

int FittingTextHeight(const QFont& font, const QString& pattern, const QSize& box) {
  QFont measured(font);
  measured.setPixelSize(kMeasureSize);
  const QFontMetricsF metrics(measured);
  const qreal byHeight = box.height() * kFillHeight / metrics.capHeight();
  const qreal byWidth = box.width() * kFillWidth / TabularWidth(metrics, pattern);
  return std::max(1, static_cast<int>(kMeasureSize * std::min(byHeight, byWidth)));
}

// ValueLabelQt

ValueLabelQt::ValueLabelQt(const QString& name, const QString& pattern, QWidget* parent)
    : QLabel(parent), m_pattern(pattern) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

void ValueLabelQt::TextHeight(int pixels) {
  QFont figures = font();
  figures.setPixelSize(pixels);
  setFont(figures);
}

void ValueLabelQt::Colours(const QColor& text, const QColor& dimmed) {
  m_text = text;
  m_dimmed = dimmed;
  update();
}

void ValueLabelQt::Fade(bool half, const QString& age) {
  if (m_half != half || m_age != age) {
    m_half = half;
    m_age = age;
    setAccessibleDescription(age.isEmpty() ? age : TrQ("%1 old").arg(age));
    update();
  }
}

void ValueLabelQt::BackColour(const QColor& colour) {
  m_alarm = colour.isValid();
  if (m_alarm) {
    QPalette alarm;
    alarm.setColor(backgroundRole(), colour);
    setPalette(alarm);
  } else {
    setPalette(QPalette());
  }
}

void ValueLabelQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (m_alarm) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(backgroundRole()));
    painter.drawRoundedRect(QRectF(rect()), kRadius, kRadius);
  }
  const QString shown = text();
  const bool aged = !m_age.isEmpty() && !shown.isEmpty();
  const int beneath = aged ? m_agePixels * 5 / 4 : 0;
  QFont figures = font();
  QFontMetricsF metrics(figures);
  qreal textWidth = TabularWidth(metrics, shown);
  if (textWidth > width()) {
    figures.setPixelSize(std::max(1, static_cast<int>(figures.pixelSize() * width() / textWidth)));
    metrics = QFontMetricsF(figures);
    textWidth = TabularWidth(metrics, shown);
  }
  // With an age beneath them the figures stand higher, and give way where there is no room.
  const qreal room = height() - beneath;
  if (aged && metrics.capHeight() > room) {
    figures.setPixelSize(std::max(1, static_cast<int>(figures.pixelSize() * room / metrics.capHeight())));
    metrics = QFontMetricsF(figures);
    textWidth = TabularWidth(metrics, shown);
  }
  const qreal right = std::max(textWidth, width() - metrics.capHeight() * kEdgeRoom);
  const QColor colour = m_alarm ? QColor(Qt::black) : isEnabled() && !m_half ? m_text : m_dimmed;
  const qreal digit = metrics.horizontalAdvance(QLatin1Char('0'));
  QPointF place(std::min<qreal>(right, width()) - textWidth,
                std::round((room + metrics.capHeight()) / 2.0 - metrics.ascent()));
  if (aged) {
    QFont small = font();
    small.setPixelSize(m_agePixels);
    painter.setFont(small);
    painter.setPen(colour);
    painter.drawText(QRectF(0.0, room, std::min<qreal>(right, width()), beneath),
                     Qt::AlignRight | Qt::AlignVCenter, m_age);
  }
  for (const QChar character : shown) {
    const qreal cell = character.isDigit() ? digit : metrics.horizontalAdvance(character);
    painter.drawPixmap(place, Glyph(character, figures, colour, cell));
    place.rx() += cell;
  }
}

const QPixmap& ValueLabelQt::Glyph(QChar character, const QFont& font, const QColor& colour, qreal width) {
  const qreal scale = devicePixelRatioF();
  if (font != m_glyphFont || colour != m_glyphColour || scale != m_glyphScale) {
    m_glyphs.clear();
    m_glyphFont = font;
    m_glyphColour = colour;
    m_glyphScale = scale;
  }
  QPixmap& glyph = m_glyphs[character];
  if (glyph.isNull()) {
    const QFontMetricsF metrics(font);
    const QSizeF size(std::ceil(std::max(1.0, width)), std::ceil(metrics.height()));
    glyph = QPixmap((size * scale).toSize());
    glyph.setDevicePixelRatio(scale);
    glyph.fill(Qt::transparent);
    QPainter painter(&glyph);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QPointF((width - metrics.horizontalAdvance(character)) / 2.0, metrics.ascent()),
                     character);
  }
  return glyph;
}

// CaptionQt

CaptionQt::CaptionQt(const QString& name, const QString& text, QWidget* parent) : QLabel(text, parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

void CaptionQt::Colours(const QColor& text, const QColor& dimmed) {
  m_text = text;
  m_dimmed = dimmed;
  update();
}

QSize CaptionQt::sizeHint() const {
  const QMargins margins = contentsMargins();
  return {0, fontMetrics().height() + margins.top() + margins.bottom()};
}

void CaptionQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(isEnabled() ? m_text : m_dimmed);
  const QRect room = contentsRect();
  painter.drawText(room, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), m_elide, room.width()));
}

int CaptionQt::TextWidth() const {
  const QMargins margins = contentsMargins();
  return fontMetrics().horizontalAdvance(text()) + 1 + margins.left() + margins.right();
}

// EntryBoxQt

EntryBoxQt::EntryBoxQt(const QString& name, const QString& pattern, QWidget* parent)
    : EntryLineQt(parent), m_pattern(pattern) {
  setObjectName(name);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void EntryBoxQt::Follow(const QString& text) {
  if (!Edited()) {
    Show(text);
  }
}

void EntryBoxQt::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    m_taken();
    selectAll();
    event->accept();
    return;
  }
  if (event->key() == Qt::Key_Escape && Edited()) {
    Forget();
    selectAll();
    event->accept();
    return;
  }
  EntryLineQt::keyPressEvent(event);
}

void EntryBoxQt::focusOutEvent(QFocusEvent* event) {
  EntryLineQt::focusOutEvent(event);
  if (!m_ownMenu && Edited()) {
    m_taken();
  }
}

void EntryBoxQt::contextMenuEvent(QContextMenuEvent* event) {
  m_ownMenu = true;
  EntryLineQt::contextMenuEvent(event);
  m_ownMenu = false;
}

// NudgeButtonQt

NudgeButtonQt::NudgeButtonQt(const QString& name, bool toStarboard, QWidget* parent)
    : QPushButton(toStarboard ? TrQ("To Starboard") : TrQ("To Port"), parent),
      m_toStarboard(toStarboard),
      m_theme(palette()) {
  setObjectName(name);
  setAttribute(Qt::WA_Hover);
}

void NudgeButtonQt::Theme(const ThemeQt& theme) {
  m_theme = theme;
  update();
}

int NudgeButtonQt::FittingTextHeight(const QFont& font, double width) const {
  const QFontMetricsF metrics(font);
  const qreal wanted = metrics.horizontalAdvance(text()) + metrics.capHeight() * kArrowRoom;
  return wanted > width ? std::max(1, static_cast<int>(font.pixelSize() * width / wanted)) : font.pixelSize();
}

void NudgeButtonQt::focusInEvent(QFocusEvent* event) {
  m_showFocus = ByKeyboard(*event);
  QPushButton::focusInEvent(event);
}

void NudgeButtonQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const ThemeQt::Pair pair = m_toStarboard ? m_theme.Starboard : m_theme.Port;
  const QRectF box = QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0);
  const ThemeQt::Pair resting = m_theme.Resting(pair);
  QColor fill = pair.Fill;
  QColor text = pair.Text;
  if (!isEnabled()) {
    std::tie(fill, text) = std::tie(resting.Fill, resting.Text);
    painter.setPen(QPen(Mixed(m_theme.Card, pair.Fill, 0.55), 1.5));
  } else {
    if (isDown()) {
      fill = fill.darker(130);
    } else if (underMouse()) {
      fill = Mixed(fill, Qt::white, 0.12);
    }
    painter.setPen(Qt::NoPen);
  }
  painter.setBrush(fill);
  painter.drawRoundedRect(box, kRadius, kRadius);
  if (hasFocus() && m_showFocus) {
    PaintFocus(painter, box, text);
  }

  const QFontMetricsF metrics(font());
  const QString caption = this->text();
  const qreal arrow = metrics.capHeight();
  const qreal gap = arrow * 0.7;
  const qreal captionWidth = metrics.horizontalAdvance(caption);
  const qreal left = (width() - captionWidth - gap - arrow) / 2.0;
  const qreal middle = height() / 2.0;
  const qreal arrowLeft = m_toStarboard ? left + captionWidth + gap : left;
  const qreal tip = m_toStarboard ? arrowLeft + arrow : arrowLeft;
  const qreal foot = m_toStarboard ? arrowLeft : arrowLeft + arrow;
  painter.setPen(Qt::NoPen);
  painter.setBrush(isEnabled() || m_theme.Night ? text : Mixed(m_theme.Card, pair.Fill, 0.75));
  painter.drawPolygon(QPolygonF(
      {QPointF(tip, middle), QPointF(foot, middle - arrow * 0.6), QPointF(foot, middle + arrow * 0.6)}));
  painter.setPen(text);
  painter.drawText(QPointF(m_toStarboard ? left : left + arrow + gap, middle + metrics.capHeight() / 2.0),
                   caption);
}

// SideOptionQt

SideOptionQt::SideOptionQt(const QString& name, const QString& text, QWidget* parent)
    : QRadioButton(text, parent), m_theme(palette()) {
  setObjectName(name);
}

void SideOptionQt::Theme(const ThemeQt& theme) {
  m_theme = theme;
  update();
}

void SideOptionQt::focusInEvent(QFocusEvent* event) {
  m_showFocus = ByKeyboard(*event);
  QRadioButton::focusInEvent(event);
}

void SideOptionQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QFontMetricsF metrics(font());
  const qreal size = metrics.capHeight() * 1.5;
  const QRectF ring(2.0, (height() - size) / 2.0, size, size);
  const QColor mark = isEnabled() ? m_theme.Accent : m_theme.Dimmed;
  painter.setPen(QPen(isChecked() ? mark : m_theme.Dimmed, std::max(1.5, size * 0.13)));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(ring);
  if (isChecked()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(mark);
    painter.drawEllipse(ring.adjusted(size * 0.27, size * 0.27, -size * 0.27, -size * 0.27));
  }
  const qreal left = ring.right() + size * 0.5;
  const QString caption = metrics.elidedText(text(), Qt::ElideRight, width() - left);
  painter.setFont(font());
  painter.setPen(isEnabled() && isChecked() ? m_theme.Text : m_theme.Dimmed);
  painter.drawText(QPointF(left, (height() + metrics.capHeight()) / 2.0), caption);
  if (hasFocus() && m_showFocus) {
    PaintFocus(painter, QRectF(rect()).adjusted(-2.0, -2.0, 2.0, 2.0), m_theme.Accent);
  }
}

}  // namespace veerwatch
