#include "tests/e2e/FaultTable.h"

#include <cmath>
#include <random>
#include <utility>

#include "nmea/Encode.h"
#include "tests/e2e/RealPorts.h"

namespace veerwatch {

namespace {

using Fields = std::vector<std::string>;
using OnWire = std::function<std::string(const std::string& line, double seconds)>;

bool Is(const std::string& line, std::string_view type) { return line.substr(3, 3) == type; }
bool IsHeading(const std::string& line) { return Is(line, "HDG") || Is(line, "VHW"); }

std::string Sent(const std::string& line) { return line + "\r\n"; }

/// The line with its fields changed, and the checksum that belongs to it.
std::string Changed(const std::string& line, const std::function<void(Fields&)>& change) {
  const std::string body = line.substr(1, line.find('*') - 1);
  Fields fields;
  for (std::size_t start = 0; start <= body.size();) {
    const std::size_t end = std::min(body.find(',', start), body.size());
    fields.push_back(body.substr(start, end - start));
    start = end + 1;
  }
  change(fields);
  std::string text;
  for (const std::string& field : fields) {
    text += (text.empty() ? "" : ",") + field;
  }
  return Sentence(text);
}

/// Every sentence of that type changed so.
OnWire Change(std::string_view type, std::function<void(Fields&)> change) {
  return [type, change = std::move(change)](const std::string& line, double) {
    return Is(line, type) ? Changed(line, change) : Sent(line);
  };
}

/// Every sentence of that type left out.
OnWire Without(std::string_view type) {
  return [type](const std::string& line, double) { return Is(line, type) ? std::string() : Sent(line); };
}

/// Every wind with so much added to its angle.
std::string Turned(const std::string& line, double degrees) {
  return Changed(line, [degrees](Fields& fields) {
    fields[1] = std::to_string(std::fmod(std::stod(fields[1]) + degrees + 360.0, 360.0));
  });
}

/// A second talker beside the first, whose sentences of a type are changed so.
OnWire Second(std::string_view type, const std::string& talker, std::function<void(Fields&)> change) {
  return [type, talker, change = std::move(change)](const std::string& line, double) {
    return Is(line, type) ? Sent(line) + Changed(line,
                                                 [&](Fields& fields) {
                                                   fields[0] = talker + fields[0].substr(2);
                                                   change(fields);
                                                 })
                          : Sent(line);
  };
}

/// Nothing that has the heading.
OnWire NoHeading() {
  return [](const std::string& line, double) {
    if (Is(line, "VHW")) {
      return Changed(line, [](Fields& fields) { fields[1] = fields[3] = ""; });
    }
    return Is(line, "HDG") ? std::string() : Sent(line);
  };
}

std::string Noise(std::size_t bytes) {
  static std::mt19937 random(5);
  std::string noise(bytes, '\0');
  for (char& byte : noise) {
    byte = static_cast<char>(random() & 0xFFU);
  }
  return noise;
}

Fault NoWind(const char* name, OnWire onWire) {
  Fault fault{name, "No Wind", 5.0, PilotGets::Nothing};
  fault.OnWire = std::move(onWire);
  return fault;
}

/// Winds that are missing or no use.
std::vector<Fault> NoWinds() {
  return {
      NoWind("no wind sentences", Without("MWV")),
      NoWind("wind with status V", Change("MWV", [](Fields& fields) { fields[5] = "V"; })),
      NoWind("wind with status V, 40 degrees wrong",
             [](const std::string& line, double) {
               return Is(line, "MWV") ? Changed(Turned(line, 40.0), [](Fields& fields) { fields[5] = "V"; })
                                      : Sent(line);
             }),
      NoWind("wind without an angle", Change("MWV", [](Fields& fields) { fields[1] = ""; })),
      NoWind("wind without any value",
             Change("MWV", [](Fields& fields) { fields = {fields[0], "", "R", "", "N", "A"}; })),
      NoWind("wind with an angle of 400 degrees", Change("MWV", [](Fields& fields) { fields[1] = "400.0"; })),
      NoWind("wind in another unit", Change("MWV", [](Fields& fields) { fields[4] = "K"; })),
      NoWind("wind whose speed is no number", Change("MWV", [](Fields& fields) { fields[3] = "1O.5"; })),
      NoWind("wind with wrong checksums",
             [](const std::string& line, double) {
               return Is(line, "MWV") ? line.substr(0, line.size() - 2) + "ZZ\r\n" : Sent(line);
             }),
      NoWind("wind sentences cut in half",
             [](const std::string& line, double) {
               return Is(line, "MWV") ? line.substr(0, line.size() / 2) + "\r\n" : Sent(line);
             }),
      NoWind("nothing but noise", [](const std::string& line, double) { return Noise(line.size()); }),
      NoWind("only every seventh second a wind",
             [](const std::string& line, double seconds) {
               return Is(line, "MWV") && std::fmod(seconds, 7.0) < 6.5 ? std::string() : Sent(line);
             }),
  };
}

}  // namespace

std::vector<Fault> WindFaults() {
  std::vector<Fault> faults = NoWinds();

  Fault stuck{"the vane is stuck", "Wind Not Changing", 15.0, PilotGets::Sentences};
  stuck.OnWire = [held = std::string()](const std::string& line, double) mutable {
    if (!Is(line, "MWV")) {
      return Sent(line);
    }
    held = held.empty() ? line : held;
    return Sent(held);
  };
  stuck.Lasts = 20.0;
  faults.push_back(stuck);

  Fault two{"a second vane, 30 degrees apart", "2 Wind Sources (II, WI)", 15.0, PilotGets::Sentences};
  two.OnWire = Second("MWV", "WI", [](Fields& fields) {
    fields[1] = std::to_string(std::fmod(std::stod(fields[1]) + 30.0, 360.0));
  });
  two.Lasts = 20.0;
  faults.push_back(two);

  Fault speeds{"a second vane, 6 kn apart", "2 Wind Sources (II, WI)", 15.0, PilotGets::Sentences};
  speeds.OnWire =
      Second("MWV", "WI", [](Fields& fields) { fields[3] = std::to_string(std::stod(fields[3]) + 6.0); });
  speeds.Lasts = 20.0;
  faults.push_back(speeds);

  Fault jumps{"the wind leaps by 120 degrees and back", "Wind Jumps", 20.0, PilotGets::Sentences};
  jumps.OnWire = [](const std::string& line, double seconds) {
    return Is(line, "MWV") && std::fmod(seconds, 6.0) < 2.0 ? Turned(line, 120.0) : Sent(line);
  };
  jumps.Lasts = 24.0;
  jumps.Goes = false;  // it counts a minute
  faults.push_back(jumps);

  Fault many{"five winds a second with the method Sentence", "5 Winds a Second", 16.0, PilotGets::Sentences};
  many.Settings["Track"] = "Method=Sentence\nBandwidth=60\n";
  many.WindRate = 5.0;
  many.MostOff = 180.0;  // that is why it is said
  many.Goes = false;
  faults.push_back(many);
  return faults;
}

std::vector<Fault> BoatFaults() {
  const auto noSpeed = [](const char* name, OnWire onWire) {
    Fault fault{name, "No Boat Speed", 5.5, PilotGets::Sentences};
    fault.OnWire = std::move(onWire);
    return fault;
  };
  const auto noHeading = [](const char* name, OnWire onWire) {
    Fault fault{name, "No Heading", 5.5, PilotGets::Sentences};
    fault.OnWire = std::move(onWire);
    return fault;
  };
  std::vector<Fault> faults{
      noSpeed("no boat speed", Change("VHW", [](Fields& fields) { fields[5] = ""; })),
      noSpeed("boat speed 0 while the boat moves", Change("VHW", [](Fields& fields) { fields[5] = "0.0"; })),
      noSpeed("boat speed that is no number", Change("VHW", [](Fields& fields) { fields[5] = "6,,2"; })),
      noSpeed("boat speed below zero", Change("VHW", [](Fields& fields) { fields[5] = "-6.2"; })),
      noSpeed("boat speed without its mark", Change("VHW", [](Fields& fields) { fields[6] = ""; })),
      noHeading("no heading", NoHeading()),
      noHeading("heading that is no number",
                [](const std::string& line, double) {
                  return IsHeading(line)
                             ? Changed(line, [&](Fields& fields) { fields[Is(line, "HDG") ? 1 : 3] = "12x"; })
                             : Sent(line);
                }),
      noHeading("heading with wrong checksums",
                [](const std::string& line, double) {
                  return IsHeading(line) ? line.substr(0, line.size() - 2) + "ZZ\r\n" : Sent(line);
                }),
  };
  Fault two{"a second compass, 25 degrees apart", "2 Heading Sources (II, HE)", 15.0, PilotGets::Sentences};
  two.OnWire = Second("HDG", "HE", [](Fields& fields) {
    fields[1] = std::to_string(std::fmod(std::stod(fields[1]) + 25.0, 360.0));
  });
  two.Lasts = 20.0;
  faults.push_back(two);

  Fault logs{"a second log, 5 kn apart", "2 Boat Speed Sources", 15.0, PilotGets::Sentences};
  logs.OnWire = Second("VHW", "VD", [](Fields& fields) {
    fields[1] = fields[3] = "";
    fields[5] = std::to_string(std::stod(fields[5]) + 5.0);
  });
  logs.Lasts = 20.0;
  faults.push_back(logs);
  return faults;
}

std::vector<Fault> PilotFaults() {
  std::vector<Fault> faults;
  const auto add = [&faults](Fault fault) { faults.push_back(std::move(fault)); };

  Fault standby{"the pilot is in standby, the wheel 20 degrees off", "Pilot: Does not follow", 21.0};
  standby.Begins = [](FaultRun& run) {
    run.Boat().PilotStandby(std::fmod(run.Boat().State().Compass + 20.0, 360.0));
  };
  standby.Ends = [](FaultRun& run) { run.Boat().PilotEngage(); };
  standby.Lasts = 30.0;
  standby.MostOff = 40.0;
  add(standby);

  Fault refuses{"the pilot takes no bearing, the wind shifts", "Pilot: Does not follow", 24.0};
  refuses.Begins = [](FaultRun& run) {
    run.Boat().Set().Pilot.Refuses = true;
    run.Boat().Set().WindFrom += 30.0;
  };
  refuses.Ends = [](FaultRun& run) { run.Boat().Set().Pilot.Refuses = false; };
  refuses.Lasts = 34.0;
  refuses.MostOff = 60.0;
  add(refuses);

  Fault reversed{"the pilot turns the wrong way", "Pilot: Turns the wrong way", 30.0};
  reversed.Begins = [](FaultRun& run) {
    run.Boat().Set().Pilot.Reversed = true;
    run.Boat().Set().WindFrom += 20.0;
  };
  reversed.Ends = [](FaultRun& run) { run.Boat().Set().Pilot.Reversed = false; };
  reversed.Lasts = 36.0;
  reversed.MostOff = 180.0;
  reversed.Goes.reset();
  add(reversed);
  return faults;
}

std::vector<Fault> PilotLineFaults() {
  std::vector<Fault> faults;
  const auto add = [&faults](Fault fault) { faults.push_back(std::move(fault)); };

  Fault pulled{"the pilot's plug is pulled", "Pilot Lost - Output Port 2", 5.5, PilotGets::Nothing};
  pulled.Begins = [](FaultRun& run) { run.PullOutput(); };
  pulled.Ends = [](FaultRun& run) { run.PlugOutput(); };
  add(pulled);

  Fault missing{"the pilot's port was never there", "Pilot Lost - Output Port 2", 5.5, PilotGets::Nothing};
  missing.OutputFromStart = false;
  missing.Ends = [](FaultRun& run) { run.PlugOutput(); };
  add(missing);

  Fault full{"nobody reads what the pilot is sent", "Pilot Lost - Output Port 2", 10.0, PilotGets::Nothing};
  full.Begins = [](FaultRun& run) { run.PilotStopsReading(); };
  full.Ends = [](FaultRun& run) { run.PilotReadsAgain(); };
  full.Lasts = 16.0;
  full.MostOff = 60.0;
  add(full);

  Fault line{"ten winds a second for a line of 4800 baud", "Pilot Line Full", 16.0, PilotGets::Sentences};
  line.WindRate = 10.0;
  line.Goes = false;
  add(line);

  Fault both{"the pilot's plug is pulled and the wind is gone", "No Wind", 5.5, PilotGets::Nothing};
  both.OnWire = Without("MWV");
  both.Begins = [](FaultRun& run) { run.PullOutput(); };
  both.Ends = [](FaultRun& run) { run.PlugOutput(); };
  add(both);
  return faults;
}

std::vector<Fault> OtherFaults() {
  std::vector<Fault> faults;
  const auto add = [&faults](Fault fault) { faults.push_back(std::move(fault)); };

  Fault plug{"the instruments' plug is pulled", "No Wind", 5.5, PilotGets::Nothing};
  plug.Begins = [](FaultRun& run) { run.PullInput(); };
  plug.Ends = [](FaultRun& run) { run.PlugInput(); };
  add(plug);

  add(NoWind("the instruments are silent", [](const std::string&, double) { return std::string(); }));

  Fault apparent = NoWind("no wind sentences, the apparent wind held", Without("MWV"));
  apparent.Apparent = true;
  apparent.Angle = 60.0;
  add(apparent);

  Fault sensor =
      NoWind("the true wind of a sensor stops, the apparent goes on", [](const std::string& line, double) {
        return Is(line, "MWV") && line.find(",T,") != std::string::npos ? std::string() : Sent(line);
      });
  sensor.Settings["Nmea"] = "True Wind=0\n";
  sensor.TrueWindSensor = true;
  add(sensor);

  Fault suspended{"the computer sleeps for 8 s", "No Wind", 9.5, PilotGets::Sentences};
  suspended.Begins = [](FaultRun& run) { run.Sleep(8.0); };
  suspended.OnWire = [](const std::string& line, double seconds) {
    return seconds < 8.0 ? std::string() : Sent(line);
  };
  add(suspended);

  Fault clock = NoWind("no wind sentences, and the wall clock is set back by an hour", Without("MWV"));
  clock.Begins = [](FaultRun& run) { run.Tell("step wall -3600"); };
  add(clock);

  Fault gybe{"a true wind angle of 176 degrees", "Gybe Risk", 12.0, PilotGets::Sentences};
  gybe.Begins = [](FaultRun& run) { run.Boat().Set().WindFrom += 10.0; };
  gybe.Ends = [](FaultRun& run) { run.Boat().Set().WindFrom -= 20.0; };
  gybe.Angle = 168.0;
  add(gybe);

  Fault course{"a shift of 40 degrees", "Off Course", 6.0, PilotGets::Sentences};
  course.Begins = [](FaultRun& run) { run.Boat().Set().WindFrom += 40.0; };
  course.Settings["Track"] = "Alarm=True\nAlarm Limit=20\n";
  course.MostOff = 60.0;
  add(course);

  Fault up = NoWind("no wind sentences at 160 degrees, Heading Up", Without("MWV"));
  up.Settings["Watch"] = "Heading Up=True\n";
  up.Angle = 160.0;
  up.Pilot = PilotGets::Sentences;
  up.MostOff = 40.0;
  add(up);

  Fault keeps = NoWind("no wind sentences, Keep Sending", Without("MWV"));
  keeps.Settings["Watch"] = "Keep Sending=True\n";
  keeps.Pilot = PilotGets::Kept;
  add(keeps);
  return faults;
}

}  // namespace veerwatch
