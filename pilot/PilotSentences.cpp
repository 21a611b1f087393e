#include "pilot/PilotSentences.h"

#include <cstdint>

#include "instruments/InstrumentRecord.h"
#include "pilot/Apb.h"
#include "pilot/Bwc.h"
#include "pilot/Hsc.h"
#include "pilot/Mwv.h"
#include "pilot/Rmb.h"
#include "pilot/Vwr.h"
#include "pilot/Xte.h"
#include "platform/Angles.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kOldestVariation = 3600000;  // [ms]

bool NeedsVariation(PilotType type, const PilotForm& form) {
  return type == PilotType::Apb ? form.True : type != PilotType::Xte;
}

/// Whether it can say that it does not hold.
bool HasStatus(PilotType type, const PilotForm& form) {
  return type == PilotType::Bwc ? form.Mode : type != PilotType::Hsc;
}

const char* NameOf(PilotType type) {
  switch (type) {
    case PilotType::Apb:
      return TrMark("True APB");
    case PilotType::Rmb:
      return "RMB";
    case PilotType::Hsc:
      return "HSC";
    case PilotType::Xte:
      return "XTE";
    case PilotType::Bwc:
      return "BWC";
  }
  return "";
}

}  // namespace

PilotValues PilotValuesOf(float bearing, const InstrumentRecord& record, const Settings& settings,
                          const Moment& now) {
  PilotValues values(bearing);
  const InstrumentData& data = record.Data();
  if (data.VariationValid) {
    const auto age = record.Age(RecordValue::Variation, now);
    values.OldVariation = !settings.m_bSimulate && (!age || *age > kOldestVariation);
    if (!values.OldVariation) {
      values.Variation = data.Variation;
    }
  }
  if (data.WindApparentValid) {
    values.Wind = {data.WindAngleApparentAverage, data.WindSpeedApparentAverage};
  }
  return values;
}

std::string PilotRefusalText(const PilotRefusal& refusal) {
  switch (refusal.Reason) {
    case PilotRefusal::Why::None:
      break;
    case PilotRefusal::Why::NoVariation:
      return Filled(Tr("%1 Needs the Variation"), {Tr(NameOf(refusal.First))});
    case PilotRefusal::Why::OldVariation:
      return Filled(Tr("%1: Variation Older Than 1 h"), {Tr(NameOf(refusal.First))});
    case PilotRefusal::Why::NoSentence:
      return Tr("No Sentence Chosen");
    case PilotRefusal::Why::NoWind:
      return Tr("No Wind to Send");
  }
  return {};
}

void PilotSentences::Parts::AddMode(PilotBundle& bundle) const {
  if (Form.Mode) {
    bundle.Field(Good ? "A" : "N");
  }
}

PilotRefusal PilotSentences::Build(const PilotForm& form, const PilotValues& values) {
  m_bundle.Clear();
  if (form.Wind) {
    return BuildWind(form, values);
  }
  const std::string_view pattern = form.Decimals == 0 ? "000" : "000.0";
  const std::string magnetic = FormatNumber(values.Bearing, pattern);
  const std::string bearingTrue = values.Variation
                                      ? FormatNumber(FoldBearing(static_cast<double>(values.Bearing) +
                                                                 static_cast<double>(*values.Variation)),
                                                     pattern)
                                      : std::string();
  const Parts parts{form, magnetic, bearingTrue, values.Good};
  const auto lacking = values.OldVariation ? PilotRefusal::Why::OldVariation : PilotRefusal::Why::NoVariation;
  PilotRefusal refusal{form.Sends == decltype(form.Sends){} ? PilotRefusal::Why::NoSentence
                                                            : PilotRefusal::Why::None};
  for (std::size_t i = 0; i < kPilotTypes; ++i) {
    const auto type = static_cast<PilotType>(i);
    if (!form.Has(type) || (!values.Good && !HasStatus(type, form))) {
      continue;
    }
    if (!NeedsVariation(type, form) || values.Variation) {
      Add(type, parts);
    } else if (refusal.Reason == PilotRefusal::Why::None) {
      refusal = {lacking, type};
      if (type == PilotType::Apb) {
        break;
      }
    }
  }
  return refusal;
}

PilotRefusal PilotSentences::BuildWind(const PilotForm& form, const PilotValues& values) {
  if (!values.Wind) {
    return {PilotRefusal::Why::NoWind};
  }
  if (values.Good) {
    AddVwr(form.Talker, *values.Wind, m_bundle);
  }
  AddMwv(form.Talker, *values.Wind, values.Good, m_bundle);
  return {};
}

void PilotSentences::Add(PilotType type, const Parts& parts) {
  switch (type) {
    case PilotType::Apb:
      AddApb(parts, m_bundle);
      break;
    case PilotType::Rmb:
      AddRmb(parts, m_bundle);
      break;
    case PilotType::Hsc:
      AddHsc(parts, m_bundle);
      break;
    case PilotType::Xte:
      AddXte(parts, m_bundle);
      break;
    case PilotType::Bwc:
      AddBwc(parts, m_bundle);
      break;
  }
}

}  // namespace veerwatch
