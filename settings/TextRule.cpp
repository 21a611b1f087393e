#include "settings/TextRule.h"

#include <algorithm>

#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr std::size_t kTalkerLetters = 2;
constexpr std::size_t kPointLetters = 6;

bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool BeginsTalker(std::string_view text) {
  return text.size() <= kTalkerLetters && std::all_of(text.begin(), text.end(), IsCapital) &&
         (text.empty() || text.front() != 'P');
}

bool BeginsPoint(std::string_view text) {
  return text.size() <= kPointLetters &&
         std::all_of(text.begin(), text.end(), [](char c) { return IsCapital(c) || IsDigit(c); });
}

}  // namespace

constinit const TextRule kTalker{
    TrMark("two letters, the first of them no P"), kTalkerLetters, BeginsTalker,
    [](std::string_view text) { return text.size() == kTalkerLetters && BeginsTalker(text); }};
constinit const TextRule kPointName{TrMark("1 to 6 letters and digits"), kPointLetters, BeginsPoint,
                                    [](std::string_view text) { return !text.empty() && BeginsPoint(text); }};

}  // namespace veerwatch
