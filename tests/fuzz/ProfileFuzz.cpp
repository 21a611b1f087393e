// Any bytes as a profile: every line that nobody sets survives, and what is set reads back.
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include "helm/SettingsProfile.h"
#include "history/HistoryTraces.h"
#include "history/TraceSettings.h"
#include "platform/PortNames.h"
#include "platform/Profile.h"
#include "polar/PolarSettings.h"
#include "tack/TackSettings.h"
#include "tests/fuzz/Demand.h"

namespace {

using namespace veerwatch;

/// The file of this process, removed at its end.
struct File {
  std::filesystem::path Path =
      std::filesystem::temp_directory_path() / ("veerwatch-fuzz-" + std::to_string(getpid()) + ".ini");
  ~File() {
    std::error_code ignored;
    std::filesystem::remove(Path, ignored);
  }
};

bool AllFinite(std::initializer_list<float> numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](float number) { return std::isfinite(number); });
}

void DemandSettings(const Settings& settings) {
  Demand(settings.m_fAutoPilot >= 0.0F && settings.m_fAutoPilot < 360.0F);
  Demand(settings.DesiredAngle[1] > -180.0F && settings.DesiredAngle[1] <= 180.0F);
  Demand(settings.DesiredAngle[2] > -180.0F && settings.DesiredAngle[2] <= 180.0F);
  Demand(settings.m_fTrackBandwidth > 0.0F);
  Demand(settings.m_fNmeaTrueWindAverage >= 0.0F && settings.m_fTrackAlarmLimit >= 0.0F);
  Demand(settings.m_iNmeaPort >= 1 && settings.m_iPilotPort >= 1);
  for (const int source : {settings.m_iNmeaBoatSpeed, settings.m_iNmeaHeading, settings.m_iNmeaTrueWind}) {
    Demand(source == 0 || source == 1, "a source");
  }
  Demand(AllFinite({settings.m_fNmeaTrueWindAverage, settings.m_fNmeaWindIndicatorAverage,
                    settings.m_fAutoPilot, settings.m_fSimulateBoatSpeed, settings.m_fSimulateCompassOffset,
                    settings.m_fSimulateNoiseAngle, settings.m_fSimulateNoiseSpeed,
                    settings.m_fSimulateTrueWindAngle, settings.m_fSimulateTrueWindSpeed,
                    settings.m_fSimulateVariation, settings.m_fSimulateWaypointBearing,
                    settings.m_fSimulateWaypointRange, settings.m_fSimulateTime, settings.m_fTrackAlarmLimit,
                    settings.m_fTrackBandwidth, settings.m_fTrackDamping, settings.m_fTrackMaxSteerTo}),
         "finite settings");
}

/// What the other windows read, the history with its own traces and two scales.
void DemandWindows(const Profile& profile) {
  TackSettings tack;
  TackRecall(profile, tack);
  for (std::size_t kind = 0; kind < tack.Rate.size(); ++kind) {
    Demand(AllFinite({tack.Rate[kind], tack.Overshoot[kind]}), "a manoeuvre");
  }

  PolarSettings polar;
  PolarRecall(profile, polar);
  Demand(AllFinite({polar.PlotAverage, polar.SpeedFactor, polar.SpeedRange, polar.BoatMotorSpeed}));
  Demand(polar.PlotAverage >= 0.0F && polar.SpeedFactor > 0.0F && polar.SpeedRange > 0.0F);
  Demand(polar.Type == PlotType::TrueWind || polar.Type == PlotType::ApparentWind);
  Demand(polar.SpeedColor <= 0xFFFFFFU, "a colour");
  Demand(polar.CourseTargetBearing >= 0.0F && polar.CourseTargetBearing < 360.0F, "a bearing");
  Demand(polar.CourseWaypointIndex >= CourseSource::TargetBearing &&
         polar.CourseWaypointIndex <= CourseSource::None);
  Demand(polar.Boat == BoatType::SailOnly || polar.Boat == BoatType::MotorAndSail);
  if (const auto place = PolarPlaceRecall(profile)) {
    Demand(place->Height > 0 && place->Width > 0, "a size");
  }

  static const std::vector<StripChartData::Trace> traces = [] {
    std::vector<StripChartData::Trace> all;
    for (const HistoryTrace& trace : kHistoryTraces) {
      all.push_back({});
      all.back().Name = trace.Name;
    }
    return all;
  }();
  TraceSettings history;
  history.Traces.resize(traces.size());
  history.Scales.resize(2);
  TraceSettingsRead(profile, "History Trace", traces, history);
  for (const TraceChoice& trace : history.Traces) {
    Demand(!trace.Colour || *trace.Colour <= 0xFFFFFFU, "a colour");
  }
  for (const ScaleChoice& scale : history.Scales) {
    Demand(ScaleFits(scale.Low, scale.High), "a scale");
  }
  Demand(std::find(std::begin(kSpans), std::end(kSpans), history.Span) != std::end(kSpans), "a span");

  Demand(!PortDevice(profile, 5).empty(), "a device");
}

std::string Written(const Settings& settings) {
  Profile profile;
  RememberedWindows windows;
  ProfileWrite(profile, settings, windows);
  return profile.Content();
}

void Write(const std::filesystem::path& path, const std::string& content) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const File file;
  const std::string content(reinterpret_cast<const char*>(data), size);
  Write(file.Path, content);

  Profile profile;
  const bool wide = content.starts_with("\xFF\xFE") || content.starts_with("\xFE\xFF");
  Demand((profile.Load(file.Path) == Profile::LoadResult::Read) == !wide);
  Demand(profile.Content() == (wide ? "" : content));

  Settings settings;
  RememberedWindows windows;
  ProfileRead(profile, settings, windows);
  DemandSettings(settings);
  DemandWindows(profile);

  // A key of a section that no profile holds leaves all that was there in front of it.
  profile.ProfileSet("A section of the test", "Key", "value");
  Demand(wide || profile.Content().compare(0, content.size(), content) == 0);

  // All keys, onto the disk and back: the same settings, and nothing is left to change. It takes most of the
  // time: in one of sixteen.
  constexpr std::size_t kRoundTrip = 16;
  if (size % kRoundTrip != 0) {
    return 0;
  }
  ProfileWrite(profile, settings, windows);
  const std::string full = profile.Content();
  Write(file.Path, full);
  Profile again;
  Demand(again.Load(file.Path) == Profile::LoadResult::Read);
  Demand(again.Content() == full);
  Demand(again.Text("A section of the test", "Key") == "value");
  Settings read;
  ProfileRead(again, read, windows);
  Demand(Written(read) == Written(settings));
  ProfileWrite(again, read, windows);
  Demand(again.Content() == full);
  return 0;
}
