// Any bytes on the instrument port in every mode: the record stays sound, all that is told is a number, only
// whole sentences leave, no memory grows, and the first good sentence after it all counts.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "helm/Helm.h"
#include "tests/fuzz/Demand.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/MemoryInUse.h"
#include "tests/support/RecordFault.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace {

using namespace veerwatch;

Landmark sends("a sentence for the pilot");
Landmark shares("a sentence for the pilot on the input's port");
Landmark alarms("an alarm");
Landmark cuts("a line that is too long");
Landmark repeats("a stream that comes again and again");

/// A sentence for the autopilot is the one that its bearing, three digits, a point and a digit, makes.
void DemandPilotSentence(std::string_view sentence) {
  constexpr std::string_view kStart = "$ECAPB,A,A,0.00,R,N,V,V,";
  Demand(sentence.size() > kStart.size() + 5);
  const std::string bearing(sentence.substr(kStart.size(), 5));
  for (const std::size_t digit : {0U, 1U, 2U, 4U}) {
    Demand(bearing[digit] >= '0' && bearing[digit] <= '9');
  }
  Demand(bearing[3] == '.' && bearing <= "360.0");
  std::string body(kStart);
  body.append(bearing).append(",M,1,").append(bearing).append(",M,").append(bearing).append(",M");
  Demand(sentence == WithChecksum(body) + "\r\n");
}

/// Everything that is told is a number that somebody sees.
class NumberView final : public HelmObserver {
 public:
  void OnHeading(float heading) override { Show(heading); }
  void OnBoatSpeed(float speed) override { Show(speed); }
  void OnWaypoint(float range, float bearing) override { Show(range, bearing); }
  void OnWindApparent(float angle, float speed) override { Show(angle, speed); }
  void OnWindTrue(float angle, float speed) override { Show(angle, speed); }
  void OnWindIndicator(float direction, float speed) override { Show(direction, speed); }
  void OnDesired(float apparent, float trueWind) override { Show(apparent, trueWind); }
  void OnDelta(float apparent, float trueWind) override { Show(apparent, trueWind); }
  void OnAutoPilot(float bearing) override { Show(bearing); }
  void OnPilotDelta(float error) override { Show(error); }
  void OnPilotHeading(float bearing) override { Show(bearing); }
  void OnAlarm(TrackSide /*side*/, float error) override {
    Show(error);
    alarms.Reach();
  }
  void OnNmeaLine(std::string_view line, LineFault fault, bool /*used*/) override {
    if (fault != LineFault::None && line.size() >= LineFramer::kLongestLine) {
      cuts.Reach();
    }
  }

 private:
  template <class... Values>
  static void Show(Values... values) {
    (Demand(std::isfinite(values), "a value that is told"), ...);
  }
};

/// Now and then somebody turns a knob; whether this time.
bool Change(Helm& helm, unsigned number) {
  constexpr unsigned kEvery = 5;
  if (number % kEvery != 0) {
    return false;
  }
  switch (number / kEvery % 7U) {
    case 0:
      helm.Modes().TrackSetManual();
      break;
    case 1:
      helm.TrackSteerTo((number & 1U) != 0 ? 1.0F : -10.0F);
      break;
    case 2:
      helm.Modes().TrackSetTrack();
      break;
    case 3:
      helm.Loop().SetAutoPilot(static_cast<double>(number) * 37.0);
      break;
    case 4:
      helm.Modes().TrackSetSetup();
      break;
    case 5:
      helm.Modes().TrackSetOff();
      break;
    default:
      helm.Modes().TrackSetTrack();
  }
  return true;
}

/// What an input chooses in front of its stream.
struct Choice {
  explicit Choice(Bytes& bytes) {
    const unsigned options = bytes.Byte();
    Piece = bytes.Byte() + std::size_t{1};
    const unsigned loop = bytes.Byte();
    Knobs = options;
    Store.m_iNmeaHeading = static_cast<std::int16_t>(options & 1U);
    Store.m_iNmeaBoatSpeed = static_cast<std::int16_t>((options >> 1U) & 1U);
    Store.m_iNmeaTrueWind = static_cast<std::int16_t>((options >> 2U) & 1U);
    Store.m_fNmeaTrueWindAverage = (options & 8U) != 0 ? 0.0F : (options & 16U) != 0 ? 0.1F : 2.0F;
    Side = (options & 32U) != 0 ? TrackSide::True : TrackSide::Apparent;
    Store.m_iPilotPort = (options & 64U) != 0 ? Store.m_iNmeaPort : std::int16_t{6};
    Store.m_bTrackAlarm = (options & 128U) == 0;
    constexpr std::array<float, 4> kBandwidths{20.0F, 4.0F, 600.0F, 1e-30F};
    constexpr std::array<float, 4> kDampings{4.0F, 0.7F, 0.0F, 1e30F};
    Store.m_fTrackBandwidth = kBandwidths[loop & 3U];
    Store.m_fTrackDamping = kDampings[(loop >> 2U) & 3U];
    // Both take several times as long: each in one of sixteen.
    Repeats = loop >> 4U == 1;
    Stretches = loop >> 4U == 2;
  }

