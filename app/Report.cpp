#include "app/Report.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <utility>
#include <variant>

#include "app/WatchEntry.h"
#include "platform/Endpoint.h"
#include "platform/NumberText.h"
#include "platform/PortNames.h"
#include "polar/PolarSettings.h"
#include "settings/PortState.h"
#include "settings/SettingsTable.h"
#include "settings/TrackMode.h"
#include "tack/TackSettings.h"

namespace veerwatch {

namespace {

constexpr const char* kBlank = "<name>";

std::string ModeText(TrackMode mode) {
  switch (mode) {
    case TrackMode::Setup:
      return "Setup";
    case TrackMode::Manual:
      return "Manual";
    case TrackMode::Track:
      return "Track";
    case TrackMode::Off:
    case TrackMode::Switching:
      break;
  }
  return "Off";
}

std::vector<Endpoint> EndpointsOf(std::string_view text) {
  const auto parsed = ParseEndpoints(text, DeviceIsThere);
  const auto* found = std::get_if<std::vector<Endpoint>>(&parsed);
  return found == nullptr ? std::vector<Endpoint>() : *found;
}

/// The devices that the system itself numbers: nobody is named in them.
bool IsNumbered(std::string_view path) {
  constexpr std::string_view kTty = "/dev/tty";
  if (!path.starts_with(kTty)) {
    return false;
  }
  path.remove_prefix(kTty.size());
  for (const std::string_view kind : {"USB", "ACM", "AMA", "THS", "S"}) {
    const std::string_view number = path.substr(std::min(kind.size(), path.size()));
    if (path.starts_with(kind) && !number.empty() && number.size() <= 3 &&
        number.find_first_not_of("0123456789") == std::string_view::npos) {
      return true;
    }
  }
  return false;
}

std::string HostOf(const std::string& host) {
  for (const std::string_view own : {"", "localhost", "127.0.0.1", "::1", "0.0.0.0", "::"}) {
    if (host == own) {
      return host == "::" || host == "::1" ? "[" + host + "]" : host;
    }
  }
  return "<host>";
}

std::string Blanked(const Endpoint& end) {
  const auto at = [&](const char* scheme) {
    return scheme + HostOf(end.Host) + ":" + std::to_string(end.Port) +
           (end.Silence > 0.0 ? "?silence=" + ShortestText(static_cast<float>(end.Silence)) : "") +
           (end.Broadcast ? "?broadcast" : "");
  };
  switch (end.What) {
    case Endpoint::Kind::Device:
      return (IsNumbered(end.Path) ? end.Path : std::string("device ") + kBlank) +
             (end.Baud == 0 ? "?baud=auto" : "?baud=" + std::to_string(end.Baud));
    case Endpoint::Kind::TcpClient:
      return at("tcp://");
    case Endpoint::Kind::TcpServer:
      return at("tcp-listen://");
    case Endpoint::Kind::UdpInput:
      return at("udp-listen ");
    case Endpoint::Kind::UdpOutput:
      return at("udp://");
    case Endpoint::Kind::File:
      return std::string("file ") + kBlank;
  }
  return {};
}

/// The keys of a table whose values in `settings` are no defaults.
template <class Struct>
void AddDifferent(const SettingTable<Struct>& table, const Profile& settings, std::string& text) {
  Struct present;
  SettingsRead(table, settings, present);
  Profile now;
  Profile defaults;
  SettingsWrite(table, now, present);
  SettingsWrite(table, defaults, Struct{});
  for (const SettingRow<Struct>& row : table) {
    const std::string value = now.Text(row.Section, row.Key);
    if (value != defaults.Text(row.Section, row.Key)) {
      text += row.Section + " / " + row.Key + " = " + (row.Value.FreeText ? kBlank : value) + "\n";
    }
  }
}

std::string PortLine(const char* name, int number, bool open, const std::string& failure,
                     const Profile& settings) {
  const std::string endpoints = PortDevice(settings, number);
  std::string line = std::string(name) + ": " + std::to_string(number) + ", " + BlankedEndpoints(endpoints) +
                     (open ? ", open" : ", not open");
  if (!failure.empty()) {
    line += ": " + BlankedFailure(failure, endpoints);
  }
  return line + "\n";
}

void AddPorts(const ReportFacts& facts, std::string& text) {
  Settings settings;
  SettingsRead(SettingsTable(), facts.Settings, settings);
  const HelmNow now = facts.Now.value_or(HelmNow{});
  text += "\nPorts\n";
  if (settings.m_bSimulate) {
    text += "simulated\n";
  }
  text += PortLine("input", settings.m_iNmeaPort, now.InputOpen, now.InputFailure, facts.Settings);
  text += PortLine("output", settings.m_iPilotPort, now.OutputOpen, now.OutputFailure, facts.Settings);
  if (facts.Now) {
    text += "input is " + std::string(InputStateText(now.Input)) +
            ", sentences sent: " + std::to_string(now.Sent) + "\n";
  }
}

void AddLines(const char* caption, const std::vector<std::string>& lines, std::string& text) {
  text += std::string("\n") + caption + "\n";
  for (const std::string& line : lines) {
    text += line + "\n";
  }
  if (lines.empty()) {
    text += "none\n";
  }
}

void ReplaceAll(std::string& text, const std::string& what) {
  if (what.empty()) {
    return;
  }
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at)) {
    text.replace(at, what.size(), kBlank);
    at += std::string_view(kBlank).size();
  }
}

