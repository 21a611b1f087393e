#include "platform/SounderQt.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QMediaDevices>
#include <cstddef>

namespace veerwatch {

SounderQt::SounderQt() = default;

SounderQt::~SounderQt() {
  if (m_sink) {
    m_sink->stop();
  }
}

bool SounderQt::Play(const std::vector<std::int16_t>& samples) {
  if (m_sink) {
    m_sink->stop();
    m_sink.reset();
  }
  // Asked each time: a loudspeaker may be plugged in later.
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  QAudioFormat format;
  format.setSampleRate(kRate);
  format.setChannelCount(1);
  format.setSampleFormat(QAudioFormat::Int16);
  if (device.isNull() || !device.isFormatSupported(format)) {
    return false;
  }
  m_buffer.close();
  m_bytes = QByteArray(reinterpret_cast<const char*>(samples.data()),
                       static_cast<qsizetype>(samples.size() * sizeof(std::int16_t)));
  m_buffer.setData(m_bytes);
  m_buffer.open(QIODevice::ReadOnly);
  m_sink = std::make_unique<QAudioSink>(device, format);
  m_sink->start(&m_buffer);
  return m_sink->error() == QAudio::NoError;
}

}  // namespace veerwatch
