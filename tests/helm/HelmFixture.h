// A helm with everything around it scripted, and one who looks on.
#pragma once

#include "helm/Helm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace veerwatch {

class HelmTest : public testing::Test {
 protected:
  HelmTest() {
    m_settings.m_iPilotPort = 6;
    m_settings.m_fNmeaTrueWindAverage = 0.0F;
    m_settings.m_fTrackBandwidth = 8.0F;
    m_settings.m_fTrackDamping = 0.5F;  // both gains 0.25
    m_timer.OnTick = [this] { m_helm.Tick(); };
  }

  /// One good sentence.
  void Receive(std::string_view body) { m_nmeaPort.Receive(WithChecksum(body) + "\r\n"); }

  static std::string Sentence(const std::string& bearing) {
    return WithChecksum("$ECAPB,A,A,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M");
  }

  Settings m_settings;
  RecordingView m_view;
  ScriptedPort m_nmeaPort;
  ScriptedPort m_pilotPort;
  HandTimer m_timer;
  HandClock m_clock;
  FixedRandom m_random;
  Helm m_helm{m_settings, m_nmeaPort, m_pilotPort, m_timer, m_clock, m_random};
  HelmObservers::Membership m_told = m_helm.Observers().Join(m_view);
};

inline constexpr std::string_view kApparent = "$IIMWV,045,R,10.5,N,A";
inline constexpr std::string_view kTrue = "$IIMWV,060,T,9.5,N,A";
/// A boat speed, and a heading of 0.
inline constexpr std::string_view kSpeed = "$GPVTG,,T,0.0,M,6.0,N,,K";
inline constexpr std::string_view kVariation = "$IIHVM,5.0,E";

}  // namespace veerwatch
