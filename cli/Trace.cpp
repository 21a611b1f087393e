#include "cli/Trace.h"

#include <nlohmann/json.hpp>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

using Json = nlohmann::ordered_json;

double Number(float value) { return JsonNumber(value); }

/// Bytes as the code points of the same numbers, in UTF-8.
std::string CodePoints(const std::string& bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80U) {
      text.push_back(c);
    } else {
      text.push_back(static_cast<char>(0xC0U | (byte >> 6U)));
      text.push_back(static_cast<char>(0x80U | (byte & 0x3FU)));
    }
  }
  return text;
}

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
  object["line"] = CodePoints(line);
  object["status"] = steering.Status();
  object["used"] = steering.Used();
  object["error"] = steering.Error() ? Json(CodePoints(*steering.Error())) : Json(nullptr);
  AddSteering(object, steering);
  return object.dump();
}

std::string TraceTick(const Steering& steering) {
  Json object;
  AddSteering(object, steering);
  return object.dump();
}

}  // namespace veerwatch
