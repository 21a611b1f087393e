#include "polar/TurnButtonQt.h"

#include <QPainter>
#include <tuple>
#include <utility>

#include "platform/ColoursQt.h"

namespace veerwatch {

namespace {

constexpr QColor kStarboard(128, 255, 128);
constexpr QColor kPort(255, 128, 128);
constexpr QColor kOnColour(0x14, 0x18, 0x14);
constexpr qreal kRadius = 4.0;
/// How strong a colour is at night, when it must not dazzle.
constexpr qreal kNightShare = 0.25;

/// A plate with a text, in the colours given.
void PaintPlate(QPainter& painter, const QRect& place, const QString& text, const QColor& back,
                const QColor& letters, const QPen& edge) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(edge);
  painter.setBrush(back);
  painter.drawRoundedRect(QRectF(place).adjusted(1.0, 1.0, -1.0, -1.0), kRadius, kRadius);
  painter.setPen(letters);
  painter.drawText(place, Qt::AlignCenter, text);
}

QColor Faded(QColor colour, float share) {
  colour.setAlphaF(share);
  return colour;
}

constexpr float kEdge = 0.35F;

constexpr qreal kFadedText = 0.45;

/// What is no more of now: its side still to be told, its text still legible.
std::pair<QColor, QColor> FadedPlate(const QWidget& control, const QColor& back) {
  const QPalette colours = control.window()->palette();
  const QColor window = colours.color(QPalette::Active, QPalette::Window);
  const QColor plate = Mixed(window, back, 0.25);
  return {plate,
          Legible(plate, colours.color(QPalette::Active, QPalette::WindowText), kFadedText, kDimmedContrast)};
}

/// Gives `control` the back colour of `face` and a text colour for it.
void WearTurn(QWidget& control, const TurnFace& face) {
  // Asked of the window, whose colours are the desktop's own.
  QPalette colours = control.window()->palette();
  QColor back = colours.color(QPalette::Active, QPalette::Window);
  QColor text = colours.color(QPalette::Active, QPalette::WindowText);
  if (face.Back != TurnColor::Own) {
    const QColor side = face.Back == TurnColor::Starboard ? kStarboard : kPort;
    const bool night = IsNight(back);
    back = night ? Mixed(back, NightShade(side), kNightShare) : side;
    text = night ? text : kOnColour;
  }
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (const auto role : {QPalette::Button, QPalette::Window}) {
      colours.setColor(group, role, back);
    }
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText}) {
      colours.setColor(group, role, text);
    }
  }
  if (colours != control.palette()) {
    control.setPalette(colours);
  }
}

}  // namespace

TurnLabelQt::TurnLabelQt(const QString& name, const QString& caption, QWidget* parent)
    : QLabel(caption, parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TurnLabelQt::Show(const TurnFace& face) {
  WearTurn(*this, face);
  setText(QString::fromStdString(face.Caption));
}

void TurnLabelQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QColor text = palette().color(QPalette::WindowText);
  QColor back = palette().color(QPalette::Window);
  if (m_faded) {
    std::tie(back, text) = FadedPlate(*this, back);
  }
  PaintPlate(painter, rect(), this->text(), back, text, Faded(text, kEdge));
}

void TurnLabelQt::Fade(bool fade) {
  m_faded = fade;
  update();
}

void TurnButtonQt::Fade(bool fade) {
  m_faded = fade;
  update();
}

TurnButtonQt::TurnButtonQt(const QString& name, const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
  setObjectName(name);
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::ArrowCursor);
}

void TurnButtonQt::Show(const TurnFace& face) {
  WearTurn(*this, face);
  setText(QString::fromStdString(face.Caption));
}

void TurnButtonQt::paintEvent(QPaintEvent* /*event*/) {
  constexpr qreal kDimText = 0.45;
  constexpr float kDimEdge = 0.2F;
  constexpr int kMiddleLightness = 128;
  QPainter painter(this);
  QColor back = palette().color(QPalette::Button);
  QColor text = palette().color(QPalette::ButtonText);
  if (m_faded) {
    std::tie(back, text) = FadedPlate(*this, back);
  }
  if (!isEnabled()) {
    PaintPlate(
        painter, rect(), this->text(), back,
        Legible(back, palette().color(QPalette::Active, QPalette::ButtonText), kDimText, kDimmedContrast),
        Faded(text, kDimEdge));
    return;
  }
  if (isDown()) {
    back = back.darker(125);
  } else if (underMouse()) {
    back = back.lightness() > kMiddleLightness ? back.darker(108) : back.lighter(135);
  }
  PaintPlate(painter, rect(), this->text(), back, text, QPen(Faded(text, kEdge), hasFocus() ? 2.0 : 1.0));
}

}  // namespace veerwatch
