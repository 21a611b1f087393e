#include "cli/Trace.h"

#include <nlohmann/json.hpp>

#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

using Json = nlohmann::ordered_json;

double Number(float value) { return JsonNumber(value); }

Json Record(const InstrumentData& data) {
  return {{"HeadingValid", data.HeadingValid},
          {"Heading", Number(data.Heading)},
          {"HeadingAverage", Number(data.HeadingAverage)},
          {"BoatSpeedValid", data.BoatSpeedValid},
          {"BoatSpeed", Number(data.BoatSpeed)},
          {"BoatSpeedAverage", Number(data.BoatSpeedAverage)},
          {"VariationValid", data.VariationValid},
          {"Variation", Number(data.Variation)},
          {"WaypointValid", data.WaypointValid},
          {"WaypointBearing", Number(data.WaypointBearing)},
          {"WaypointRange", Number(data.WaypointRange)},
          {"WindApparentValid", data.WindApparentValid},
          {"WindAngleApparent", Number(data.WindAngleApparent)},
          {"WindAngleApparentAverage", Number(data.WindAngleApparentAverage)},
          {"WindSpeedApparent", Number(data.WindSpeedApparent)},
          {"WindSpeedApparentAverage", Number(data.WindSpeedApparentAverage)},
          {"WindTrueValid", data.WindTrueValid},
          {"WindAngleTrue", Number(data.WindAngleTrue)},
          {"WindSpeedTrue", Number(data.WindSpeedTrue)},
          {"WindIndicatorValid", data.WindIndicatorValid},
          {"WindDirectionAverage", Number(data.WindDirectionAverage)},
          {"WindSpeedAverage", Number(data.WindSpeedAverage)}};
}

void AddSteering(Json& object, const Steering& steering) {
  const std::string& sentence = steering.PilotSentence();
  object["apb"] = sentence.empty() ? Json(nullptr) : Json(sentence);
  object["record"] = Record(steering.Data());
  object["autopilot"] = Number(steering.Set().m_fAutoPilot);
  object["desired"] = {Number(steering.Set().DesiredAngle[1]), Number(steering.Set().DesiredAngle[2])};
  const auto& delta = steering.Delta();
  object["delta"] = delta ? Json{Number(delta->Apparent), Number(delta->True)} : Json(nullptr);
  object["integral"] = steering.TrackIntegral();
}

}  // namespace

double JsonNumber(float value) { return StrictDouble(ShortestText(value)).value_or(0.0); }

std::string TraceLine(const std::string& line, const Steering& steering) {
  Json object;
  object["line"] = VisibleBytes(line);
  object["status"] = steering.Status();
  object["used"] = steering.Used();
  object["error"] = steering.Error() ? Json(VisibleBytes(*steering.Error())) : Json(nullptr);
  AddSteering(object, steering);
  return object.dump();
}

std::string TraceTick(const Steering& steering) {
  Json object;
  AddSteering(object, steering);
  return object.dump();
}

}  // namespace veerwatch
