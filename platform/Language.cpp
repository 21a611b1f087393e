#include "platform/Language.h"

#include <cstddef>

namespace veerwatch {

namespace {

// One for the process, as Qt's translators are: a language is not handed through every function with a text.
Translation g_translation = nullptr;

}  // namespace

void SetTranslation(Translation translation) { g_translation = translation; }

std::string Tr(const char* source) {
  if (g_translation == nullptr || *source == '\0') {
    return source;
  }
  return g_translation(source);
}

std::string Filled(std::string_view pattern, std::initializer_list<std::string_view> values) {
  std::string text;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    if (pattern[at] == '%' && at + 1 < pattern.size() && pattern[at + 1] >= '1' && pattern[at + 1] <= '9') {
      const auto place = static_cast<std::size_t>(pattern[at + 1] - '1');
      if (place < values.size()) {
        text += *(values.begin() + place);
        ++at;
        continue;
      }
    }
    text += pattern[at];
  }
  return text;
}

}  // namespace veerwatch
