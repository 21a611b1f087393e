#include "app/SentAge.h"

#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kMillisecondsPerSecond = 1000;
constexpr std::int64_t kLate = 4;  // [s]

}  // namespace

void SentAge::Look(std::uint64_t sent, std::int64_t steady) {
  m_now = steady;
  if (m_sent && *m_sent != sent) {
    m_left = steady;
  }
  m_sent = sent;
}

std::optional<std::int64_t> SentAge::Seconds() const {
  if (!m_left) {
    return std::nullopt;
  }
  return (m_now - *m_left) / kMillisecondsPerSecond;
}

std::string SentAge::Text() const {
  const auto seconds = Seconds();
  if (!seconds) {
    return Tr("nothing sent");
  }
  return *seconds == 0 ? Tr("sent now") : Filled(Tr("sent %1 s ago"), {std::to_string(*seconds)});
}

bool SentAge::Late() const { return Seconds().value_or(kLate) >= kLate; }

}  // namespace veerwatch