/// A word of letters, of any language, or a number too short for a part of a position.
bool IsPlain(std::string_view word) {
  constexpr std::size_t kLongestNumber = 2;
  constexpr unsigned kPlain = 0x80U;  // from here on a part of a letter of UTF-8
  const auto letter = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= kPlain;
  };
  const auto digit = [](char c) { return c >= '0' && c <= '9'; };
  return std::all_of(word.begin(), word.end(), letter) ||
         (word.size() <= kLongestNumber && std::all_of(word.begin(), word.end(), digit));
}

}  // namespace

std::string BlankedEndpoints(std::string_view endpoints) {
  std::string text;
  for (const Endpoint& end : EndpointsOf(endpoints)) {
    text.append(text.empty() ? "" : ", ").append(Blanked(end));
  }
  return text.empty() ? "not understood" : text;
}

std::string BlankedFailure(const std::string& text, std::string_view endpoints) {
  std::string blanked = text;
  for (const Endpoint& end : EndpointsOf(endpoints)) {
    for (const std::string& name : {end.Text, end.Path, end.Host}) {
      ReplaceAll(blanked, name);
    }
  }
  std::istringstream words(blanked);
  std::string kept;
  for (std::string word; words >> word;) {
    std::string_view bare(word);
    while (!bare.empty() && std::string_view(".,;:!").find(bare.back()) != std::string_view::npos) {
      bare.remove_suffix(1);
    }
    kept.append(kept.empty() ? "" : " ").append(IsPlain(bare) ? word : kBlank);
  }
  return kept;
}

std::string ReportText(const ReportFacts& facts) {
  std::string text = "Veerwatch report, " + UtcText(facts.Wall) + " UTC\n\nProgram\nVeerwatch " +
                     facts.Version + "\n" + (facts.Toolkit.empty() ? "" : facts.Toolkit + "\n") +
                     facts.System + "\n";
  if (facts.Now) {
    text += "mode " + ModeText(facts.Now->Mode) + "\n";
  }
  if (!facts.Instead.empty()) {
    text += facts.Instead + "\n";
  }
  AddPorts(facts, text);
  AddLines("Sentences of the last ten minutes", facts.Sentences, text);
  if (facts.Now) {
    AddLines("What the sources do not bring", facts.Now->Advice, text);
  }
  text += "\nSettings that are not the defaults\n";
  AddDifferent(SettingsTable(), facts.Settings, text);
  AddDifferent(PolarSettingsTable(), facts.Settings, text);
  AddDifferent(TackSettingsTable(), facts.Settings, text);
  AddLines("What the watch found in the last day", facts.Watch, text);
  return text;
}

}  // namespace veerwatch
