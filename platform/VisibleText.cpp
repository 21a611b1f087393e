#include "platform/VisibleText.h"

#include <cstddef>

namespace veerwatch {

namespace {

constexpr char32_t kPictures = 0x2400;  ///< picture of the control character 0, the others follow
constexpr char32_t kPictureOfEscape = 0x241B;
constexpr char32_t kPictureOfDelete = 0x2421;
constexpr char32_t kReplacement = 0xFFFD;

/// Appends a code point below U+10000 as UTF-8.
void AppendUtf8(std::string& text, char32_t point) {
  if (point < 0x80) {
    text.push_back(static_cast<char>(point));
    return;
  }
  if (point < 0x800) {
    text.push_back(static_cast<char>(0xC0U | (point >> 6U)));
  } else {
    text.push_back(static_cast<char>(0xE0U | (point >> 12U)));
    text.push_back(static_cast<char>(0x80U | ((point >> 6U) & 0x3FU)));
  }
  text.push_back(static_cast<char>(0x80U | (point & 0x3FU)));
}

/// Appends a code point below U+0100, a control character as its picture.
void AppendVisible(std::string& text, char32_t point) {
  if (point < 0x20 && point != U'\t') {
    AppendUtf8(text, kPictures + point);
  } else if (point == 0x7F) {
    AppendUtf8(text, kPictureOfDelete);
  } else if (point >= 0x80 && point < 0xA0) {
    // U+0080 to U+009F mean what an escape character and "@" to "_" mean.
    AppendUtf8(text, kPictureOfEscape);
    AppendUtf8(text, point - 0x40);
  } else {
    AppendUtf8(text, point);
  }
}

/// How many bytes [1, 4] the character takes that `text` begins with; 0 when it begins with no UTF-8.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned first = byte(0);
  if (first < 0x80) {
    return 1;
  }
  const std::size_t length =
      first >= 0xC2 && first < 0xE0
          ? 2
          : (first >= 0xE0 && first < 0xF0 ? 3 : (first >= 0xF0 && first < 0xF5 ? 4 : 0));
  if (length == 0 || length > text.size()) {
    return 0;
  }
  for (std::size_t at = 1; at < length; ++at) {
    if ((byte(at) & 0xC0U) != 0x80U) {
      return 0;
    }
  }
  const unsigned second = byte(1);
  const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  const bool surrogate = first == 0xED && second >= 0xA0;
  const bool beyond = first == 0xF4 && second >= 0x90;
  return overlong || surrogate || beyond ? 0 : length;
}

}  // namespace

std::string VisibleText(std::string_view text) {
  std::string visible;
  visible.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    const auto first = static_cast<unsigned char>(text.front());
    if (length == 0) {
      AppendUtf8(visible, kReplacement);
    } else if (length == 1) {
      AppendVisible(visible, first);
    } else if (length == 2 && first == 0xC2) {
      AppendVisible(visible, static_cast<unsigned char>(text[1]));
    } else {
      visible.append(text.substr(0, length));
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return visible;
}

std::string VisibleBytes(std::string_view bytes) {
  std::string visible;
  visible.reserve(bytes.size());
  for (const char byte : bytes) {
    AppendVisible(visible, static_cast<unsigned char>(byte));
  }
  return visible;
}

}  // namespace veerwatch
