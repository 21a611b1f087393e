#include "history/StripChartQt.h"

#include <QEvent>
#include <QImage>
#include <QPaintEvent>
#include <algorithm>
#include <iterator>

#include "draw/DrawQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

/// A sample shows after this time, so that those of one moment show together [ms].
constexpr int kSoon = 100;

}  // namespace

StripChart::StripChart(const Clock& clock, WindowDialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      m_clock(clock),
      m_dialogs(dialogs),
      m_colours(palette().color(QPalette::Window)),
      m_measure(font()),
      m_cmdNow(new QPushButton(TrQ("Back to now"), this)),
      m_cmdSettings(new QToolButton(this)) {
  setObjectName(QStringLiteral("StripChart"));
  setAccessibleName(TrQ("Strip chart"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  m_tmrRedraw.setSingleShot(true);
  connect(&m_tmrRedraw, &QTimer::timeout, this, [this] { Refresh(); });
  m_cmdNow->setObjectName(QStringLiteral("cmdNow"));
  m_cmdNow->setToolTip(TrQ("Follow the newest values again (End)"));
  m_cmdNow->setFocusPolicy(Qt::TabFocus);
  m_cmdNow->hide();
  connect(m_cmdNow, &QPushButton::clicked, this, [this] { cmdNow_Click(); });
  m_cmdSettings->setObjectName(QStringLiteral("cmdSettings"));
  m_cmdSettings->setText(TrQ("Settings..."));
  m_cmdSettings->setAccessibleName(TrQ("Chart settings"));
  m_cmdSettings->setFocusPolicy(Qt::TabFocus);
  connect(m_cmdSettings, &QToolButton::clicked, this,
          [this] { PopupAt(m_cmdSettings->mapToGlobal(QPoint(0, m_cmdSettings->height()))); });
}

StripChart::~StripChart() = default;

// Set-up

void StripChart::TraceCountSet(std::int16_t count) {
  m_data.TraceCountSet(count);
  m_settings.Traces.assign(m_data.Traces().size(), TraceChoice());
  Regroup();
}

void StripChart::TraceDefine(std::int16_t number, const std::string& name, std::int16_t group,
                             const std::string& units) {
  m_data.TraceDefine(number, name, group == 0 ? TraceKind::Speed : TraceKind::Angle, units);
  Regroup();
}

void StripChart::SampleBufferSet(std::int16_t seconds, double count) {
  m_data.SampleBufferSet(seconds, count);
  FollowNow(true);
}

void StripChart::RedrawIntervalSet(std::int16_t seconds) {
  constexpr int kMillisecondsPerSecond = 1000;
  m_redrawInterval = std::max<int>(seconds, 1) * kMillisecondsPerSecond;
}

void StripChart::RedrawEnable(bool enable) {
  m_redraw = enable;
  Changed();
}

void StripChart::SpanSet(std::int16_t seconds) {
  m_span = seconds;
  m_settings.Span = seconds;
  Changed();
}

void StripChart::BackColourSet(std::uint32_t colour) {
  m_colours = StripChartColoursQt(FromRgb(colour));
  Changed();
}

void StripChart::GroupCountSet(std::int16_t count) {
  m_titles.assign(static_cast<std::size_t>(std::max<int>(count, 0)), std::string());
  m_groupColours.assign(m_titles.size(), m_colours.Back);
  Regroup();
}

void StripChart::GroupTitleSet(std::int16_t number, const std::string& title) {
  if (number >= 1 && static_cast<std::size_t>(number) <= m_titles.size()) {
    m_titles[static_cast<std::size_t>(number) - 1] = title;
    Regroup();
  }
}

void StripChart::GroupColourSet(std::int16_t number, std::uint32_t colour) {
  if (number >= 1 && static_cast<std::size_t>(number) <= m_groupColours.size()) {
    m_groupColours[static_cast<std::size_t>(number) - 1] = FromRgb(colour);
    Changed();
  }
}

void StripChart::Regroup() {
  m_groups = GroupTraces(m_data.Traces(), m_titles);
  m_settings.Scales = DefaultScales(m_groups, m_titles.size() + 1);
  m_popup.reset();
  Changed();
}

void StripChart::Defaults() {
  m_settings.Traces.assign(m_data.Traces().size(), TraceChoice());
  m_settings.Span = m_span;
  Regroup();
}

void StripChart::TraceSettingsLoad(const std::string& name, const Profile& profile) {
  TraceSettingsRead(profile, name, m_data.Traces(), m_settings);
  Changed();
}

void StripChart::TraceSettingsSave(const std::string& name, Profile& profile) const {
  TraceSettingsWrite(profile, name, m_data.Traces(), m_settings);
}

// Samples and redraws

void StripChart::SampleAdd(std::string_view name, std::string_view text) {
  if (m_data.SampleAdd(name, text, m_clock.Now()) && !m_soon && isVisible()) {
    m_soon = true;
    Due(kSoon);
  }
}

void StripChart::MarkAdd(std::string_view text) {
  m_data.MarkAdd(text, m_clock.Now());
  if (m_settings.Marks && !m_soon && isVisible()) {
    m_soon = true;
    Due(kSoon);
  }
}

void StripChart::TraceFade(std::string_view name, bool fade) {
  const auto& traces = m_data.Traces();
  const auto found = std::find_if(traces.begin(), traces.end(),
                                  [name](const StripChartData::Trace& trace) { return trace.Name == name; });
  const auto trace = static_cast<int>(found - traces.begin());
  if (found != traces.end() && (fade ? m_faded.insert(trace).second : m_faded.erase(trace) > 0)) {
    update();
  }
}

void StripChart::Due(int milliseconds) {
  if (m_redraw && isVisible()) {
    m_tmrRedraw.start(milliseconds);
  }
}

void StripChart::Refresh() {
  m_soon = false;
  m_data.Advance(m_clock.Now());
  m_composed = false;
  update();
  Due(m_redrawInterval);
}

void StripChart::Changed() {
  ++m_revision;
  m_composed = false;
  if (m_redraw) {
    update();
  }
}

std::vector<QColor> StripChart::TraceColours() const {
  std::vector<QColor> colours;
  for (std::size_t i = 0; i < m_settings.Traces.size(); ++i) {
    colours.push_back(m_colours.Trace(i, m_settings.Traces[i].Colour));
  }
  return colours;
}

std::int64_t StripChart::EndSlot() const {
  const std::int64_t now = m_data.LastSlot() + 1;
  if (!m_endSlot) {
    return now;
  }
  const std::int64_t oldest =
      std::max<std::int64_t>(m_data.FirstSlot(), 0) + SlotsOfSpan(m_data, m_settings.Span);
  return std::clamp(*m_endSlot, std::min(oldest, now), now);
}

void StripChart::FollowNow(bool follow) {
  const std::int64_t end = EndSlot();
  m_endSlot.reset();
  if (!follow) {
    m_endSlot = end;
  }
  m_composed = false;
  PlaceButtons();
  update();
}

void StripChart::LookAt(std::int64_t endSlot) {
  m_endSlot = endSlot;
  const std::int64_t end = EndSlot();
  m_endSlot = end;
  if (end > m_data.LastSlot()) {
    m_endSlot.reset();
  }
  m_composed = false;
  PlaceButtons();
  update();
}

void StripChart::ChangeSpan(int steps) {
  const auto at =
      std::lower_bound(std::begin(kSpans), std::end(kSpans), m_settings.Span) - std::begin(kSpans);
  const auto last = std::ssize(kSpans) - 1;
  m_settings.Span = kSpans[std::clamp<std::ptrdiff_t>(at + steps, 0, last)];
  if (m_popup) {
    m_popup->Show(m_settings, TraceColours());
  }
  Changed();
  if (m_endSlot) {
    LookAt(*m_endSlot);
  }
}

void StripChart::ComposeFor(const QSize& size) {
  ChartView view;
  view.Width = size.width();
  view.Height = size.height();
  view.EndSlot = EndSlot();
  if (m_data.LastSlot() != StripChartData::kNone) {
    view.UtcOffset = m_clock.UtcOffset(m_data.Wall(m_data.LastSlot()));
  }
  m_picture.Compose(Subject(), view, m_measure);
}

void StripChart::Compose() {
  if (!m_composed) {
    if (m_data.LastSlot() == StripChartData::kNone) {
      m_data.Advance(m_clock.Now());
    }
    ComposeFor(size());
    m_composed = true;
  }
}

const StripChartPicture& StripChart::Picture() {
  Compose();
  return m_picture;
}

StripChart::StillKey StripChart::Key() const {
  StillKey key{
      size(), devicePixelRatioF(), m_revision, m_picture.EndSlot, m_picture.LiveSlot, m_picture.UtcOffset,
      {}};
  for (const ChartPanel& panel : m_picture.Panels) {
    for (const ChartAxis& axis : panel.Axes) {
      key.Edges.push_back(axis.Scale.Low);
      key.Edges.push_back(axis.Scale.High);
    }
  }
  return key;
}

void StripChart::DrawStill(QPaintDevice& device) {
  QPainter painter(&device);
  const std::vector<QColor> colours = TraceColours();
  StripChartPainterQt(painter, m_picture, m_measure, m_colours, colours, m_groupColours).PaintStill();
}

void StripChart::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (!m_redraw) {
    painter.fillRect(rect(), m_colours.Back);
    return;
  }
  Compose();
  StillKey key = Key();
  if (!(key == m_stillKey)) {
    const QSize pixels(qCeil(width() * key.Ratio), qCeil(height() * key.Ratio));
    if (m_still.size() != pixels) {
      m_still = QPixmap(pixels);
    }
    m_still.setDevicePixelRatio(key.Ratio);
    DrawStill(m_still);
    m_stillKey = std::move(key);
    ++m_fullRedraws;
  }
  painter.drawPixmap(0, 0, m_still);
  const std::vector<QColor> colours = TraceColours();
  StripChartPainterQt chart(painter, m_picture, m_measure, m_colours, colours, m_groupColours);
  chart.PaintLive(m_faded);
  if (m_hover && !m_drag) {
    if (const auto reading = m_picture.ReadAt(Subject(), m_hover->x(), m_hover->y())) {
      chart.PaintReading(*reading);
    }
  }
  if (m_focusShows && hasFocus()) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(m_colours.Accent, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
}

QImage StripChart::Image(double scale) {
  Compose();
  QImage image(QSize(qCeil(width() * scale), qCeil(height() * scale)), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  DrawStill(image);
  QPainter painter(&image);
  const std::vector<QColor> colours = TraceColours();
  StripChartPainterQt(painter, m_picture, m_measure, m_colours, colours, m_groupColours).PaintLive(m_faded);
  return image;
}

void StripChart::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  m_composed = false;
  PlaceButtons();
}

void StripChart::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  m_data.Advance(m_clock.Now());
  m_composed = false;
  PlaceButtons();
  Due(m_redrawInterval);
}

void StripChart::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  m_tmrRedraw.stop();
  m_soon = false;
  m_hover.reset();
  m_drag.reset();
}

void StripChart::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    m_measure = TextMeasureQt(font());
    Changed();
    PlaceButtons();
  }
}

