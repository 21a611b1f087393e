#include "options/LiveLines.h"

#include <algorithm>
#include <utility>

namespace veerwatch {

namespace {

constexpr std::size_t kLongestAddress = 10;
/// Two characters of the talker in front of three of the type.
constexpr std::size_t kAddress = 5;
constexpr std::size_t kTalker = 2;

bool OfAddress(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
}

}  // namespace

std::string_view LiveLineType(std::string_view line) {
  const std::size_t start = line.find_first_of("$!");
  if (start == std::string_view::npos) {
    return {};
  }
  std::string_view address = line.substr(start + 1);
  address = address.substr(0, address.find(','));
  if (address.size() > kLongestAddress || !std::all_of(address.begin(), address.end(), OfAddress)) {
    return {};
  }
  if (address.substr(0, 1) == "P") {
    return address;
  }
  return address.size() == kAddress ? address.substr(kTalker) : std::string_view{};
}

bool LiveLines::NoteType(std::string_view text) {
  const std::string_view type = LiveLineType(text);
  return !type.empty() && m_types.size() < kMostTypes && m_types.emplace(type).second;
}

void LiveLines::Type(std::string_view type) {
  m_type = type;
  for (std::deque<Line>* lines : {&m_lines, &m_waiting}) {
    lines->erase(
        std::remove_if(lines->begin(), lines->end(), [this](const Line& line) { return !Wants(line.Text); }),
        lines->end());
  }
}

void LiveLines::Pause(bool paused) {
  m_paused = paused;
  if (!paused) {
    for (Line& line : m_waiting) {
      Put(m_lines, std::move(line));
    }
    m_waiting.clear();
  }
}

void LiveLines::Clear() {
  m_lines.clear();
  m_waiting.clear();
}

std::size_t LiveLines::Longest() const {
  std::size_t longest = 0;
  for (const Line& line : m_lines) {
    longest = std::max(longest, line.Text.size());
  }
  return longest;
}

void LiveLines::Put(std::deque<Line>& lines, Line line) {
  if (lines.size() >= kMost) {
    lines.pop_front();
  }
  lines.push_back(std::move(line));
}

}  // namespace veerwatch