  Settings Store;
  TrackSide Side = TrackSide::Apparent;
  std::size_t Piece = 1;   ///< the longest that one receive event brings
  unsigned Knobs = 0;      ///< where the turning of knobs begins
  bool Repeats = false;    ///< the stream comes several times
  bool Stretches = false;  ///< FF in the stream stands for many of the byte in front of it
};

/// The stream with the byte in front of the first FF as often as it takes for a line to be too long, or
/// nearly.
std::string Stretched(std::string_view bytes) {
  constexpr std::size_t kTimes = LineFramer::kLongestLine - 20;
  std::string stream(bytes);
  if (const std::size_t at = stream.find('\xFF'); at != std::string::npos && at > 0) {
    stream.replace(at, 1, kTimes, stream[at - 1]);
  }
  return stream;
}

/// A helm with its ports.
class Rig {
 public:
  explicit Rig(const Choice& choice) : m_choice(choice), m_settings(choice.Store) {
    m_timer.OnTick = [this] { m_helm.Tick(); };
    m_helm.Modes().TrackSetSetup();
    m_helm.Loop().Side(choice.Side);
    m_helm.Modes().TrackSetTrack();
  }

  void Feed(std::string_view bytes) {
    for (unsigned pieces = 1; !bytes.empty(); ++pieces) {
      const std::string_view piece = bytes.substr(0, m_choice.Piece);
      bytes.remove_prefix(piece.size());
      m_nmeaPort.Receive(piece);
      m_timer.Tick();
      Demand(m_helm.Receiver().LineBuffer().size() <= LineFramer::kLongestLine);
      // Only a whole line and a knob change anything else.
      if (Change(m_helm, m_choice.Knobs + pieces) || piece.find('\r') != std::string_view::npos) {
        DemandSound();
      }
    }
    const bool shared = m_settings.m_iPilotPort == m_settings.m_iNmeaPort;
    ScriptedPort& out = shared ? m_nmeaPort : m_pilotPort;
    for (const std::string& sentence : out.Written) {
      DemandPilotSentence(sentence);
    }
    if (!out.Written.empty()) {
      (shared ? shares : sends).Reach();
    }
    Demand((shared ? m_pilotPort : m_nmeaPort).Written.empty(), "nothing for the other port");
    // What the ports of the test remember grows with what they are given.
    for (ScriptedPort* port : {&m_nmeaPort, &m_pilotPort}) {
      std::vector<std::string>().swap(port->Written);
      std::vector<int>().swap(port->OpenedNumbers);
    }
  }

  /// Whatever came, the end of its line and a good sentence bring a wind.
  void DemandRecovery() {
    m_helm.Modes().TrackSetSetup();
    m_nmeaPort.Receive("\r$IIMWV,123.0,R,4.0,N,A*39\r\n");
    const InstrumentData& data = m_helm.Data();
    Demand(data.WindApparentValid && data.WindAngleApparent == 123.0F && data.WindSpeedApparent == 4.0F,
           "the first good sentence");
  }

 private:
  void DemandSound() const {
    Demand(RecordFault(m_helm.Data()).empty());
    Demand(m_settings.m_fAutoPilot >= 0.0F && m_settings.m_fAutoPilot < 360.0F);
    for (const TrackSide side : {TrackSide::Apparent, TrackSide::True}) {
      const float desired = m_settings.DesiredAngle[static_cast<std::size_t>(side)];
      Demand(desired >= -180.0F && desired <= 180.0F, "a desired angle");
    }
    Demand(std::isfinite(m_helm.Loop().TrackIntegral()));
  }

  const Choice& m_choice;
  Settings m_settings;
  NumberView m_view;
  ScriptedPort m_nmeaPort;
  ScriptedPort m_pilotPort;
  HandTimer m_timer;
  HandClock m_clock;
  FixedRandom m_random;
  Helm m_helm{m_settings, m_nmeaPort, m_pilotPort, m_timer, m_clock, m_random};
  HelmObservers::Membership m_told = m_helm.Observers().Join(m_view);
};

/// What a stream brings again takes no more memory.
void DemandNoGrowth(Rig& rig, const std::string& stream) {
  // Buffers grow to what the longest line wants, which two strings hold in turn.
  constexpr int kWarm = 3;
  constexpr int kMeasured = 2;
  for (int round = 0; round < kWarm; ++round) {
    rig.Feed("\r");
    rig.Feed(stream);
  }
  const std::size_t before = MemoryInUse();
  for (int round = 0; round < kMeasured; ++round) {
    rig.Feed("\r");
    rig.Feed(stream);
  }
  Demand(MemoryInUse() <= before, "no memory that grows with what comes");
}

}  // namespace

// The first three bytes choose sources, ports and loop, and the longest piece that one receive event brings;
// between the pieces the modes change now and then.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes(data, size);
  const Choice choice(bytes);
  const std::string stream = choice.Stretches ? Stretched(bytes.Rest()) : std::string(bytes.Rest());
  Rig rig(choice);
  rig.Feed(stream);
  constexpr std::size_t kRepeated = 512;
  if (choice.Repeats && stream.size() <= kRepeated) {
    repeats.Reach();
    DemandNoGrowth(rig, stream);
  }
  rig.DemandRecovery();
  return 0;
}
