// A loudspeaker, as alarms use it. SounderQt is the real one; tests write down what is played.
#pragma once

#include <cstdint>
#include <vector>

namespace veerwatch {

class Sounder {
 public:
  virtual ~Sounder() = default;
  /// Samples a second that Play() takes.
  static constexpr int kRate = 48000;
  /// Begins to play one channel of samples, in place of what is playing, and returns at once. False where
  /// there is no audio device, or it takes none.
  virtual bool Play(const std::vector<std::int16_t>& samples) = 0;
};

}  // namespace veerwatch
