#include "control/TurnPace.h"

#include <algorithm>

namespace veerwatch {

void TurnPace::Start(std::uint64_t sent) {
  m_sent = sent;
  m_heard = 0.0;
  m_silent = 0.0;
}

void TurnPace::Hear(const Manoeuvre& turn, std::uint64_t sent, double seconds) {
  m_silent += seconds;
  if (sent != m_sent) {
    m_sent = sent;
    m_heard = turn.Progress();
    m_silent = 0.0;
  }
}

bool TurnPace::Step(Manoeuvre& turn, std::uint64_t sent, double seconds) {
  const double step = std::min(seconds, kLongestStep);
  Hear(turn, sent, step);
  if (Waiting()) {
    turn.ContinueFrom(m_heard);
    return false;
  }
  return turn.Step(step);
}

void TurnPace::Halt(Manoeuvre& turn, std::uint64_t sent) {
  Hear(turn, sent, 0.0);
  turn.ContinueFrom(m_heard);
}

}  // namespace veerwatch
