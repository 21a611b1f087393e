#include "diagram/frmDiagram.h"

#include <QEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "draw/DrawQt.h"
#include "platform/ColoursQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr double kScreenShare = 0.92;
constexpr double kSmallestScale = 0.5;
constexpr qreal kWayWidth = 2.0;
constexpr qreal kEdgeWidth = 1.2;
constexpr qreal kCorner = 8.0;

/// The fill of a box and the text on it.
std::pair<QColor, QColor> Colours(DiagramLight light, const QPalette& palette) {
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  std::pair<QColor, QColor> pair{Mixed(window, text, 0.12), text};
  switch (light) {
    case DiagramLight::Ready:
      pair = {QColor(0x2a, 0x68, 0xa8), Qt::white};
      break;
    case DiagramLight::ByHand:
      pair = {QColor(0xf0, 0xb0, 0x3c), QColor(0x1c, 0x14, 0x04)};
      break;
    case DiagramLight::Good:
      pair = {QColor(0x17, 0x74, 0x3c), Qt::white};
      break;
    case DiagramLight::Trouble:
      pair = {QColor(0xb9, 0x2b, 0x24), Qt::white};
      break;
    case DiagramLight::Off:
      return pair;
  }
  if (IsNight(window)) {
    return {NightShade(pair.first),
            light == DiagramLight::ByHand ? QColor(Qt::black) : palette.color(QPalette::HighlightedText)};
  }
  return pair;
}

}  // namespace

frmDiagram::frmDiagram(DiagramObserver& tells) : m_tells(tells) {
  setObjectName(QStringLiteral("frmDiagram"));
  setWindowTitle(TrQ("Veerwatch - Block Diagram"));
  setAttribute(Qt::WA_QuitOnClose, false);
  MakeControls();
  ConnectButtons();
  const QSizeF size(m_diagram.Width, m_diagram.Height);
  setMinimumSize((size * kSmallestScale).toSize());
  const QSizeF room = screen() != nullptr ? QSizeF(screen()->availableSize()) * kScreenShare : size;
  const bool fits = size.width() <= room.width() && size.height() <= room.height();
  resize((fits ? size : size.scaled(room, Qt::KeepAspectRatio)).toSize());
  Dress();
}

void frmDiagram::MakeControls() {
  const auto make = [this](const BlockLabel& label) {
    auto* shown = new QLabel(TrQ(label.Text), this);
    shown->setObjectName(ToQt(label.Name));
    shown->setTextFormat(Qt::PlainText);
    shown->setAlignment(Qt::AlignCenter);
    m_placed.emplace_back(shown, label.Area);
  };
  std::for_each(m_diagram.Labels.begin(), m_diagram.Labels.end(), make);
  std::for_each(m_diagram.States.begin(), m_diagram.States.end(), make);
  for (const BlockButton& button : m_diagram.Buttons) {
    auto* shown = new QPushButton(TrQ(button.Caption), this);
    shown->setObjectName(ToQt(button.Name));
    shown->setToolTip(TrQ(button.ToolTip));
    shown->setAutoDefault(true);
    m_placed.emplace_back(shown, button.Area);
  }
  // In the order of the signal.
  setTabOrder(&Button("cmdInput"), &Button("cmdControl"));
  setTabOrder(&Button("cmdControl"), &Button("cmdOutput"));
  setTabOrder(&Button("cmdOutput"), &Button("cmdPolar"));
  setTabOrder(&Button("cmdPolar"), &Button("cmdHistory"));
}

QPushButton& frmDiagram::Button(const char* name) const {
  return *findChild<QPushButton*>(QLatin1String(name));
}

void frmDiagram::ConnectButtons() {
  constexpr std::pair<const char*, int> kTabs[] = {{"cmdInput", 0}, {"cmdOutput", 2}, {"cmdControl", 1}};
  for (const auto& [name, tab] : kTabs) {
    QPushButton& button = Button(name);
    connect(&button, &QPushButton::clicked, this,
            [this, &button, opens = tab] { m_tells.OnDiagramOptions(opens, Anchor(button)); });
  }
  connect(&Button("cmdPolar"), &QPushButton::clicked, this, [this] { m_tells.OnDiagramPolar(); });
  connect(&Button("cmdHistory"), &QPushButton::clicked, this, [this] { m_tells.OnDiagramHistory(); });
}

