// Reception with everything around it scripted, for all tests of NmeaReceiver.
#pragma once

#include "nmea/NmeaReceiver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace veerwatch {

class NmeaReceiverTest : public testing::Test {
 protected:
  NmeaReceiverTest() {
    m_settings.m_fNmeaTrueWindAverage = 0.0F;
    m_settings.m_iNmeaTrueWind = 0;
  }

  void Start() {
    m_receiver.NmeaStart();
    m_view.Take();
  }

  void Receive(std::string_view bytes) { m_port.Receive(bytes); }
  /// One good sentence.
  void ReceiveSentence(std::string_view body) { Receive(WithChecksum(body) + "\r\n"); }
  const InstrumentData& Data() const { return m_record.Data(); }

  /// Status and state after each of `ticks` ticks.
  std::vector<std::string> Watch(int ticks) {
    std::vector<std::string> seen;
    for (int i = 0; i < ticks; ++i) {
      m_timer.Tick();
      seen.push_back(m_view.InputStatus + "|" + m_view.InputState);
    }
    return seen;
  }

  Settings m_settings;
  RecordingView m_view;
  InstrumentRecord m_record{m_settings};
  ScriptedPort m_port;
  HandTimer m_timer;
  HandClock m_clock;
  NmeaReceiver m_receiver{m_settings, m_port, m_timer, m_clock, m_record, m_view};

  void SetUp() override {
    m_timer.OnTick = [this] { m_receiver.Tick(); };
  }
};

inline constexpr std::string_view kApparent = "$IIMWV,045,R,10.5,N,A";
inline constexpr std::string_view kTrue = "$IIMWV,060,T,9.5,N,A";

}  // namespace veerwatch
