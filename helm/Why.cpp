#include "helm/Why.h"

#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

std::string Tenths(double number) { return FormatNumber(static_cast<float>(number), "0.0"); }
std::string Tenths(float number) { return FormatNumber(number, "0.0"); }

std::string_view NameOf(TrackMethod method) {
  switch (method) {
    case TrackMethod::Clock:
      return TrMark("Clock");
    case TrackMethod::Direction:
      return TrMark("Direction");
    case TrackMethod::Sentence:
      break;
  }
  return TrMark("Sentence");
}

std::string ValueOf(const InstrumentData& data, RecordValue value) {
  switch (value) {
    case RecordValue::WindApparent:
      return Filled(Tr("Apparent Wind %1 deg %2 kn"),
                    {Tenths(data.WindAngleApparent), Tenths(data.WindSpeedApparent)});
    case RecordValue::WindTrue:
      return Filled(Tr("True Wind %1 deg %2 kn"), {Tenths(data.WindAngleTrue), Tenths(data.WindSpeedTrue)});
    case RecordValue::BoatSpeed:
      return Filled(Tr("Boat Speed %1 kn"), {Tenths(data.BoatSpeed)});
    default:
      return Filled(Tr("Heading %1 deg"), {Tenths(data.Heading)});
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
  std::string text = Filled(
      apparent ? Tr("%1: apparent %2 held %3, error %4, %5 s, correction %6")
               : Tr("%1: true %2 held %3, error %4, %5 s, correction %6"),
      {Tr(NameOf(why.Method)), Tenths(apparent ? why.Data.WindAngleApparent : why.Data.WindAngleTrue),
       Tenths(why.Desired), Tenths(why.Step.Error), Tenths(why.Step.Seconds), Tenths(why.Step.Correction)});
  if (why.Step.ByRate) {
    text += Tr(", limited by Max Rate");
  }
  if (why.Step.ByAhead) {
    text += Tr(", limited by Max Ahead");
  }
  if (why.Step.ByGuard) {
    text += Tr(", limited by the angle guard");
  }
  return text;
}

}  // namespace

std::string WhyText(const Why& why) {
  if (!why.Sent) {
    return Tr("nothing was sent yet");
  }
  std::string text = Filled(Tr("%1 by %2"),
                            {Tenths(why.Bearing), why.Mode == TrackMode::Track ? LoopText(why) : Tr("hand")});
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
