// Stores the form of the options dialog in the settings, group by group, and restarts what works on another
// port or on the simulator then.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "helm/MainWindowApi.h"
#include "options/OptionNumber.h"
#include "options/OptionsForm.h"
#include "platform/Profile.h"

namespace veerwatch {

/// Which ports are open now.
class OptionsPorts {
 public:
  virtual ~OptionsPorts() = default;
  /// The port that the instruments are read from.
  virtual bool NmeaPortOpen() const = 0;
  /// The port that the autopilot is written to: with equal port numbers that of the instruments.
  virtual bool PilotPortOpen() const = 0;
};

class OptionsStore {
 public:
  /// All outlive this.
  OptionsStore(MainWindowApi& main, const OptionsPorts& ports, Profile& profile)
      : m_main(main), m_ports(ports), m_profile(profile) {}

  /// Stores the groups "Data", "Input", "Output", "Simulate", "Tracking" and "Watch" in this order. Stops at
  /// the first text that cannot be stored and returns the message for it, with the name of its box, as "Input
  /// Options Problem Type mismatch: Comm"; what was stored before stays stored. Nothing when everything is
  /// stored. Refused are a port below 1, a bandwidth that is not above 0, a damping or an alarm limit below
  /// 0, and an average that is neither 0 nor above 0.5. A port is compared as a number, so "1.0" is port 1
  /// and restarts nothing; a text that is no port restarts nothing either. A device that was chosen for the
  /// number of a port is named in the profile with it, and restarts the port when it is another than before.
  std::optional<std::string> Store(const OptionsForm& form);

 private:
  /// Why the text of a box cannot be stored.
  struct BoxFault {
    OptionFault Kind;
    const char* Box;  ///< its name in the dialog
  };
  /// Nothing when it is stored.
  using Fault = std::optional<BoxFault>;

  Fault StoreData(const OptionsForm& form);
  Fault StoreInput(const OptionsForm& form);
  Fault StoreOutput(const OptionsForm& form);
  Fault StoreSimulate(const OptionsForm& form);
  Fault StoreTracking(const OptionsForm& form);
  Fault StoreWatch(const OptionsForm& form);
  static Fault In(const char* box, std::optional<OptionFault> fault);
  Fault StoreBoxes(OptionGroup group, const OptionsForm& form);
  std::optional<OptionFault> StorePort(const OptionsForm& form, const std::string& text, bool open,
                                       std::int16_t& port);
  std::optional<OptionFault> StoreTime(const std::string& text);

  MainWindowApi& m_main;
  const OptionsPorts& m_ports;
  Profile& m_profile;
};

}  // namespace veerwatch
