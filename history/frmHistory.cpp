#include "history/frmHistory.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <cmath>

#include "history/HistoryTraces.h"

namespace veerwatch {

namespace {

const char* const kTraceSection = "History Trace";
constexpr double kChartTop = 30.0;  // [twips]
constexpr double kChartLeft = 0.0;  // [twips]
constexpr QSize kSmallestSize(220, 180);
constexpr int kPlaceTime = 200;  // [ms]

int Pixels(double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

/// A place in twips that a window at `pixels` has; the stored one where it still means the same pixel.
void Note(float& twips, int pixels) {
  if (Pixels(static_cast<double>(twips)) != pixels) {
    twips = static_cast<float>(pixels * kTwipsPerPixel);
  }
}

}  // namespace

frmHistory::frmHistory(const Parts& parts)
    : m_parts(parts),
      m_asks(parts.Asks.Of(*this)),
      m_chart(new StripChart(parts.Time, *m_asks, this)),
      m_line(new QFrame(this)) {
  setObjectName(QStringLiteral("frmHistory"));
  setWindowTitle(QStringLiteral("Veerwatch - History"));
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
  std::vector<PlaceBox> screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect free = screen->availableGeometry();
    screens.push_back({static_cast<double>(free.x()), static_cast<double>(free.y()),
                       static_cast<double>(free.width()), static_cast<double>(free.height())});
  }
  const PlaceBox frame = PlaceOnScreen({static_cast<double>(Pixels(static_cast<double>(m_place.Left))),
                                        static_cast<double>(Pixels(static_cast<double>(m_place.Top))),
                                        static_cast<double>(Pixels(static_cast<double>(m_place.Width))),
                                        static_cast<double>(Pixels(static_cast<double>(m_place.Height)))},
                                       screens, kSmallestSize.width(), kSmallestSize.height());
  m_wanted = QRectF(frame.X, frame.Y, frame.Width, frame.Height).toRect();
  move(m_wanted.topLeft());
  resize(m_wanted.size());
}

void frmHistory::FitFrame() {
  // What the frame takes is known only when the window is on the screen.
  const QSize frame = frameGeometry().size() - size();
  if (!m_fitted && isVisible() && !frame.isNull()) {
    m_fitted = true;
    if (size() == m_wanted.size()) {
      resize(m_wanted.size() - frame);
    }
  }
}

void frmHistory::NotePlace() {
  const bool normal =
      (windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
  if (isVisible() && normal) {
    const QRect frame = frameGeometry();
    Note(m_place.Top, frame.y());
    Note(m_place.Left, frame.x());
    Note(m_place.Height, frame.height());
    Note(m_place.Width, frame.width());
  }
}

void frmHistory::SetValue(std::string_view name, float value, std::string_view units) {
  m_chart->SampleAdd(name, HistoryText(value, units));
}

void frmHistory::ConfigurePopup() {
  const auto twips = [](int pixels) { return pixels * kTwipsPerPixel; };
  constexpr std::int16_t kArguments[] = {16, 3, 2};
  m_chart->ConfigPopupShow(HistoryPopupPlace(twips(m_chart->width()), kChartLeft),
                           HistoryPopupPlace(twips(m_chart->height()), kChartTop), kArguments[0],
                           kArguments[1], kArguments[2]);
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
  QTimer::singleShot(0, this, [this] { FitFrame(); });
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
  FitFrame();
  m_placeTimer.start();
}

void frmHistory::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  m_placeTimer.start();
  if (isMinimized()) {
    return;
  }
  m_line->setGeometry(0, 0, width(), Pixels(kChartTop));
  const int top = Pixels(kChartTop);
  m_chart->setGeometry(Pixels(kChartLeft), top, width(), std::max(height() - top, 0));
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