void StripChart::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  m_focusShows = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  update();
}

void StripChart::PlaceButtons() {
  m_cmdNow->setVisible(m_endSlot.has_value());
  if (!m_redraw || width() < 2) {
    return;
  }
  Compose();
  const Box& time = m_picture.TimeArea;
  QFont small = m_measure.At(m_picture.TextHeight * 0.92);
  m_cmdSettings->setFont(small);
  m_cmdSettings->setAutoRaise(true);
  const int height = static_cast<int>(time.Height) - 1;
  const int wide = static_cast<int>(m_measure.Width(Tr("Settings..."), m_picture.TextHeight * 0.92) +
                                    0.9 * m_picture.TextHeight);
  m_cmdSettings->setGeometry(width() - wide - 2, this->height() - height, wide, height);
  small.setBold(true);
  m_cmdNow->setFont(small);
  const QSize now(
      static_cast<int>(m_measure.Width(Tr("Back to now"), m_picture.TextHeight) + 1.6 * m_picture.TextHeight),
      static_cast<int>(1.9 * m_picture.TextHeight));
  m_cmdNow->setGeometry(static_cast<int>(m_picture.PlotArea.Right()) - now.width() - 4,
                        static_cast<int>(m_picture.PlotArea.Bottom()) - now.height() - 4, now.width(),
                        now.height());
  m_cmdNow->raise();
}

}  // namespace veerwatch
