// Any bytes on the instrument port in every mode: the record stays sound, the texts are numbers, and only
// whole sentences leave.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "app/Helm.h"
#include "platform/NumberText.h"
#include "tests/fuzz/Demand.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandTimer.h"
#include "tests/support/RecordFault.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace {

using namespace veerwatch;

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

/// Everything that is told becomes a text that somebody sees.
class TextView final : public HelmView {
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

 private:
  template <class... Values>
  static void Show(Values... values) {
    (Demand(std::isfinite(values) && !FormatNumber(values, "0.0").empty(), "a text for a value"), ...);
  }
};

/// Now and then somebody turns a knob.
void Change(Helm& helm, unsigned number) {
  constexpr unsigned kEvery = 5;
  if (number % kEvery != 0) {
    return;
  }
  switch (number / kEvery % 6U) {
    case 0:
      helm.Modes().TrackSetManual();
      break;
    case 1:
      helm.Loop().TrackSteerTo((number & 1U) != 0 ? 1.0F : -10.0F);
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
    default:
      helm.Modes().TrackSetTrack();
  }
}

}  // namespace

// The first byte chooses sources and side, the second the longest piece that one receive event brings;
// between the pieces the modes change now and then.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) {
    return 0;
  }
  const unsigned choice = data[0];
  const std::size_t piece = data[1] + std::size_t{1};
  std::string_view bytes(reinterpret_cast<const char*>(data) + 2, size - 2);

  Settings settings;
  settings.m_iPilotPort = 6;
  settings.m_iNmeaHeading = static_cast<std::int16_t>(choice & 1U);
  settings.m_iNmeaBoatSpeed = static_cast<std::int16_t>((choice >> 1U) & 1U);
  settings.m_iNmeaTrueWind = static_cast<std::int16_t>((choice >> 2U) & 1U);
  settings.m_fNmeaTrueWindAverage = (choice & 8U) != 0 ? 0.0F : (choice & 16U) != 0 ? 0.1F : 2.0F;
  TextView view;
  ScriptedPort nmeaPort;
  ScriptedPort pilotPort;
  HandTimer timer;
  FixedRandom random;
  Helm helm(settings, nmeaPort, pilotPort, timer, random, view);
  timer.OnTick = [&helm] { helm.Tick(); };
  helm.Modes().TrackSetSetup();
  helm.Loop().Side((choice & 32U) != 0 ? TrackSide::True : TrackSide::Apparent);
  helm.Modes().TrackSetTrack();

  for (unsigned pieces = 1; !bytes.empty(); ++pieces) {
    const std::size_t length = std::min(piece, bytes.size());
    nmeaPort.Receive(bytes.substr(0, length));
    bytes.remove_prefix(length);
    timer.Tick();
    Change(helm, choice + pieces);
    Demand(RecordFault(helm.Data()).empty());
    Demand(helm.Receiver().LineBuffer().size() <= LineFramer::kLongestLine);
    Demand(settings.m_fAutoPilot >= 0.0F && settings.m_fAutoPilot < 360.0F);
    Demand(std::isfinite(helm.Loop().TrackIntegral()));
  }
  for (const std::string& sentence : pilotPort.Written) {
    DemandPilotSentence(sentence);
  }
  Demand(nmeaPort.Written.empty());
  return 0;
}
