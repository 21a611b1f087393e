#include "history/TraceGroups.h"

#include <algorithm>
#include <sstream>

#include "platform/Language.h"

namespace veerwatch {

namespace {

std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) {
    words.push_back(word);
  }
  return words;
}

int SharedEnd(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  const auto [end, other] = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
  return static_cast<int>(end - a.rbegin());
}

/// Whether a group's title is the name of a trace of another kind.
bool OtherKind(const std::vector<StripChartData::Trace>& traces, const std::string& title, TraceKind kind) {
  return std::any_of(traces.begin(), traces.end(),
                     [&](const auto& trace) { return trace.Name == title && trace.Kind != kind; });
}

int GroupFor(const StripChartData::Trace& trace, const std::vector<StripChartData::Trace>& traces,
             const std::vector<std::string>& titles) {
  const std::vector<std::string> name = Words(trace.Name);
  int best = 0;
  int bestShared = -1;
  for (std::size_t group = 0; group < titles.size(); ++group) {
    if (OtherKind(traces, titles[group], trace.Kind)) {
      continue;
    }
    const int shared = SharedEnd(name, Words(titles[group]));
    if (shared > bestShared ||
        (shared == bestShared && titles[group].size() < titles[static_cast<std::size_t>(best)].size())) {
      best = static_cast<int>(group);
      bestShared = shared;
    }
  }
  return best;
}

bool IsDirection(const StripChartData::Trace& trace) {
  const std::vector<std::string> words = Words(trace.Name);
  return trace.Kind == TraceKind::Angle && !words.empty() && words.back() == "Heading";
}

}  // namespace

std::vector<TraceGroup> GroupTraces(const std::vector<StripChartData::Trace>& traces,
                                    const std::vector<std::string>& titles) {
  std::vector<TraceGroup> groups;
  for (const StripChartData::Trace& trace : traces) {
    TraceGroup group;
    group.Group = titles.empty() ? 0 : GroupFor(trace, traces, titles);
    group.Scale = group.Group;
    if (IsDirection(trace)) {
      group.Scale = static_cast<int>(titles.size());
      group.Kind = ScaleKind::Compass;
    } else if (trace.Kind == TraceKind::Angle) {
      group.Kind = ScaleKind::Relative;
    }
    groups.push_back(group);
  }
  return groups;
}

std::string UnitsText(std::string_view units) { return units == "Kts" ? Tr("Kts") : std::string(units); }

std::string ShortName(const std::string& name) {
  const std::vector<std::string> words = Words(name);
  constexpr std::size_t kLetters = 3;
  if (name == "Heading") {
    return "Hdg";
  }
  if (words.size() == 1) {
    return words.front().substr(0, kLetters);
  }
  std::string initials;
  for (const std::string& word : words) {
    initials += word.front();
  }
  return initials;
}

}  // namespace veerwatch
