#include "history/frmHistory.h"

#include <QCloseEvent>
#include <algorithm>

#include "history/HistoryTraces.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

const char* const kTraceSection = "History Trace";
constexpr int kChartTop = 2;
constexpr int kChartLeft = 0;
constexpr QSize kSmallestSize(220, 180);
constexpr int kPlaceTime = 200;  // [ms]

}  // namespace

frmHistory::frmHistory(const Parts& parts)
    : m_parts(parts),
      m_asks(parts.Asks.Of(*this)),
      m_chart(new StripChart(parts.Time, *m_asks, this)),
      m_line(new QFrame(this)) {
  setObjectName(QStringLiteral("frmHistory"));
  setWindowTitle(TrQ("Veerwatch - History"));
  setAttribute(Qt::WA_QuitOnClose, false);
  setMinimumSize(kSmallestSize);
  m_line->setObjectName(QStringLiteral("linTop"));
  m_line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  HistorySetUp(*m_chart, WindowColour());
  LoadPlace();
  m_placeTimer.setObjectName(QStringLiteral("tmrPlace"));
  m_placeTimer.setSingleShot(true);
  m_placeTimer.setInterval(kPlaceTime);
  connect(&m_placeTimer, &QTimer::timeout, this, [this] { NotePlace(); });
  m_chart->TraceSettingsLoad(kTraceSection, m_parts.Store);
  m_chart->setFocus();
}

std::uint32_t frmHistory::WindowColour() const { return palette().color(QPalette::Window).rgb() & 0xFFFFFFU; }

void frmHistory::LoadPlace() {
  SettingsRead(HistoryPlaceTable(), m_parts.Store, m_place);
  m_frame.Restore(FrameOf(m_place));
}

void frmHistory::NotePlace() {
  if (!isVisible()) {
    return;
  }
  if (const auto frame = FramePlace(*this)) {
    NoteFrame(m_place, *frame);
  }
}

void frmHistory::SetValue(std::string_view name, float value, std::string_view units) {
  m_chart->SampleAdd(name, HistoryText(value, units));
}

void frmHistory::ConfigurePopup() {
  constexpr std::int16_t kArguments[] = {16, 3, 2};
  m_chart->ConfigPopupShow(HistoryPopupPlace(m_chart->width(), kChartLeft),
                           HistoryPopupPlace(m_chart->height(), kChartTop), kArguments[0], kArguments[1],
                           kArguments[2]);
}

void frmHistory::Unload() {
  NotePlace();
  SettingsWrite(HistoryPlaceTable(), m_parts.Store, m_place);
  m_chart->TraceSettingsSave(kTraceSection, m_parts.Store);
}

void frmHistory::closeEvent(QCloseEvent* event) {
  Unload();
  event->accept();
}

void frmHistory::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  QTimer::singleShot(0, this, [this] { m_frame.Fit(); });
  if (!event->spontaneous() && m_visibleChanged) {
    m_visibleChanged(true);
  }
}

void frmHistory::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous() && m_visibleChanged) {
    m_visibleChanged(false);
  }
}

void frmHistory::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  m_frame.Fit();
  m_placeTimer.start();
}

void frmHistory::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  m_placeTimer.start();
  if (isMinimized()) {
    return;
  }
  m_line->setGeometry(0, 0, width(), kChartTop);
  m_chart->setGeometry(kChartLeft, kChartTop, width(), std::max(height() - kChartTop, 0));
}

void frmHistory::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    const std::uint32_t colour = WindowColour();
    m_chart->BackColourSet(colour);
    for (std::size_t group = 1; group <= kHistoryGroupTitles.size(); ++group) {
      m_chart->GroupColourSet(static_cast<std::int16_t>(group), colour);
    }
  }
}

}  // namespace veerwatch