DiagramAnchor frmDiagram::Anchor(const QWidget& button) const {
  return {ToBox(button.geometry()), ToBox(frameGeometry()), static_cast<double>(width()),
          static_cast<double>(height())};
}

double frmDiagram::Scale() const { return std::min(width() / m_diagram.Width, height() / m_diagram.Height); }

QRectF frmDiagram::Placed(const Box& area) const {
  const double scale = Scale();
  const QPointF corner((width() - m_diagram.Width * scale) / 2.0,
                       (height() - m_diagram.Height * scale) / 2.0);
  const QRectF place = ToQt(area);
  return {corner + place.topLeft() * scale, place.size() * scale};
}

void frmDiagram::LayOut() {
  QFont letters = font();
  letters.setPixelSize(std::max(1, static_cast<int>(m_diagram.TextSize * Scale())));
  for (const auto& [control, area] : m_placed) {
    control->setGeometry(Placed(area).toRect());
    QFont own = letters;
    own.setBold(control->objectName() == QStringLiteral("lblComputer"));
    control->setFont(own);
  }
}

void frmDiagram::Light(QPushButton& button, QLabel* label, const DiagramBoxState& state) {
  const auto [fill, text] = Colours(state.Light, palette());
  const QColor focus = palette().color(QPalette::Active, QPalette::WindowText);
  button.setStyleSheet(
      QStringLiteral("QPushButton{background:%1;color:%2;border:1px solid %3;border-radius:8px}"
                     "QPushButton:hover{border:2px solid %3}"
                     "QPushButton:pressed{background:%4}"
                     "QPushButton:focus{border:3px solid %3}")
          .arg(fill.name(), text.name(), Mixed(fill, focus, 0.6).name(), Mixed(fill, text, 0.25).name()));
  if (label != nullptr) {
    label->setText(TrQ(state.Text));
    button.setAccessibleDescription(TrQ(state.Text));
  }
}

void frmDiagram::Dress() {
  const auto label = [this](const char* name) { return findChild<QLabel*>(QLatin1String(name)); };
  Light(Button("cmdInput"), label("lblInputState"), m_state.Input);
  Light(Button("cmdControl"), label("lblControlState"), m_state.Control);
  Light(Button("cmdOutput"), label("lblOutputState"), m_state.Output);
  Light(Button("cmdPolar"), nullptr, {});
  Light(Button("cmdHistory"), nullptr, {});
}

void frmDiagram::ShowState(const DiagramState& state) {
  if (state != m_state) {
    m_state = state;
    Dress();
  }
}

void frmDiagram::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor window = palette().color(QPalette::Window);
  const QColor text = palette().color(QPalette::WindowText);
  const QRectF all = Placed({0.0, 0.0, m_diagram.Width, m_diagram.Height});
  painter.translate(all.topLeft());
  painter.scale(Scale(), Scale());

  painter.setPen(QPen(Mixed(window, text, 0.4), kEdgeWidth));
  painter.setBrush(Mixed(window, text, 0.05));
  painter.drawRoundedRect(ToQt(m_diagram.Computer), 2.0 * kCorner, 2.0 * kCorner);
  for (const BlockLabel& label : m_diagram.Labels) {
    if (label.Framed) {
      painter.drawRoundedRect(ToQt(label.Area), kCorner, kCorner);
    }
  }
  painter.setPen(QPen(text, kWayWidth, Qt::SolidLine, Qt::RoundCap));
  Draw(painter, m_diagram.Lines);
  for (const DiagramArrow& arrow : m_diagram.lnArrowRight) {
    painter.drawLine(ToQt(arrow.Way));
  }
  Draw(painter, m_heads);
}

void frmDiagram::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void frmDiagram::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  m_tells.OnDiagramVisible(true);
}

void frmDiagram::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  m_tells.OnDiagramVisible(isVisible());
}

void frmDiagram::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    Dress();
  }
}

}  // namespace veerwatch
