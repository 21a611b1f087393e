#include "options/OptionsStore.h"

#include <array>
#include <cassert>
#include <cstdint>
#include <string>
#include <variant>

#include "options/PilotChoices.h"
#include "options/SimulateTimeText.h"
#include "platform/Language.h"
#include "platform/PortNames.h"
#include "settings/SettingsTable.h"

namespace veerwatch {

namespace {

/// What to say of a number that a rule refuses.
OptionFault RefusalOf(const NumberRule& rule, float value) {
  return rule == kAverageCount && value > 0.0F ? OptionFault::SmallCount : OptionFault::InvalidValue;
}

/// The seed in a text, or why there is none.
Converted<std::int16_t> ToSeed(const std::string& text) {
  const Converted<std::int16_t> seed = ToOptionWhole(text);
  const auto* number = std::get_if<std::int16_t>(&seed);
  const bool refused =
      number != nullptr && !RowOf(SettingsTable(), "Simulate", "Seed").Value.Whole->Holds(*number);
  return refused ? Converted<std::int16_t>(OptionFault::InvalidValue) : seed;
}

std::int16_t Source(int index) {
  assert(index == 0 || index == 1);
  return static_cast<std::int16_t>(index);
}

}  // namespace

std::optional<std::string> OptionsStore::Store(const OptionsForm& form) {
  struct Group {
    const char* Name;
    Fault (OptionsStore::*Store)(const OptionsForm&);
  };
  constexpr std::array<Group, 6> kGroups{{{TrMark("Data"), &OptionsStore::StoreData},
                                          {TrMark("Input"), &OptionsStore::StoreInput},
                                          {TrMark("Output"), &OptionsStore::StoreOutput},
                                          {TrMark("Simulate"), &OptionsStore::StoreSimulate},
                                          {TrMark("Tracking"), &OptionsStore::StoreTracking},
                                          {TrMark("Watch"), &OptionsStore::StoreWatch}}};
  for (const Group& group : kGroups) {
    if (const Fault fault = (this->*group.Store)(form)) {
      return Filled(Tr("%1 Options Problem %2: %3"),
                    {Tr(group.Name), Tr(FaultText(fault->Kind)), Tr(fault->Box)});
    }
  }
  return std::nullopt;
}

/// Stores the boxes of a group one after the other, up to the first fault.
OptionsStore::Fault OptionsStore::StoreBoxes(OptionGroup group, const OptionsForm& form) {
  for (const OptionBox& box : kOptionBoxes) {
    if (box.Group != group) {
      continue;
    }
    const Converted<float> number = ToOptionSingle(form.*box.Text);
    if (const auto* fault = std::get_if<OptionFault>(&number)) {
      return BoxFault{*fault, box.Name};
    }
    const NumberRule& rule = RuleOf(SettingsTable(), box.Setting);
    const auto taken = rule.Take(std::get<float>(number));
    if (!taken) {
      return BoxFault{RefusalOf(rule, std::get<float>(number)), box.Name};
    }
    m_main.*box.Setting = *taken;
  }
  return std::nullopt;
}

OptionsStore::Fault OptionsStore::StoreData(const OptionsForm& form) {
  m_main.m_iNmeaBoatSpeed = Source(form.NmeaBoatSpeed);
  m_main.m_iNmeaHeading = Source(form.NmeaHeading);
  for (std::size_t i = 0; i < kSentences.size(); ++i) {
    m_main.*kSentences[i].Enabled = form.NmeaSentence[i];
  }
  m_main.m_iNmeaTrueWind = Source(form.NmeaTrueWind);
  m_main.m_eNmeaChecksum = static_cast<ChecksumRule>(form.NmeaChecksum);
  m_main.m_eNmeaInvalidStatus = static_cast<InvalidRule>(form.NmeaInvalidStatus);
  m_main.m_eNmeaForeignLines = static_cast<ForeignRule>(form.NmeaForeignLines);
  m_main.m_bNmeaWindUnits = form.NmeaWindUnits;
  m_main.m_bNmeaLowerCase = form.NmeaLowerCase;
  return StoreBoxes(OptionGroup::Data, form);
}

/// What became of the text of a box.
OptionsStore::Fault OptionsStore::In(const char* box, std::optional<OptionFault> fault) {
  return fault ? Fault({*fault, box}) : std::nullopt;
}

OptionsStore::Fault OptionsStore::StoreInput(const OptionsForm& form) {
  return In(TrMark("Comm"), StorePort(form, form.NmeaPort, m_ports.NmeaPortOpen(), m_main.m_iNmeaPort));
}

OptionsStore::Fault OptionsStore::StoreOutput(const OptionsForm& form) {
  if (const Fault fault =
          In(TrMark("Comm"), StorePort(form, form.PilotPort, m_ports.PilotPortOpen(), m_main.m_iPilotPort))) {
    return fault;
  }
  if (const auto box = PilotChoicesStore(form, m_main)) {
    return BoxFault{OptionFault::InvalidValue, *box};
  }
  return StoreBoxes(OptionGroup::Output, form);
}

std::optional<OptionFault> OptionsStore::StorePort(const OptionsForm& form, const std::string& text,
                                                   bool open, std::int16_t& port) {
  const Converted<float> number = ToOptionSingle(text);
  if (const auto* fault = std::get_if<OptionFault>(&number)) {
    return *fault;
  }
  const Converted<std::int16_t> integer = ToOptionInteger(std::get<float>(number));
  if (const auto* fault = std::get_if<OptionFault>(&integer)) {
    return *fault;
  }
  const std::int16_t wanted = std::get<std::int16_t>(integer);
  if (wanted < 1) {
    return OptionFault::InvalidValue;
  }
  const auto device = form.PortDevices.find(wanted);
  const bool renamed = device != form.PortDevices.end() && device->second != PortDevice(m_profile, wanted);
  const bool restarts = open && (renamed || std::get<float>(number) != static_cast<float>(port));
  if (restarts) {
    m_main.TrackSetOff();
  }
  port = wanted;
  if (renamed) {
    NamePort(m_profile, wanted, device->second);
  }
  if (restarts) {
    m_main.TrackSetSetup();
  }
  return std::nullopt;
}

OptionsStore::Fault OptionsStore::StoreSimulate(const OptionsForm& form) {
  const auto model = static_cast<SimulateModel>(form.SimulateModel);
  const Converted<std::int16_t> typed = ToSeed(form.SimulateSeed);
  const std::int16_t seed =
      std::holds_alternative<OptionFault>(typed) ? m_main.m_iSimulateSeed : std::get<std::int16_t>(typed);
  const bool another =
      model != m_main.m_eSimulateModel || (model == SimulateModel::Boat && seed != m_main.m_iSimulateSeed);
  const bool restarts = form.Simulate != m_main.m_bSimulate || (m_main.m_bSimulate && another);
  if (restarts) {
    m_main.TrackSetOff();
  }
  m_main.m_bSimulate = form.Simulate;
  m_main.m_eSimulateModel = model;
  m_main.m_eSimulatePilot = static_cast<PilotReads>(form.SimulatePilot);
  m_main.m_eSimulateSea = static_cast<Sea>(form.SimulateSea);
  m_main.m_iSimulateSeed = seed;
  if (restarts) {
    m_main.TrackSetSetup();
  }
  if (const Fault fault = StoreBoxes(OptionGroup::SimulateBoat, form)) {
    return fault;
  }
  if (const Fault fault = In(TrMark("Time"), StoreTime(form.SimulateTime))) {
    return fault;
  }
  if (const Fault fault = StoreBoxes(OptionGroup::SimulateScene, form)) {
    return fault;
  }
  const auto* fault = std::get_if<OptionFault>(&typed);
  return fault != nullptr ? In(TrMark("Seed"), *fault) : std::nullopt;
}

std::optional<OptionFault> OptionsStore::StoreTime(const std::string& text) {
  const Converted<float> time = SimulateTimeParse(text);
  if (const auto* fault = std::get_if<OptionFault>(&time)) {
    return *fault;
  }
  const float hours = std::get<float>(time);
  if (hours != m_main.m_fSimulateTime) {
    // The boat moves by the difference.
    float bearing = 0.0F;
    float range = 0.0F;
    m_main.SimulateTime(hours, bearing, range);
    m_main.m_fSimulateTime = hours;
  }
  return std::nullopt;
}

OptionsStore::Fault OptionsStore::StoreTracking(const OptionsForm& form) {
  m_main.m_bTrackAlarm = form.TrackAlarm;
  m_main.m_eTrackMethod = static_cast<TrackMethod>(form.TrackMethod);
  return StoreBoxes(OptionGroup::Tracking, form);
}

OptionsStore::Fault OptionsStore::StoreWatch(const OptionsForm& form) {
  for (const OptionSwitch& each : kWatchSwitches) {
    m_main.*each.Setting = form.*each.Checked;
  }
  m_main.m_eWatchSound = static_cast<AlarmSound>(form.WatchSound);
  m_main.m_sWatchCommand = form.WatchCommand;
  return StoreBoxes(OptionGroup::Watch, form);
}

}  // namespace veerwatch
