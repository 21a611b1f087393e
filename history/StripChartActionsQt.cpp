// What the user does with the chart: mouse, wheel, keys, the configuration pop-up and what it saves.
#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <filesystem>

#include "history/ClockText.h"
#include "history/HistoryCsv.h"
#include "history/StripChartQt.h"
#include "platform/AtomicFile.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr double kWheelNotch = 120.0;
/// Part of the span that a notch of the wheel or an arrow key goes.
constexpr double kScrollPart = 1.0 / 8.0;
constexpr double kPictureScale = 2.0;

/// 0xRRGGBB and 0xBBGGRR into each other.
constexpr std::uint32_t Turned(std::uint32_t colour) {
  return (colour & 0xFFU) << 16U | (colour & 0xFF00U) | (colour >> 16U & 0xFFU);
}

std::filesystem::path PathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

}  // namespace

// Mouse and keys

void StripChart::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    m_drag = Drag{event->position().x(), EndSlot()};
    setCursor(Qt::ClosedHandCursor);
  }
}

void StripChart::mouseMoveEvent(QMouseEvent* event) {
  m_hover = event->position();
  if (m_drag && (event->buttons() & Qt::LeftButton) != 0) {
    Compose();
    LookAt(m_drag->EndSlot - std::llround(m_picture.SlotsIn(event->position().x() - m_drag->X)));
  }
  update();
}

void StripChart::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    m_drag.reset();
    unsetCursor();
    update();
  }
}

void StripChart::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  m_hover.reset();
  update();
}

void StripChart::wheelEvent(QWheelEvent* event) {
  const QPoint delta = event->angleDelta();
  const int way = std::abs(delta.x()) > std::abs(delta.y()) ? delta.x() : delta.y();
  const double turned = way / kWheelNotch;
  if ((event->modifiers() & Qt::ControlModifier) != 0) {
    m_zoomRest += turned;
    const double notches = std::trunc(m_zoomRest);
    m_zoomRest -= notches;
    if (notches != 0.0) {
      ChangeSpan(-static_cast<int>(notches));
    }
  } else {
    m_scrollRest += turned;
    const double perNotch = kScrollPart * static_cast<double>(SlotsOfSpan(m_data, m_settings.Span));
    const double whole = std::trunc(m_scrollRest * perNotch);
    if (whole != 0.0) {
      m_scrollRest -= whole / perNotch;
      LookBack(whole);
    }
  }
  event->accept();
}

