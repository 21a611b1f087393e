// How an alarm is heard.
#pragma once

namespace veerwatch {

enum class AlarmSound {
  Beep = 0,  ///< the desktop's beep, at each step at which the loop's alarm is on
  Tone = 1,  ///< tones by level, repeated until somebody answers
};

}  // namespace veerwatch
