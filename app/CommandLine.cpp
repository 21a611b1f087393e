#include "app/CommandLine.h"

#include <string_view>

#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr std::string_view kProfile = "--profile";

}  // namespace

CommandLine ReadCommandLine(int argc, const char* const* argv) {
  CommandLine line;
  const auto complain = [&line](std::string_view what) {
    if (line.Trouble.empty()) {
      line.Trouble = VisibleText(what) + "; --help shows the known ones";
    }
  };
  bool onlyNames = false;
  for (int at = 1; at < argc; ++at) {
    const std::string_view word = argv[at];
    if (onlyNames || word.empty() || word.front() != '-' || word == "-") {
      complain("unexpected argument " + std::string(word));
    } else if (word == "--") {
      onlyNames = true;
    } else if (word == "-h" || word == "--help") {
      line.Help = true;
    } else if (word == "-v" || word == "--version") {
      line.Version = true;
    } else if (word == "--diagnose") {
      line.Diagnose = true;
    } else if (word == kProfile && at + 1 < argc) {
      line.Profile = argv[++at];
    } else if (word.starts_with(kProfile) && word.substr(kProfile.size()).starts_with('=')) {
      line.Profile = std::string(word.substr(kProfile.size() + 1));
    } else if (word != kProfile) {
      complain("unknown option " + std::string(word));
    } else {
      line.Profile = "";
    }
  }
  if (line.Profile && line.Profile->empty() && line.Trouble.empty()) {
    line.Trouble = "--profile takes the name of a file";
  }
  return line;
}

std::string CommandLineHelp() {
  return "Usage: veerwatch [--profile FILE] [--diagnose]\n"
         "Steers a boat's autopilot by the wind.\n"
         "\n"
         "  --profile FILE  keep the settings in FILE instead of the usual place\n"
         "  --diagnose      listen for ten seconds, print a report without positions and names, and end\n"
         "  -h, --help      show this help and end\n"
         "  -v, --version   show the version and end\n"
         "\n"
         "Options of the Qt toolkit such as -style or -platform are taken as well.\n";
}

}  // namespace veerwatch
