#include "helm/Why.h"

#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

std::string Tenths(double number) { return FormatNumber(static_cast<float>(number), "0.0"); }
std::string Tenths(float number) { return FormatNumber(number, "0.0"); }

std::string_view NameOf(TrackMethod method) {
  switch (method) {
    case TrackMethod::Clock:
      return "Clock";
    case TrackMethod::Direction:
      return "Direction";
    case TrackMethod::Sentence:
      break;
  }
  return "Sentence";
}

std::string ValueOf(const InstrumentData& data, RecordValue value) {
  switch (value) {
    case RecordValue::WindApparent:
      return "Apparent Wind " + Tenths(data.WindAngleApparent) + " deg " + Tenths(data.WindSpeedApparent) +
             " kn";
    case RecordValue::WindTrue:
      return "True Wind " + Tenths(data.WindAngleTrue) + " deg " + Tenths(data.WindSpeedTrue) + " kn";
    case RecordValue::BoatSpeed:
      return "Boat Speed " + Tenths(data.BoatSpeed) + " kn";
    default:
      return "Heading " + Tenths(data.Heading) + " deg";
  }
}

std::string OriginText(const Origin& from, const Moment& at) {
  constexpr double kMilliseconds = 1000.0;
  const std::string_view sentence(from.Sentence.data(), from.Sentence.size());
  std::string text = " " + VisibleText(sentence);
  if (from.Talker.front() != '\0') {
    text += " (" + VisibleText(std::string_view(from.Talker.data(), from.Talker.size())) + ")";
  }
  return text + " " + Tenths(static_cast<double>(at.Steady - from.At.Steady) / kMilliseconds) + " s";
}

std::string LoopText(const Why& why) {
  const bool apparent = why.Side == TrackSide::Apparent;
  std::string text(NameOf(why.Method));
  text += std::string(": ") + (apparent ? "apparent " : "true ") +
          Tenths(apparent ? why.Data.WindAngleApparent : why.Data.WindAngleTrue) + " held " +
          Tenths(why.Desired) + ", error " + Tenths(why.Step.Error) + ", " + Tenths(why.Step.Seconds) +
          " s, correction " + Tenths(why.Step.Correction);
  if (why.Step.ByRate) {
    text += ", limited by Max Rate";
  }
  if (why.Step.ByAhead) {
    text += ", limited by Max Ahead";
  }
  if (why.Step.ByGuard) {
    text += ", limited by the angle guard";
  }
  return text;
}

}  // namespace

std::string WhyText(const Why& why) {
  if (!why.Sent) {
    return "nothing was sent yet";
  }
  std::string text = Tenths(why.Bearing) + " by ";
  text += why.Mode == TrackMode::Track ? LoopText(why) : "hand";
  const char* separator = "; ";
  for (std::size_t i = 0; i < kWhyValues.size(); ++i) {
    if (const auto& from = why.From[i]) {
      text += separator + ValueOf(why.Data, kWhyValues[i]) + OriginText(*from, why.At);
      separator = ", ";
    }
  }
  return text;
}

}  // namespace veerwatch