void StripChart::keyPressEvent(QKeyEvent* event) {
  const auto span = static_cast<double>(SlotsOfSpan(m_data, m_settings.Span));
  switch (event->key()) {
    case Qt::Key_Left:
      LookBack(std::max(1.0, span * kScrollPart));
      break;
    case Qt::Key_Right:
      LookBack(-std::max(1.0, span * kScrollPart));
      break;
    case Qt::Key_PageUp:
      LookBack(span);
      break;
    case Qt::Key_PageDown:
      LookBack(-span);
      break;
    case Qt::Key_Home:
      LookAt(0);
      break;
    case Qt::Key_End:
      FollowNow(true);
      break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      ChangeSpan(-1);
      break;
    case Qt::Key_Minus:
      ChangeSpan(1);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void StripChart::contextMenuEvent(QContextMenuEvent* event) { PopupAt(event->globalPos()); }

// The configuration pop-up

void StripChart::ConfigPopupShow(std::int16_t x, std::int16_t y, std::int16_t /*a*/, std::int16_t /*b*/,
                                 std::int16_t /*c*/) {
  PopupAt(mapToGlobal(QPoint(x, y)));
}

void StripChart::MakePopup() {
  std::vector<QString> traces;
  for (const StripChartData::Trace& trace : m_data.Traces()) {
    traces.push_back(TrQ(trace.Name));
  }
  std::vector<StripChartPopupQt::ScaleRow> scales;
  for (std::size_t scale = 0; scale < m_settings.Scales.size(); ++scale) {
    StripChartPopupQt::ScaleRow row{scale < m_titles.size() ? TrQ(m_titles[scale]) : TrQ("Heading"),
                                    ScaleKind::Linear};
    for (const TraceGroup& group : m_groups) {
      if (static_cast<std::size_t>(group.Scale) == scale) {
        row.Kind = group.Kind;
      }
    }
    scales.push_back(row);
  }
  StripChartPopupQt::Commands commands;
  commands.Changed = [this](const TraceSettings& settings) {
    const bool span = settings.Span != m_settings.Span;
    m_settings = settings;
    Changed();
    if (span && m_endSlot) {
      LookAt(*m_endSlot);
    }
  };
  commands.PickColour = [this](int trace) { PickColour(trace); };
  commands.SavePicture = [this] { SavePicture(); };
  commands.SaveData = [this] { SaveData(); };
  commands.Defaults = [this] {
    // The pop-up that this comes from must outlive it.
    QTimer::singleShot(0, this, [this] {
      Defaults();
      ShowPopup();
    });
  };
  m_popup = std::make_unique<StripChartPopupQt>(this, traces, scales, std::move(commands));
}

void StripChart::PopupAt(const QPoint& position) {
  m_popupAt = position;
  ShowPopup();
}

void StripChart::ShowPopup() {
  if (!m_popup) {
    MakePopup();
  }
  m_popup->Show(m_settings, TraceColours());
  m_popup->adjustSize();
  QPoint at = m_popupAt;
  const QScreen* display = QGuiApplication::screenAt(at);
  display = display != nullptr ? display : screen();
  if (display != nullptr) {
    const QRect free = display->availableGeometry();
    at.setX(std::max(free.left(), std::min(at.x(), free.right() - m_popup->width())));
    at.setY(std::max(free.top(), std::min(at.y(), free.bottom() - m_popup->height())));
  }
  m_popup->move(at);
  m_popup->show();
}

void StripChart::PickColour(int trace) {
  const auto at = static_cast<std::size_t>(trace);
  if (at >= m_settings.Traces.size()) {
    return;
  }
  m_popup->close();
  const QRgb now = m_colours.Trace(at, m_settings.Traces[at].Colour).rgb();
  m_dialogs.PickColour(Turned(now & 0xFFFFFFU), [this, at](std::optional<std::uint32_t> picked) {
    if (picked) {
      m_settings.Traces[at].Colour = Turned(*picked & 0xFFFFFFU);
      Changed();
    }
    ShowPopup();
  });
}

std::string StripChart::ProposedName(const char* ending) const {
  const Moment now = m_clock.Now();
  constexpr std::int64_t kMillisecondsPerSecond = 1000;
  const std::string time = Iso8601Text(now.Wall + m_clock.UtcOffset(now.Wall) * kMillisecondsPerSecond);
  // "2026-03-31T09:05:10Z" without what a file name may not hold.
  return "history-" + time.substr(0, 10) + "-" + time.substr(11, 2) + time.substr(14, 2) + ending;
}

void StripChart::SavePicture() {
  m_popup->close();
  m_dialogs.ExportFile(Tr("Save Picture"), Tr("Pictures (*.png)"), ProposedName(".png"),
                       [this](const auto& file) {
                         if (file && !file->empty()) {
                           WritePicture(*file);
                         }
                       });
}

void StripChart::WritePicture(const std::string& file) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "png");
  if (!writer.write(Image(kPictureScale))) {
    m_dialogs.Inform(Tr("Veerwatch - History"),
                     Filled(Tr("The picture could not be made:\r%1"), {writer.errorString().toStdString()}));
    return;
  }
  if (const auto failure =
          WriteAtomically(PathOf(file), {bytes.constData(), static_cast<std::size_t>(bytes.size())})) {
    m_dialogs.Inform(Tr("Veerwatch - History"), Filled(Tr("The picture was not saved:\r%1"), {*failure}));
  }
}

void StripChart::SaveData() {
  m_popup->close();
  m_dialogs.ExportFile(Tr("Save Data"), Tr("Comma-separated values (*.csv)"), ProposedName(".csv"),
                       [this](const auto& file) {
                         if (file && !file->empty()) {
                           WriteData(*file);
                         }
                       });
}

void StripChart::WriteData(const std::string& file) {
  if (const auto failure = WriteAtomically(PathOf(file), HistoryCsv(m_data))) {
    m_dialogs.Inform(Tr("Veerwatch - History"), Filled(Tr("The data were not saved:\r%1"), {*failure}));
  }
}

}  // namespace veerwatch
