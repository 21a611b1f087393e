#include "platform/EndpointPort.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace veerwatch {

EndpointPort::~EndpointPort() { assert(!m_open); }

void EndpointPort::CommPort(int number) {
  if (!m_open) {
    m_number = number;
  }
}

bool EndpointPort::PortOpen(bool open) {
  if (open && !m_open) {
    return Open();
  }
  if (!open) {
    Close(kLeaveTime);
  }
  return true;
}

bool EndpointPort::Open() {
  std::string failure;
  m_open = OpenEndpoint(failure);
  m_failure = m_open ? std::string() : std::move(failure);
  if (m_open) {
    const Time now = Now();
    m_standstill.Restart(now);
    Later(m_beatTime, now, kBeat);
  }
  return m_open;
}

void EndpointPort::Close(int leaveTime) {
  if (!m_open) {
    return;
  }
  m_open = false;
  m_slot.Withdraw();
  for (const Time begin = Now(); m_slot.OnItsWay() && Now() - begin < leaveTime;) {
    SendFor(kLookAgain);
    m_slot.Pump(Now());
  }
  m_slot.Clear();
  CloseEndpoint();
  m_unread.clear();
  m_failed = false;
  m_beatTime = m_offerTime = m_pumpTime = m_wakeTime = kNever;
}

void EndpointPort::Input(std::string& text) {
  text.clear();
  if (m_open) {
    Read(m_unread, kLargestUnread - m_unread.size());
    text.assign(m_unread);
    m_unread.clear();
    Refill();
  }
}

void EndpointPort::Output(std::string_view bundle) {
  if (m_open) {
    const Time now = Now();
    m_slot.Put(bundle, now);
    PumpAgain(now);
  }
}

void EndpointPort::Arrived() {
  if (m_open) {
    Later(m_offerTime, Now(), 0);
  }
}

void EndpointPort::Left() {
  if (m_open && m_slot.Waiting()) {
    Later(m_pumpTime, Now(), 0);
  }
}

void EndpointPort::Failed() {
  if (m_open) {
    m_failed = true;
    Later(m_offerTime, Now(), 0);
  }
}

void EndpointPort::Wake() {
  m_wakeTime = kNever;
  if (!m_open) {
    return;
  }
  const Time now = Now();
  const auto due = [now](Time& when) {
    const bool come = when <= now;
    when = come ? kNever : when;
    return come;
  };
  const bool pump = due(m_pumpTime);
  const bool offer = due(m_offerTime);
  const bool stoodStill = m_standstill.Beat(now);
  // Before anything is told: whoever hears of it may turn the event loop.
  Later(m_beatTime, now, kBeat);
  if (stoodStill) {
    StoodStill();
  }
  if (Events* const events = Connected(); events != nullptr && stoodStill) {
    events->OnPortStandstill();
  }
  if (pump) {
    Pump();
  }
  if (m_failed) {
    Lose(now);
  } else if (offer) {
    Offer(now);
  }
}

void EndpointPort::Later(Time& when, Time now, int milliseconds) {
  when = now + milliseconds;
  const Time next = std::min({m_beatTime, m_offerTime, m_pumpTime});
  if (next != m_wakeTime) {
    m_wakeTime = next;
    WakeAfter(static_cast<int>(std::max<Time>(next - now, 0)));
  }
}

void EndpointPort::Offer(Time now) {
  if (!m_open) {
    return;
  }
  Read(m_unread, kLargestUnread - m_unread.size());
  if (m_unread.empty()) {
    return;
  }
  if (m_standstill.Old(now)) {
    m_unread.clear();
    Refill();
    return;
  }
  ++m_offering;
  Raise(CommEvent::kReceive);
  --m_offering;
  if (m_offering > 0 || !m_open) {
    return;
  }
  PollLineErrors();
  if (!m_unread.empty() && m_offerTime == kNever) {
    Later(m_offerTime, Now(), kOfferAgain);
  }
}

void EndpointPort::Refill() {
  Read(m_unread, kLargestUnread);
  if (!m_unread.empty()) {
    Later(m_offerTime, Now(), 0);
  }
}

void EndpointPort::Pump() {
  const Time now = Now();
  m_slot.Pump(now);
  PumpAgain(now);
}

void EndpointPort::PumpAgain(Time now) {
  if (m_open && m_slot.Waiting()) {
    Later(m_pumpTime, now, kLookAgain);
  }
}

void EndpointPort::Lose(Time now) {
  Offer(now);
  // Its owner may have closed it, and opened it again.
  if (!m_failed) {
    return;
  }
  Close(0);
  if (Events* const events = Connected()) {
    events->OnPortLost();
  }
}

void EndpointPort::Raise(int commEvent) {
  if (Events* const events = Connected()) {
    events->OnComm(commEvent);
  }
}

}  // namespace veerwatch
