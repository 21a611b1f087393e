// veerwatch-cli: the core on the command line, for scripts and for looking at recorded passages.

#include <CLI/CLI.hpp>
#include <array>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "cli/BoatArguments.h"
#include "cli/CourseCommands.h"
#include "cli/PolarCommands.h"
#include "cli/PreviewCommand.h"
#include "cli/Replay.h"
#include "cli/Simulate.h"
#include "cli/Validators.h"
#include "platform/VisibleText.h"

namespace {

using veerwatch::AddNumber;
using veerwatch::kNumber;
using veerwatch::kWholeNumber;
using veerwatch::TrackMethod;
using veerwatch::TrackMode;
using veerwatch::TrackSide;

constexpr int kExitBadCall = 2;

/// The names of what --mode and --track choose.
const std::map<std::string, TrackMode> kModes{
    {"setup", TrackMode::Setup}, {"manual", TrackMode::Manual}, {"track", TrackMode::Track}};
const std::map<std::string, TrackSide> kSides{{"apparent", TrackSide::Apparent}, {"true", TrackSide::True}};

/// Options that both commands have, as they stand on the command line.
struct SteeringArguments {
  veerwatch::SteeringOptions Options;
  std::string Mode = "track";
  std::string Side = "apparent";

  void AddTo(CLI::App& command, const std::set<std::string>& modes) {
    command
        .add_option("--profile", Options.ProfileFile, "Profile with the settings; without one, the defaults")
        ->type_name("FILE");
    command.add_option("--mode", Mode, "Tracking mode (default track)")
        ->check(CLI::IsMember(modes))
        ->type_name("MODE");
    command.add_option("--track", Side, "Wind angle that is held (default apparent)")
        ->check(CLI::IsMember({"apparent", "true"}))
        ->type_name("SIDE");
    command.add_flag("--trace", Options.Trace, "One JSON object a line instead");
  }

  veerwatch::SteeringOptions Taken() const {
    veerwatch::SteeringOptions taken = Options;
    taken.Mode = kModes.at(Mode);
    taken.Side = kSides.at(Side);
    return taken;
  }
};

/// Says what went wrong, as one line whatever the names in it hold; returns the exit status.
int Complain(std::string_view text) {
  std::cerr << "veerwatch-cli: " << veerwatch::VisibleText(text) << '\n';
  return kExitBadCall;
}

constexpr const char* kSmoothText = "Straight lines between the two neighbouring winds";

/// "polar targets" and "polar best".
class CourseArguments {
 public:
  explicit CourseArguments(CLI::App* polar)
      : m_targets(polar->add_subcommand("targets", "Print how best to sail towards a bearing")),
        m_best(polar->add_subcommand("best", "Print the best wind angles upwind and downwind")) {
    m_targets->add_option("FILE", m_options.File, "The polar file")->required();
    const std::array<CLI::Option*, 4> query{
        AddNumber(m_targets, "--heading", m_query.Heading,
                  "Present heading [deg]; without one, lines \"heading bearing twa tws\" from stdin", "H"),
        AddNumber(m_targets, "--bearing", m_query.TargetBearing, "Bearing to sail to [deg]", "B"),
        AddNumber(m_targets, "--twa", m_query.WindAngleTrue,
                  "True wind angle on that heading [deg, negative to port]", "A"),
        AddNumber(m_targets, "--tws", m_query.WindSpeedTrue, "True wind speed [kn]", "S")};
    for (CLI::Option* one : query) {
      for (CLI::Option* other : query) {
        if (one != other) {
          one->needs(other);
        }
      }
    }
    m_heading = query.front();
    AddNumber(m_targets, "--range", m_options.Range, "Distance to sail [nm]: print times too", "R")
        ->check(CLI::NonNegativeNumber);
    AddNumber(m_targets, "--boat-speed", m_options.BoatSpeed,
              "The boat's speed now [kn]: scale every speed by it over the polar's", "V");
    m_targets->add_flag("--json", m_options.Json, "A JSON object instead, one a line");
    m_targets->add_flag("--smooth", m_options.Smooth, kSmoothText);
    m_best->add_option("FILE", m_bestOptions.File, "The polar file")->required();
    AddNumber(m_best, "--tws", m_bestOptions.WindSpeed, "True wind speed [kn]", "S")->required();
    m_best->add_flag("--smooth", m_bestOptions.Smooth, kSmoothText);
  }

  /// Runs the command that was given; false when it was none of these.
  bool Run() {
    if (*m_targets) {
      if (*m_heading) {
        m_options.Query = m_query;
      }
      veerwatch::PolarTargetsCommand(m_options, std::cin, std::cout);
    } else if (*m_best) {
      veerwatch::PolarBestCommand(m_bestOptions, std::cout);
    }
    return *m_targets || *m_best;
  }

