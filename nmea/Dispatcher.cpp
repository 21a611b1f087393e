#include "nmea/Dispatcher.h"

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

// Values of m_iNmeaHeading, m_iNmeaBoatSpeed and m_iNmeaTrueWind.
constexpr int kThroughWater = 0;
constexpr int kOverGround = 1;
constexpr int kWindSensor = 0;

}  // namespace

Dispatcher::Outcome Dispatcher::Dispatch(std::string_view line) {
  Outcome outcome;
  const SentenceType type = SentenceTypeOf(line);
  if (!Enabled(type)) {
    m_sources.SawSwitchedOff(type);
    return outcome;
  }
  VisitSentence(type, line, [&](const auto& sentence) {
    outcome.Incomplete = !sentence.Complete();
    outcome.Used = Use(sentence);
    m_sources.Saw(sentence, m_record.Data().VariationValid);
  });
  outcome.WindSentence = type == SentenceType::Mwv;
  return outcome;
}

bool Dispatcher::Enabled(SentenceType type) const {
  switch (type) {
    case SentenceType::Hdg:
      return m_settings.m_bNmeaSentenceHDG;
    case SentenceType::Hvm:
      return m_settings.m_bNmeaSentenceHVM;
    case SentenceType::Mwv:
      return m_settings.m_bNmeaSentenceMWV;
    case SentenceType::Rmb:
      return m_settings.m_bNmeaSentenceRMB;
    case SentenceType::Rmc:
      return m_settings.m_bNmeaSentenceRMC;
    case SentenceType::Vhw:
      return m_settings.m_bNmeaSentenceVHW;
    case SentenceType::Vtg:
      return m_settings.m_bNmeaSentenceVTG;
    case SentenceType::Other:
      break;
  }
  return false;
}

bool Dispatcher::UseVariation(const VariationValue& variation) {
  if (variation.Direction == '\0') {
    return false;
  }
  m_record.VariationUpdate(variation.Degrees);
  return true;
}

bool Dispatcher::UseMotion(const Vhw& motion, int source) {
  bool used = false;
  if (m_settings.m_iNmeaHeading == source && motion.HeadingMark) {
    m_record.HeadingUpdate(motion.Heading);
    used = true;
  }
  if (m_settings.m_iNmeaBoatSpeed == source && motion.SpeedMark) {
    m_record.BoatSpeedUpdate(motion.Speed);
    used = true;
  }
  return used;
}

bool Dispatcher::Use(const Hdg& hdg) {
  bool used = false;
  if (m_settings.m_iNmeaHeading == kThroughWater && hdg.HeadingMark) {
    m_record.HeadingUpdate(hdg.Heading);
    used = true;
  }
  return UseVariation(hdg.Variation) || used;
}

bool Dispatcher::Use(const Hvm& hvm) { return UseVariation(hvm.Variation); }

bool Dispatcher::Use(const Mwv& mwv) {
  if (mwv.SpeedUnit != "Kts") {
    return false;
  }
  if (mwv.Reference == 'R') {
    m_record.WindApparentUpdate(mwv.WindAngle, mwv.WindSpeed, true);
    return true;
  }
  if (mwv.Reference == 'T' && m_settings.m_iNmeaTrueWind == kWindSensor) {
    m_record.WindTrueUpdate(mwv.WindAngle, mwv.WindSpeed, true);
    return true;
  }
  return false;
}

bool Dispatcher::Use(const Rmb& rmb) {
  const InstrumentData& data = m_record.Data();
  if (!rmb.BearingMark || !rmb.RangeMark || !data.VariationValid) {
    return false;
  }
  const double magnetic = static_cast<double>(rmb.Bearing) - static_cast<double>(data.Variation);
  m_record.WaypointUpdate(rmb.Range, ToSingle(magnetic));
  return true;
}

bool Dispatcher::Use(const Rmc& rmc) {
  bool used = UseVariation(rmc.Variation);
  const InstrumentData& data = m_record.Data();
  if (m_settings.m_iNmeaHeading == kOverGround && rmc.CourseMark && data.VariationValid) {
    m_record.HeadingUpdate(ToSingle(static_cast<double>(rmc.Course) - static_cast<double>(data.Variation)));
    used = true;
  }
  if (m_settings.m_iNmeaBoatSpeed == kOverGround && rmc.SpeedMark) {
    m_record.BoatSpeedUpdate(rmc.Speed);
    used = true;
  }
  return used;
}

bool Dispatcher::Use(const Vhw& vhw) { return UseMotion(vhw, kThroughWater); }

bool Dispatcher::Use(const Vtg& vtg) { return UseMotion(vtg, kOverGround); }

}  // namespace veerwatch
