#include "polar/LedgerPanelQt.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "draw/DrawQt.h"
#include "draw/TextMeasureQt.h"
#include "platform/ColoursQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr qreal kRadius = 6.0;
constexpr qreal kFaint = 0.45;

QRect Whole(const Box& box) { return ToQt(box).toRect(); }

/// A text in its box, shortened where it is too long.
void Put(QPainter& painter, const Box& box, Qt::Alignment side, const std::string& text) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  painter.drawText(ToQt(box), static_cast<int>(side | Qt::AlignVCenter),
                   metrics.elidedText(ToQt(text), Qt::ElideRight, box.Width + 1.0));
}

}  // namespace

LedgerPanelQt::LedgerPanelQt(QWidget* parent)
    : QFrame(parent),
      m_colours(palette()),
      cmdSteer(new TurnButtonQt(QStringLiteral("cmdSteer"), TrQ("Steer -100 >"), this)),
      cmdTack(new TurnButtonQt(QStringLiteral("cmdTack"), TrQ("Tack"), this)) {
  setObjectName(QStringLiteral("frmLedger"));
  setWindowTitle(TrQ("Tack Ledger"));
  setAccessibleName(windowTitle());
  setToolTip(TrQ("You can drag this ledger to a different location"));
  cmdSteer->setToolTip(TrQ("Steer to the leg to sail now"));
  cmdTack->setToolTip(TrQ("Go to the other leg"));
  setCursor(Qt::SizeAllCursor);
  connect(cmdSteer, &QPushButton::clicked, this, [this] { Steer(); });
  connect(cmdTack, &QPushButton::clicked, this, [this] { Tack(); });
}

LedgerTexts LedgerPanelQt::Measure(double height, bool rows) const {
  return MeasureLedger(m_content, height, rows, FontMeasureQt(font(), *this));
}

void LedgerPanelQt::Show(const LedgerContent& content) {
  m_content = content;
  cmdSteer->Show(content.Steer);
  cmdTack->Show(content.Tack);
  cmdTack->setEnabled(content.TackPossible);
  Fit();
}

void LedgerPanelQt::Fit() {
  const double width = parentWidget()->width();
  const double height = parentWidget()->height();
  const double text = LedgerTextHeight(width, height);
  const Shape shape{parentWidget()->size(), font(), Measure(text, true)};
  if (m_shape == shape) {
    return;
  }
  m_shape = shape;
  m_layout = LayLedger(shape.Texts);
  if (!LedgerFits(m_layout, width, height)) {
    m_layout = LayLedger(Measure(text, false));
  }
  const double share = std::min({1.0, width / m_layout.Width, height / m_layout.Height});
  if (share < 1.0) {
    m_layout = LayLedger(Measure(std::floor(text * share), false));
  }
  resize(static_cast<int>(std::ceil(m_layout.Width)), static_cast<int>(std::ceil(m_layout.Height)));
  cmdSteer->setGeometry(Whole(m_layout.Steer));
  cmdTack->setGeometry(Whole(m_layout.Tack));
  for (QPushButton* button : {static_cast<QPushButton*>(cmdSteer), static_cast<QPushButton*>(cmdTack)}) {
    button->setFont(Letters(font(), m_layout.Text * 1.1, QFont::DemiBold));
  }
}

void LedgerPanelQt::Place(bool legendInCorners) {
  const auto panel = ToBox(geometry());
  MoveTo(m_dragged ? Point{panel.X, panel.Y}
                   : LedgerHome(panel, parentWidget()->width(), parentWidget()->height(), legendInCorners));
}

void LedgerPanelQt::MoveTo(const Point& at) {
  const Point inside = KeepInside({at.X, at.Y, static_cast<double>(width()), static_cast<double>(height())},
                                  parentWidget()->width(), parentWidget()->height());
  move(qRound(inside.X), qRound(inside.Y));
}

QColor LedgerPanelQt::ColourOf(LedgerSubject subject) const {
  switch (subject) {
    case LedgerSubject::StarboardTack:
      return m_colours.StarboardTack;
    case LedgerSubject::PortTack:
      return m_colours.PortTack;
    case LedgerSubject::Wind:
      return m_colours.Wind;
    case LedgerSubject::Target:
      return m_colours.Target;
    case LedgerSubject::Boat:
      break;
  }
  return m_colours.Foreground;
}

void LedgerPanelQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(m_colours.Grid, 1.0));
  painter.setBrush(m_colours.Surface);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  if (m_content.Figures.empty()) {
    return;
  }
  const auto& title = m_layout.Title;
  const double indent = m_layout.Text * 0.8;
  painter.drawLine(QPointF(0.5, title.Height), QPointF(title.Width, title.Height));
  painter.setFont(Letters(font(), m_layout.Text, QFont::Bold));
  painter.setPen(m_colours.Foreground);
  Put(painter, {indent, title.Y, title.Width - 2.0 * indent, title.Height}, Qt::AlignLeft,
      windowTitle().toStdString());
  painter.setFont(Letters(font(), m_layout.Text));
  PaintFigures(painter);
  PaintRows(painter);
}

void LedgerPanelQt::PaintFigures(QPainter& painter) const {
  for (std::size_t i = 0; i < std::min(m_layout.Figures.size(), m_content.Figures.size()); ++i) {
    const LedgerFigure& figure = m_content.Figures[i];
    const auto pen = [&](const QColor& colour) {
      painter.setPen(figure.Faint ? Legible(m_colours.Surface, colour, kFaint, kDimmedContrast) : colour);
    };
    pen(m_colours.Caption);
    Put(painter, m_layout.Figures[i].Heading, Qt::AlignLeft, figure.Heading);
    pen(m_colours.Foreground);
    Put(painter, m_layout.Figures[i].Value, Qt::AlignRight, figure.Value);
  }
}

void LedgerPanelQt::PaintRows(QPainter& painter) const {
  painter.setPen(QPen(m_colours.Grid, 1.0));
  for (const Stroke& line : m_layout.Separators) {
    painter.drawLine(ToQt(line));
  }
  for (std::size_t i = 0; i < m_layout.Rows.size(); ++i) {
    const LedgerRowPlace& place = m_layout.Rows[i];
    const LedgerRow& row = m_content.Rows[i];
    const QRectF sample = ToQt(place.Sample);
    QPen line(ColourOf(row.Subject), m_layout.Text * 0.25, Qt::SolidLine, Qt::FlatCap);
    if (row.Subject == LedgerSubject::Target) {
      line.setDashPattern({0.7, 0.7});
    } else if (m_colours.Dashed(row.Subject == LedgerSubject::PortTack)) {
      line.setDashPattern({1.6, 1.0});
    }
    painter.setPen(line);
    painter.drawLine(QPointF(sample.left(), sample.center().y()),
                     QPointF(sample.right(), sample.center().y()));
    painter.setPen(m_colours.Caption);
    Put(painter, place.Label, Qt::AlignLeft, row.Label);
    painter.setPen(m_colours.Foreground);
    Put(painter, place.Angle, Qt::AlignRight, row.Angle);
    Put(painter, place.Speed, Qt::AlignRight, row.Speed);
  }
}

void LedgerPanelQt::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    m_grab = event->position().toPoint();
  }
}

void LedgerPanelQt::mouseMoveEvent(QMouseEvent* event) {
  if (!m_grab || (event->buttons() & Qt::LeftButton) == 0) {
    return;
  }
  const QPoint at = mapToParent(event->position().toPoint()) - *m_grab;
  m_dragged = true;
  MoveTo({static_cast<double>(at.x()), static_cast<double>(at.y())});
}

void LedgerPanelQt::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    m_grab.reset();
  }
}

void LedgerPanelQt::contextMenuEvent(QContextMenuEvent* event) { MenuWanted(event->globalPos()); }

void LedgerPanelQt::Fade(bool fade) {
  if (m_faded != fade) {
    m_faded = fade;
    cmdSteer->Fade(fade);
    cmdTack->Fade(fade);
    Dress();
    update();
  }
}

void LedgerPanelQt::Dress() {
  m_colours = PolarPaletteQt(palette());
  if (m_faded) {
    m_colours = m_colours.Faded();
  }
}

void LedgerPanelQt::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    Dress();
    update();
  }
}

}  // namespace veerwatch
