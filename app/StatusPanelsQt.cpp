#include "app/StatusPanelsQt.h"

#include <cmath>
#include <vector>

#include "app/PanelLayout.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kMargin = 10;  // [px]
constexpr std::array<const char*, 3> kToolTips{TrMark("Pilot Status"), TrMark("Input Data Status"),
                                               TrMark("Output Data Status")};
/// The reasons on the pilot's panel are the longest texts.
constexpr std::array<double, 3> kShares{5.0, 3.0, 3.0};

constexpr std::size_t At(int index) { return static_cast<std::size_t>(index - 1); }

}  // namespace

StatusPanelsQt::StatusPanelsQt(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  for (std::size_t i = 0; i < m_panels.size(); ++i) {
    m_panels[i] = new CaptionQt(QStringLiteral("StatusBar(%1)").arg(i + 1), QString(), this);
    m_panels[i]->setToolTip(TrQ(kToolTips[i]));
    m_panels[i]->setAccessibleName(TrQ(kToolTips[i]));
    m_panels[i]->setContentsMargins(kMargin, 3, kMargin, 4);
  }
  // A cut text of the output keeps the figure of the alarm, which is its end.
  m_panels[At(kOutput)]->Elide(Qt::ElideMiddle);
}

void StatusPanelsQt::Show(int index, const QString& text) {
  if (m_panels[At(index)]->text() != text) {
    m_panels[At(index)]->setText(text);
    Place();
  }
}

void StatusPanelsQt::Explain(int index, const QString& reason) {
  m_reasons[At(index)] = reason;
  ShowToolTip(At(index));
}

void StatusPanelsQt::LeadsTo(int index, const QString& endpoints) {
  if (m_endpoints[At(index)] != endpoints) {
    m_endpoints[At(index)] = endpoints;
    ShowToolTip(At(index));
  }
}

void StatusPanelsQt::ShowToolTip(std::size_t panel) {
  QString toolTip = TrQ(kToolTips[panel]);
  for (const QString& line : {m_endpoints[panel], m_reasons[panel]}) {
    if (!line.isEmpty()) {
      toolTip += QLatin1Char('\n') + line;
    }
  }
  m_panels[panel]->setToolTip(toolTip);
  m_panels[panel]->setAccessibleDescription(m_reasons[panel]);
}

void StatusPanelsQt::Theme(const ThemeQt& theme) {
  for (CaptionQt* panel : m_panels) {
    panel->Colours(theme.Text, theme.Dimmed);
  }
}

void StatusPanelsQt::TextHeight(int pixels) {
  QFont letters = font();
  letters.setPixelSize(pixels);
  for (CaptionQt* panel : m_panels) {
    panel->setFont(letters);
  }
  updateGeometry();
  Place();
}

QSize StatusPanelsQt::sizeHint() const { return {0, m_panels.front()->sizeHint().height()}; }

void StatusPanelsQt::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Place();
}

void StatusPanelsQt::Place() {
  std::vector<double> needed;
  for (const CaptionQt* panel : m_panels) {
    needed.push_back(panel->text().isEmpty() ? 0.0 : panel->TextWidth());
  }
  const std::vector<double> widths = ShareRoom(width(), {kShares.begin(), kShares.end()}, needed);
  double left = 0.0;
  for (std::size_t i = 0; i < m_panels.size(); ++i) {
    const double right = left + widths[i];
    m_panels[i]->setGeometry(static_cast<int>(std::lround(left)), 0,
                             static_cast<int>(std::lround(right) - std::lround(left)), height());
    left = right;
  }
}

}  // namespace veerwatch
