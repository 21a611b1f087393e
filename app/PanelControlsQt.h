// The kinds of controls that the instrument panel is made of. Each keeps what the toolkit's own control
// offers to programs and to keyboards, and paints itself for reading from a distance. Their texts never
// change their size.
#pragma once

#include <QHash>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <functional>

#include "app/ThemeQt.h"
#include "platform/EntryLineQt.h"

namespace veerwatch {

/// The height [px] that digits of `pattern` may have so that it fits into `box`.
int FittingTextHeight(const QFont& font, const QString& pattern, const QSize& box);

/// A number in large figures of equal width, so that a changing value does not dance. A text wider than the
/// label is drawn smaller.
class ValueLabelQt final : public QLabel {
 public:
  ValueLabelQt(const QString& name, const QString& pattern, QWidget* parent);

  /// The widest usual text.
  const QString& Pattern() const { return m_pattern; }
  void TextHeight(int pixels);
  /// Text colour, and text colour while disabled.
  void Colours(const QColor& text, const QColor& dimmed);
  /// In half tone where `half`, with `age` beneath the figures; "" for none.
  void Fade(bool half, const QString& age);
  /// Height of an age's letters [px].
  void AgeHeight(int pixels) { m_agePixels = pixels; }
  /// A back colour for an alarm, with a text that is legible on it; an invalid colour takes it back.
  void BackColour(const QColor& colour);

  QSize minimumSizeHint() const override { return {0, 0}; }
  QSize sizeHint() const override { return {0, 0}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The picture of a character in the present font and colour, drawn once: characters of this size are
  /// costly.
  const QPixmap& Glyph(QChar character, const QFont& font, const QColor& colour, qreal width);

  QString m_pattern;
  QColor m_text;
  QColor m_dimmed;
  bool m_alarm = false;
  bool m_half = false;
  QString m_age;
  int m_agePixels = 1;
  QHash<QChar, QPixmap> m_glyphs;
  QFont m_glyphFont;
  QColor m_glyphColour;
  qreal m_glyphScale = 0.0;
};

/// A line of small text, cut at the end where it is too long.
class CaptionQt final : public QLabel {
 public:
  CaptionQt(const QString& name, const QString& text, QWidget* parent);

  void Colours(const QColor& text, const QColor& dimmed);
  /// Where a text that is too long is cut; at its end unless told otherwise.
  void Elide(Qt::TextElideMode where) { m_elide = where; }
  /// Room that the whole text takes with its margins [px].
  int TextWidth() const;

  QSize minimumSizeHint() const override { return sizeHint(); }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor m_text;
  QColor m_dimmed;
  Qt::TextElideMode m_elide = Qt::ElideRight;
};

/// A box for one number. Enter takes the text and goes no further; Escape brings back what holds. Leaving the
/// box takes the text too, whatever the keyboard goes to: another control, a menu, another window. Its own
/// pop-up menu does not leave it.
/// Deliberate: leaving the box takes only a text that was edited, so that the rounded text does not overwrite
/// the value that it was made of.
class EntryBoxQt final : public EntryLineQt {
 public:
  EntryBoxQt(const QString& name, const QString& pattern, QWidget* parent);

  const QString& Pattern() const { return m_pattern; }
  /// Who takes the text.
  void Taken(std::function<void()> handler) { m_taken = std::move(handler); }

  /// Shows a value that comes from the program; while the user is typing he is left alone.
  void Follow(const QString& text);

  QSize minimumSizeHint() const override { return {0, 0}; }
  QSize sizeHint() const override { return {0, 0}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QString m_pattern;
  bool m_ownMenu = false;  ///< its pop-up menu is about to take the keyboard
  std::function<void()> m_taken;
};

/// A push button of one degree to port (red, arrow to the left) or to starboard (green, arrow to the right).
class NudgeButtonQt final : public QPushButton {
 public:
  NudgeButtonQt(const QString& name, bool toStarboard, QWidget* parent);

  void Theme(const ThemeQt& theme);

  /// The height [px] of letters with which the caption and its arrow fit into `width` [px], at most that of
  /// `font`.
  int FittingTextHeight(const QFont& font, double width) const;

  QSize minimumSizeHint() const override { return {0, 0}; }
  QSize sizeHint() const override { return {0, 0}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool m_toStarboard;
  bool m_showFocus = false;
  ThemeQt m_theme;
};

/// One of the option pair, as the heading of its card.
class SideOptionQt final : public QRadioButton {
 public:
  SideOptionQt(const QString& name, const QString& text, QWidget* parent);

  void Theme(const ThemeQt& theme);

  QSize minimumSizeHint() const override { return {0, 0}; }
  QSize sizeHint() const override { return {0, 0}; }

 protected:
  bool hitButton(const QPoint& position) const override { return rect().contains(position); }
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool m_showFocus = false;
  ThemeQt m_theme;
};

}  // namespace veerwatch
