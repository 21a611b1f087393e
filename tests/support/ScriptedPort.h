// A serial port in memory: the test queues what arrives, scripts whether it opens, and reads what was
// written.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/SerialPort.h"

namespace veerwatch {

class ScriptedPort final : public SerialPort {
 public:
  // What the test sees.

  std::vector<std::string> Written;  ///< each sentence that was handed to the open port
  std::vector<int> OpenedNumbers;    ///< the number at every try to open a closed port
  int OutputWhileClosed = 0;         ///< sentences handed to the closed port
  std::uint64_t Left = 0;            ///< sentences that have gone to the device
  int Withdrawals = 0;               ///< calls of Withdraw
  int Polls = 0;                     ///< calls of PollLineErrors
  int Inputs = 0;                    ///< calls of Input
  std::string Waiting;               ///< characters that have arrived and wait to be read

  // What the test scripts.

  std::deque<bool> OpenResults;         ///< results of the next tries to open; then OpensOtherwise
  bool Stuck = false;                   ///< nothing leaves: each sentence waits
  bool OpensOtherwise = true;           ///< result of a try to open after the scripted ones
  std::string Failure;                  ///< why the port does not open
  std::optional<int> Rate = 4800;       ///< what its line carries [baud]
  std::string Complaint;                ///< its trouble while it is open
  bool Noisy = false;                   ///< no rate makes lines of what comes
  const ScriptedPort* Other = nullptr;  ///< a port that, while open, holds its device against this one
  std::vector<int> LineErrorsWaiting;   ///< events that the next PollLineErrors raises

  /// Characters arrive and the receive event is raised.
  void Receive(std::string_view bytes) {
    Waiting.append(bytes);
    Raise(CommEvent::kReceive);
  }

  /// Raises the port's one event.
  void Raise(int commEvent) {
    if (Events* const events = Connected()) {
      events->OnComm(commEvent);
    }
  }

  /// The device goes away: the port closes itself and says so.
  void Lose() {
    m_open = false;
    if (Events* const events = Connected()) {
      events->OnPortLost();
    }
  }

  /// All that was written since the last call, one text.
  std::string TakeWritten() {
    std::string all;
    for (const std::string& sentence : std::exchange(Written, {})) {
      all += sentence;
    }
    return all;
  }

  // The port.

  void CommPort(int number) override {
    if (!m_open) {
      m_number = number;
    }
  }
  int CommPort() const override { return m_number; }
  bool PortOpen() const override { return m_open; }
  bool PortOpen(bool open) override {
    if (open && !m_open) {
      OpenedNumbers.push_back(m_number);
      const bool held = Other != nullptr && Other->m_open && Other->m_number == m_number;
      m_open = !held && NextOpenResult();
      return m_open;
    }
    m_open = open;
    return true;
  }
  std::string Trouble() const override { return m_open ? Complaint : ""; }
  bool Noise() const override { return Noisy; }
  std::string OpenFailure() const override { return m_open ? "" : Failure; }
  void Input(std::string& text) override {
    ++Inputs;
    text.assign(Waiting);
    Waiting.clear();
  }
  void Output(std::string_view sentence) override {
    if (m_open) {
      Written.emplace_back(sentence);
      Left += Stuck ? 0 : 1;
    } else {
      ++OutputWhileClosed;
    }
  }
  std::uint64_t Sent() const override { return Left; }
  std::optional<int> BaudRate() const override { return Rate; }
  void Withdraw() override { ++Withdrawals; }
  void PollLineErrors() override {
    ++Polls;
    for (const int commEvent : std::exchange(LineErrorsWaiting, {})) {
      Raise(commEvent);
    }
  }

 private:
  bool NextOpenResult() {
    if (OpenResults.empty()) {
      return OpensOtherwise;
    }
    const bool result = OpenResults.front();
    OpenResults.pop_front();
    return result;
  }

  int m_number = 0;
  bool m_open = false;
};

}  // namespace veerwatch
