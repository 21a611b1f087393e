// The desktop's audio device. Nothing of it is touched before the first sound.
#pragma once

#include <QBuffer>
#include <memory>

#include "platform/Sounder.h"

class QAudioSink;

namespace veerwatch {

class SounderQt final : public Sounder {
 public:
  SounderQt();
  ~SounderQt() override;

  bool Play(const std::vector<std::int16_t>& samples) override;

 private:
  QByteArray m_bytes;
  QBuffer m_buffer;
  std::unique_ptr<QAudioSink> m_sink;
};

}  // namespace veerwatch
