#include "connect/HeardLines.h"

#include <algorithm>
#include <functional>

#include "nmea/SentenceTable.h"
#include "platform/Angles.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr std::size_t kTalker = 2;
constexpr std::size_t kType = 3;
constexpr double kSecond = 1000.0;  // [ms]

/// The type of a sentence, of a wind with its reference: "MWV R".
std::string TypeOf(std::string_view line) {
  std::string type(line.substr(1 + kTalker, kType));
  if (type == "MWV") {
    constexpr std::size_t kReference = 2;
    std::size_t at = 0;
    for (std::size_t comma = 0; comma < kReference && at != std::string_view::npos; ++comma) {
      at = line.find(',', at == 0 ? 0 : at + 1);
    }
    if (at != std::string_view::npos && at + 1 < line.size() && line[at + 1] != ',') {
      type.append(1, ' ').append(1, line[at + 1]);
    }
  }
  return type;
}

}  // namespace

std::string PaceText(long count, std::int64_t first, std::int64_t last, std::int64_t now) {
  constexpr long kFew = 3;
  const bool measured = count >= kFew && last > first;
  const auto span = static_cast<double>(std::max<std::int64_t>(measured ? last - first : now - first, 1000));
  const double pace = static_cast<double>(measured ? count - 1 : count) * kSecond / span;
  constexpr double kWhole = 0.95;
  constexpr double kLeast = 0.1;
  return FormatNumber(ToSingle(std::max(pace, kLeast)), pace >= kWhole ? "0" : "0.0") + "/s";
}

void HeardLines::Count(Kinds& kinds, const std::string& name, const Moment& now) {
  auto kind = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& each) { return each.Name == name; });
  if (kind == kinds.end()) {
    if (kinds.size() == kMostKinds) {
      return;
    }
    kind = kinds.insert(kind, {name, 0, now.Steady, now.Steady});
  }
  ++kind->Count;
  kind->Last = now.Steady;
}

void HeardLines::Take(std::string_view line, LineFault fault, const Moment& now) {
  if (fault == LineFault::Sentence || fault == LineFault::Checksum) {
    ++m_faults;
    return;
  }
  if (line.size() < 1 + kTalker + kType) {
    return;
  }
  ++m_sentences;
  m_known += line.front() == '$' && FindSentence(line) != nullptr ? 1 : 0;
  const std::string type = VisibleText(TypeOf(line));
  Count(m_kinds, type, now);
  Count(m_talkers, VisibleText(line.substr(1, kTalker)) + " " + type, now);
  m_remembered.push_back({std::hash<std::string_view>()(line), now.Steady});
  while (m_remembered.size() > kMostRemembered || now.Steady - m_remembered.front().At > kRemembers) {
    m_remembered.pop_front();
  }
}

std::string HeardLines::Words(const Moment& now) const {
  std::string words;
  for (const Kind& kind : m_kinds) {
    words += (words.empty() ? "" : ", ") + kind.Name + " " +
             PaceText(kind.Count, kind.First, kind.Last, now.Steady);
  }
  if (m_faults > 0) {
    const std::string faults = std::to_string(m_faults);
    words +=
        (words.empty() ? "" : ", ") + (m_faults == 1 ? Tr("1 error") : Filled(Tr("%1 errors"), {faults}));
  }
  return words;
}

std::string HeardLines::Details(const Moment& now) const {
  std::string lines;
  for (const Kind& kind : m_talkers) {
    lines += (lines.empty() ? "" : "\n") + kind.Name + ": " +
             PaceText(kind.Count, kind.First, kind.Last, now.Steady);
  }
  return lines;
}

std::set<std::size_t> HeardLines::Different() const {
  std::set<std::size_t> hashes;
  for (const Remembered& each : m_remembered) {
    hashes.insert(each.Hash);
  }
  return hashes;
}

bool BringSame(const std::set<std::size_t>& some, const std::set<std::size_t>& others) {
  constexpr std::size_t kLeast = 3;
  const auto common = static_cast<std::size_t>(std::count_if(
      some.begin(), some.end(), [&others](std::size_t each) { return others.count(each) > 0; }));
  return common >= kLeast && 5 * common >= 4 * std::min(some.size(), others.size());
}

}  // namespace veerwatch