 private:
  CLI::App* m_targets;
  CLI::App* m_best;
  CLI::Option* m_heading = nullptr;
  veerwatch::CourseQuery m_query;
  veerwatch::PolarTargetsOptions m_options;
  veerwatch::PolarBestOptions m_bestOptions;
};

/// "polar" and its commands.
class PolarArguments {
 public:
  explicit PolarArguments(CLI::App& app)
      : m_polar(app.add_subcommand("polar", "Look into polar files")),
        m_speed(m_polar->add_subcommand("speed", "Print boat speeds by wind angle and wind speed")),
        m_check(m_polar->add_subcommand("check", "Print rows, columns and ranges, or what is wrong")),
        m_convert(m_polar->add_subcommand("convert", "Turn other spellings into this program's format")),
        m_course(m_polar) {
    m_polar->require_subcommand(1);
    m_speed->add_option("FILE", m_options.File, "The polar file")->required();
    m_speed->add_option("--factor", m_options.Factor, "Multiplies each speed (default 1)")
        ->check(kNumber)
        ->check(CLI::PositiveNumber)
        ->type_name("F");
    CLI::Option* apparent =
        m_speed->add_flag("--apparent", m_options.Apparent, "Angles are apparent wind angles");
    // Smooth lookups are by the true wind.
    m_speed->add_flag("--smooth", m_options.Smooth, kSmoothText)->excludes(apparent);
    CLI::Option* angle =
        m_speed->add_option("--twa", m_options.Angle, "Wind angle [deg]; without one, pairs from stdin")
            ->check(kNumber)
            ->type_name("A");
    CLI::Option* wind = m_speed->add_option("--tws", m_options.WindSpeed, "True wind speed [kn]")
                            ->check(kNumber)
                            ->type_name("S");
    angle->needs(wind);
    wind->needs(angle);
    m_check->add_option("FILE", m_options.File, "The polar file")->required();
    m_convert->add_option("IN", m_options.File, "The table to read")->required();
    m_convert->add_option("OUT", m_out, "The file to write")->required();
  }

  bool Given() const { return m_polar->parsed(); }

  void Run() {
    if (m_course.Run()) {
      return;
    }
    if (*m_speed) {
      veerwatch::PolarSpeedCommand(m_options, std::cin, std::cout);
    } else if (*m_check) {
      veerwatch::PolarCheckCommand(m_options.File, std::cout);
    } else {
      veerwatch::PolarConvertCommand(m_options.File, m_out, std::cerr);
    }
  }

 private:
  CLI::App* m_polar;
  CLI::App* m_speed;
  CLI::App* m_check;
  CLI::App* m_convert;
  CourseArguments m_course;
  veerwatch::PolarSpeedOptions m_options;
  std::string m_out;
};

const std::map<std::string, TrackMethod> kMethods{{"sentence", TrackMethod::Sentence},
                                                  {"clock", TrackMethod::Clock},
                                                  {"direction", TrackMethod::Direction}};

/// A log that can be read, or what stops the command.
std::ifstream OpenLog(const std::string& file) {
  std::ifstream log(file, std::ios::binary);
  if (!log.is_open() || (log.peek(), log.bad())) {
    throw veerwatch::CommandError("cannot read " + file);
  }
  log.clear();
  return log;
}

/// "preview".
class PreviewArguments {
 public:
  explicit PreviewArguments(CLI::App& app)
      : m_preview(app.add_subcommand("preview", "Print how the loop would pull an offset back to zero")) {
    AddNumber(m_preview, "--bandwidth", m_bandwidth,
              "Tracking bandwidth [s] (with --log that of the profile)", "B");
    AddNumber(m_preview, "--damping", m_damping, "Tracking damping factor (the same)", "D");
    m_preview
        ->add_option("--method", m_method, "sentence, clock or direction (default sentence; all with --log)")
        ->transform(CLI::IsMember({"sentence", "clock", "direction"}, CLI::ignore_case))
        ->type_name("METHOD");
    AddNumber(m_preview, "--rate", m_options.Inputs.Rate, "Wind sentences a second (default 1)", "R");
    const std::array<CLI::Option*, 4> ofResponse{
        AddNumber(m_preview, "--offset", m_options.Inputs.Offset, "Bearing at the start [deg] (default 10)",
                  "O"),
        AddNumber(m_preview, "--noise", m_options.Inputs.Noise, "Noise to either side [deg] (default 1)",
                  "N"),
        m_preview->add_option("--seed", m_options.Seed, "Seed of the noise (default 1)")
            ->check(kWholeNumber)
            ->type_name("S"),
        AddNumber(m_preview, "--time", m_options.Inputs.Time, "Seconds to run (default 120)", "T")};
    CLI::Option* log = m_preview->add_option("--log", m_file, "Run over the wind and heading of this log")
                           ->type_name("FILE");
    for (CLI::Option* option : ofResponse) {
      log->excludes(option);
    }
    AddNumber(m_preview, "--lag", m_log.Lag, "Of the boat, with --log [s] (default 4)", "L")->needs(log);
    m_preview
        ->add_option("--profile", m_log.ProfileFile, "Profile with the settings that the log is read with")
        ->needs(log)
        ->type_name("FILE");
    m_preview->add_flag("--summary", m_options.Summary, "Figures instead of the passes");
  }

