#include "app/HistoryMarks.h"

#include <cmath>
#include <utility>

#include "platform/Angles.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

float Apart(float a, float b) {
  return std::fabs(FoldRelative(static_cast<double>(a) - static_cast<double>(b)));
}

std::string TurnMark(const std::optional<ManoeuvreKind>& kind) {
  if (!kind) {
    return Tr("Turn");
  }
  return *kind == ManoeuvreKind::Tack ? Tr("Tack") : *kind == ManoeuvreKind::Jibe ? Tr("Jibe") : Tr("Steer");
}

}  // namespace

std::optional<std::string> HistoryMarks::Look(const Sense& sense) {
  const bool turns = sense.Hand == PilotHand::Turn;
  if (std::exchange(m_turned, turns) != turns && turns) {
    m_side.reset();
    return TurnMark(sense.Turn);
  }
  const float before = std::exchange(m_before, sense.Held);
  if (sense.Mode != TrackMode::Track) {
    m_side.reset();
    return std::nullopt;
  }
  const std::string side = sense.Side == TrackSide::True ? "TWA " : "AWA ";
  const bool marked = m_side == side && Apart(sense.Held, m_marked) < kHeldFrom;
  // What still moves is not yet held.
  if (marked || Apart(sense.Held, before) > 1.0F) {
    return std::nullopt;
  }
  m_side = side;
  m_marked = sense.Held;
  return side + FormatNumber(sense.Held, "0");
}

}  // namespace veerwatch
