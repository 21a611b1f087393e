#include "tack/TurnPace.h"

namespace veerwatch {

void TurnPace::Start(std::uint64_t sent) {
  m_sent = sent;
  m_heard = 0.0;
  m_silent = 0;
}

void TurnPace::Hear(const Manoeuvre& turn, std::uint64_t sent) {
  ++m_silent;
  if (sent != m_sent) {
    m_sent = sent;
    m_heard = turn.Progress();
    m_silent = 0;
  }
}

bool TurnPace::Tick(Manoeuvre& turn, std::uint64_t sent) {
  Hear(turn, sent);
  if (Waiting()) {
    turn.ContinueFrom(m_heard);
    return false;
  }
  return turn.Tick();
}

void TurnPace::Halt(Manoeuvre& turn, std::uint64_t sent) {
  Hear(turn, sent);
  turn.ContinueFrom(m_heard);
}

}  // namespace veerwatch
