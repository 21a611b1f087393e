// The command line of the program with the window, read without the toolkit, so that --help and --version are
// answered where no window can be shown.
#pragma once

#include <optional>
#include <string>

namespace veerwatch {

struct CommandLine {
  bool Help = false;
  bool Version = false;
  bool Diagnose = false;
  std::optional<std::string> Profile;  ///< the file to keep the settings in, its bytes as they were given
  std::string Trouble;                 ///< what is wrong with it, as one line; "" when nothing is
};

/// Reads the words after the name of the program. The first mistake counts; Help and Version are those that
/// stand before or after it.
CommandLine ReadCommandLine(int argc, const char* const* argv);

/// What --help prints.
std::string CommandLineHelp();

}  // namespace veerwatch
