// The command "boat" as it stands on the command line.
#pragma once

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <csignal>
#include <cstddef>
#include <iostream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/BoatCommand.h"
#include "cli/Validators.h"
#include "settings/SimulateModel.h"

namespace veerwatch {

class BoatArguments {
 public:
  explicit BoatArguments(CLI::App& app)
      : m_boat(app.add_subcommand("boat", "Serve a simulated boat, her instruments and her pilot")) {
    m_boat->add_option("--listen", m_options.Listen, "tcp://HOST:PORT, or pty:PATH; may be repeated")
        ->required()
        ->type_name("WHERE");
    AddNumber(m_boat, "--wind", m_options.Wind, "Speed of the wind [kn] (default 12)", "W");
    AddNumber(m_boat, "--from", m_options.From, "Where it blows from [deg true] (default 200)", "D");
    AddNumber(m_boat, "--gust", m_options.Gust, "Deviation of its speed [%] (default 10)", "G");
    AddNumber(m_boat, "--shift", m_options.Shift, "Deviation of its direction [deg] (default 4)", "S");
    AddNumber(m_boat, "--heading", m_options.Heading, "At the start [deg magnetic] (default 155)", "H");
    AddNumber(m_boat, "--leeway", m_options.Leeway, "The most leeway [deg] (default 4)", "L");
    AddNumber(m_boat, "--lag", m_options.Lag, "Lag of the pilot [s] (default 4)", "L");
    AddNumber(m_boat, "--offset", m_options.Offset, "What the pilot's compass shows more [deg] (default 0)",
              "O");
    AddNumber(m_boat, "--variation", m_options.Variation, "[deg], east positive (default 3)", "V");
    AddNumber(m_boat, "--rate", m_options.Rate, "Winds and headings a second (default 1)", "R");
    AddNumber(m_boat, "--time", m_options.Time, "Seconds to sail; without it until the end", "T");
    m_boat->add_option("--sea", m_sea, "flat, slight, beam, following or head (default slight)")
        ->check(CLI::IsMember(Names(kSeaNames)))
        ->type_name("SEA");
    m_boat->add_option("--reads", m_reads, "What the pilot reads: all, apb, rmb, hsc, bwc, wind, nothing")
        ->check(CLI::IsMember(Names(kPilotReadsNames)))
        ->type_name("WHAT");
    m_boat->add_option("--seed", m_options.Seed, "Seed of wind, sea and noise (default 1)")
        ->check(kWholeNumber)
        ->type_name("S");
    m_boat->add_flag("--true-wind", m_options.TrueWind, "Send the true wind of a sensor, too");
  }

  bool Given() const { return m_boat->parsed(); }

  void Run() {
    m_options.TheSea = static_cast<Sea>(IndexOf(kSeaNames, m_sea));
    m_options.Reads = static_cast<PilotReads>(IndexOf(kPilotReadsNames, m_reads));
    std::signal(SIGINT, End);
    std::signal(SIGTERM, End);
    Boat(m_options, std::cout, [] { return s_ended != 0; });
  }

 private:
  using NamesOfChoice = std::span<const std::string_view>;

  static void End(int /*signal*/) { s_ended = 1; }

  static std::string Small(std::string_view name) {
    std::string small(name);
    std::transform(small.begin(), small.end(), small.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return small;
  }
  static std::vector<std::string> Names(NamesOfChoice names) {
    std::vector<std::string> all;
    std::transform(names.begin(), names.end(), std::back_inserter(all), Small);
    return all;
  }
  static std::ptrdiff_t IndexOf(NamesOfChoice names, const std::string& chosen) {
    return std::distance(names.begin(), std::find_if(names.begin(), names.end(), [&](std::string_view name) {
                           return Small(name) == chosen;
                         }));
  }

  static inline volatile std::sig_atomic_t s_ended = 0;

  CLI::App* m_boat;
  BoatOptions m_options;
  std::string m_sea = "slight";
  std::string m_reads = "all";
};

}  // namespace veerwatch