  bool Given() const { return m_preview->parsed(); }

  void Run() {
    if (!m_file) {
      if (!m_bandwidth || !m_damping) {
        throw veerwatch::CommandError(m_bandwidth ? "--damping is required" : "--bandwidth is required");
      }
      m_options.Inputs.Bandwidth = *m_bandwidth;
      m_options.Inputs.Damping = *m_damping;
      m_options.Inputs.Method = kMethods.at(m_method.value_or("sentence"));
      veerwatch::PreviewCommand(m_options, std::cout);
      return;
    }
    if (m_method) {
      m_log.Method = kMethods.at(*m_method);
    }
    m_log.Bandwidth = m_bandwidth;
    m_log.Damping = m_damping;
    m_log.Rate = m_options.Inputs.Rate;
    m_log.Summary = m_options.Summary;
    std::ifstream log = OpenLog(*m_file);
    veerwatch::LogPreviewCommand(m_log, log, std::cout);
  }

 private:
  CLI::App* m_preview;
  veerwatch::PreviewOptions m_options;
  veerwatch::LogPreviewOptions m_log;
  std::optional<double> m_bandwidth;
  std::optional<double> m_damping;
  std::optional<std::string> m_method;
  std::optional<std::string> m_file;
};

/// "replay".
class ReplayArguments {
 public:
  explicit ReplayArguments(CLI::App& app)
      : m_replay(app.add_subcommand("replay", "Feed recorded sentences, print the autopilot sentences")) {
    m_steering.AddTo(*m_replay, {"setup", "manual", "track"});
    m_replay
        ->add_option("--setup-steps", m_options.SetupSteps,
                     "Control steps in Setup before the mode (default 0)")
        ->check(kWholeNumber)
        ->type_name("N");
    m_replay->add_flag("--raw", m_raw, "Bytes as on the wire: only a carriage return ends a line");
    CLI::Option* const watch =
        m_replay->add_flag("--watch", m_watch, "What the watch finds, as it comes and goes, instead");
    m_replay->add_flag("--explain", m_options.Explain, "Why each sentence says what it says, instead")
        ->excludes(watch);
    m_replay->add_option("FILE", m_file, "The log; standard input without one");
  }

  bool Given() const { return m_replay->parsed(); }

  void Run() {
    m_options.Steer = m_steering.Taken();
    m_options.Steer.Watch = m_watch;
    m_options.Ends = m_raw ? veerwatch::LineEnds::CarriageReturn : veerwatch::LineEnds::Any;
    if (!m_file) {
      veerwatch::Replay(m_options, std::cin, std::cout, std::cerr);
      return;
    }
    std::ifstream log = OpenLog(*m_file);
    veerwatch::Replay(m_options, log, std::cout, std::cerr);
  }

 private:
  CLI::App* m_replay;
  SteeringArguments m_steering;
  veerwatch::ReplayOptions m_options;
  std::optional<std::string> m_file;
  bool m_watch = false;
  bool m_raw = false;
};

/// "simulate".
class SimulateArguments {
 public:
  explicit SimulateArguments(CLI::App& app)
      : m_simulate(app.add_subcommand("simulate", "Run the simulator and the loop, a line a tick")) {
    m_steering.AddTo(*m_simulate, {"manual", "track"});
    m_simulate->add_option("--ticks", m_options.Ticks, "Seconds to sail (default 60)")
        ->check(kWholeNumber)
        ->type_name("N");
    m_simulate->add_option("--seed", m_options.Seed, "Seed of the noise (default 1)")
        ->check(kWholeNumber)
        ->type_name("S");
    m_simulate->add_flag("--realtime", m_options.RealTime, "A tick a second");
  }

  void Run() {
    m_options.Steer = m_steering.Taken();
    veerwatch::Simulate(m_options, std::cout);
  }

 private:
  CLI::App* m_simulate;
  SteeringArguments m_steering;
  veerwatch::SimulateOptions m_options;
};

int Run(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  CLI::App app("Steers by recorded or simulated instruments and shows what the autopilot would be told.",
               "veerwatch-cli");
  app.set_version_flag("--version", "veerwatch-cli " VEERWATCH_VERSION);
  app.require_subcommand(0, 1);

  ReplayArguments replay(app);
  SimulateArguments simulate(app);
  PolarArguments polar(app);
  PreviewArguments preview(app);
  veerwatch::BoatArguments boat(app);

  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& success) {
    return app.exit(success);
  } catch (const CLI::ParseError& error) {
    return Complain(error.what());
  }
  if (app.get_subcommands().empty()) {
    throw veerwatch::CommandError("a command is missing: see --help");
  }
  if (polar.Given()) {
    polar.Run();
  } else if (preview.Given()) {
    preview.Run();
  } else if (replay.Given()) {
    replay.Run();
  } else if (boat.Given()) {
    boat.Run();
  } else {
    simulate.Run();
  }
  std::cout.flush();
  if (!std::cout) {
    throw veerwatch::CommandError("cannot write to standard output");
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    return Complain(error.what());
  }
}
