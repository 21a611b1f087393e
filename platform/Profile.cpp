#include "platform/Profile.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <utility>

#include "platform/AtomicFile.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Only the letters of ASCII have a case, whatever the user's language.
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Text of two bytes a character, as some editors save it.
bool IsWideText(std::string_view content) {
  return content.starts_with("\xFF\xFE") || content.starts_with("\xFE\xFF");
}

/// Name of the section that a line opens, or nothing.
std::optional<std::string_view> SectionName(std::string_view line) {
  if (line.starts_with(kByteOrderMark)) {
    line.remove_prefix(kByteOrderMark.size());
  }
  line = Trim(line);
  const std::size_t end = line.find(']');
  if (line.empty() || line.front() != '[' || end == std::string_view::npos) {
    return std::nullopt;
  }
  return Trim(line.substr(1, end - 1));
}

bool IsComment(std::string_view line) {
  line = Trim(line);
  return !line.empty() && (line.front() == ';' || line.front() == '#');
}

std::string_view Unquoted(std::string_view value) {
  if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front()) {
    return value.substr(1, value.size() - 2);
  }
  return value;
}

/// A value as it can be read again: quoted where blanks or quotes at its ends would be lost.
std::string Written(std::string_view value) {
  std::string text(value);
  const auto isControl = [](unsigned char c) { return c < ' '; };
  std::replace_if(text.begin(), text.end(), isControl, ' ');
  const bool quote = Trim(text) != text || Unquoted(text) != text;
  if (quote) {
    text.insert(text.begin(), '"');
    text.push_back('"');
  }
  return text;
}

/// Every byte of a file, or nothing when any of them cannot be read.
std::optional<std::string> ReadWhole(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) {
    return std::nullopt;
  }
  std::string bytes;
  constexpr std::size_t kChunk = 4096;
  while (stream.good() && bytes.size() <= Profile::kLargestFile) {
    const std::size_t held = bytes.size();
    bytes.resize(held + kChunk);
    stream.read(bytes.data() + held, static_cast<std::streamsize>(kChunk));
    bytes.resize(held + static_cast<std::size_t>(stream.gcount()));
  }
  return stream.bad() || bytes.size() > Profile::kLargestFile ? std::nullopt
                                                              : std::optional(std::move(bytes));
}

}  // namespace

bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Lower(x) == Lower(y); });
}

Profile::LoadResult Profile::Load(const std::filesystem::path& file) {
  *this = Profile();
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    return LoadResult::Missing;
  }
  if (!std::filesystem::is_regular_file(status) || std::filesystem::file_size(file, error) > kLargestFile ||
      error) {
    return LoadResult::Unreadable;
  }
  const std::optional<std::string> bytes = ReadWhole(file);
  if (!bytes) {
    return LoadResult::Unreadable;
  }
  const std::string& content = *bytes;
  if (IsWideText(content)) {
    return LoadResult::Unreadable;
  }
  for (std::size_t at = 0; at < content.size();) {
    const std::size_t end = std::min(content.find_first_of("\r\n", at), content.size());
    const std::size_t endSize = content.compare(end, 2, "\r\n") == 0 ? 2 : (end < content.size() ? 1 : 0);
    m_lines.push_back({content.substr(at, end - at), content.substr(end, endSize)});
    at = end + endSize;
  }
  if (!m_lines.empty() && !m_lines.front().End.empty()) {
    m_lineEnd = m_lines.front().End;
  }
  return LoadResult::Read;
}

std::optional<std::size_t> Profile::FindSection(std::string_view section) const {
  for (std::size_t line = 0; line < m_lines.size(); ++line) {
    const auto name = SectionName(m_lines[line].Text);
    if (name && SameName(*name, section)) {
      return line;
    }
  }
  return std::nullopt;
}

std::size_t Profile::SectionEnd(std::size_t sectionLine) const {
  std::size_t line = sectionLine + 1;
  while (line < m_lines.size() && !SectionName(m_lines[line].Text)) {
    ++line;
  }
  return line;
}

std::optional<std::size_t> Profile::FindKey(std::size_t sectionLine, std::string_view key) const {
  const std::size_t end = SectionEnd(sectionLine);
  for (std::size_t line = sectionLine + 1; line < end; ++line) {
    const std::string_view text = m_lines[line].Text;
    const std::size_t equals = text.find('=');
    if (equals != std::string_view::npos && !IsComment(text) && SameName(Trim(text.substr(0, equals)), key)) {
      return line;
    }
  }
  return std::nullopt;
}

std::string Profile::Text(std::string_view section, std::string_view key) const {
  const auto sectionLine = FindSection(section);
  const auto line = sectionLine ? FindKey(*sectionLine, key) : std::nullopt;
  if (!line) {
    return {};
  }
  const std::string_view text = m_lines[*line].Text;
  return std::string(Unquoted(Trim(text.substr(text.find('=') + 1))));
}

std::vector<std::string> Profile::Keys(std::string_view section) const {
  std::vector<std::string> keys;
  const auto sectionLine = FindSection(section);
  const std::size_t end = sectionLine ? SectionEnd(*sectionLine) : 0;
  for (std::size_t line = sectionLine ? *sectionLine + 1 : 0; line < end; ++line) {
    const std::string_view text = m_lines[line].Text;
    const std::size_t equals = text.find('=');
    if (equals != std::string_view::npos && !IsComment(text)) {
      keys.emplace_back(Trim(text.substr(0, equals)));
    }
  }
  return keys;
}

std::string Profile::Counted(std::string_view section, std::string_view key) const {
  return Text(section, key).substr(0, kValueLength);
}

void Profile::ProfileGet(std::string_view section, std::string_view key, bool& value) const {
  const std::string text = Counted(section, key);
  if (SameName(text, "True")) {
    value = true;
  } else if (SameName(text, "False")) {
    value = false;
  } else if (const auto number = StrictNumber(text)) {
    value = *number != 0.0F;
  }
}

void Profile::ProfileGet(std::string_view section, std::string_view key, std::int16_t& value,
                         std::int16_t least, std::int16_t most) const {
  const auto number = StrictDouble(Counted(section, key));
  if (!number) {
    return;
  }
  const double floor = std::floor(*number);
  const double above = *number - floor;
  const bool up = above > 0.5 || (above == 0.5 && std::fmod(floor, 2.0) != 0.0);
  const double whole = up ? floor + 1.0 : floor;
  if (whole >= static_cast<double>(least) && whole <= static_cast<double>(most)) {
    value = static_cast<std::int16_t>(whole);
  }
}

void Profile::ProfileGet(std::string_view section, std::string_view key, float& value) const {
  if (const auto number = StrictNumber(Counted(section, key))) {
    value = *number;
  }
}

void Profile::ProfileGet(std::string_view section, std::string_view key, std::string& value) const {
  const std::string text = Counted(section, key);
  if (!text.empty()) {
    value = text;
  }
}

void Profile::ProfileSet(std::string_view section, std::string_view key, bool value) {
  ProfileSet(section, key, std::string_view(value ? "True" : "False"));
}

void Profile::ProfileSet(std::string_view section, std::string_view key, std::int16_t value) {
  ProfileSet(section, key, std::string_view(std::to_string(value)));
}

void Profile::ProfileSet(std::string_view section, std::string_view key, float value) {
  if (std::isfinite(value)) {
    ProfileSet(section, key, std::string_view(ShortestText(value)));
  }
}

void Profile::ProfileSet(std::string_view section, std::string_view key, std::string_view value) {
  const std::string written = Written(value);
  const std::string keyLine = std::string(key).append(1, '=').append(written);
  const auto endLine = [this](std::size_t line) {
    if (m_lines[line].End.empty()) {
      m_lines[line].End = m_lineEnd;
    }
  };
  const auto sectionLine = FindSection(section);
  if (!sectionLine) {
    if (!m_lines.empty()) {
      endLine(m_lines.size() - 1);
      if (!Trim(m_lines.back().Text).empty()) {
        m_lines.push_back({"", m_lineEnd});
      }
    }
    m_lines.push_back({std::string(1, '[').append(section).append(1, ']'), m_lineEnd});
    m_lines.push_back({keyLine, m_lineEnd});
    return;
  }
  if (const auto line = FindKey(*sectionLine, key)) {
    std::string& text = m_lines[*line].Text;
    const std::size_t start = text.find('=') + 1;
    if (Trim(std::string_view(text).substr(start)) != written) {
      text.replace(start, std::string::npos, written);
    }
    return;
  }
  std::size_t line = SectionEnd(*sectionLine);
  while (line > *sectionLine + 1 && Trim(m_lines[line - 1].Text).empty()) {
    --line;
  }
  endLine(line - 1);
  m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(line),
                 {std::string(key) + "=" + written, m_lineEnd});
}

std::string Profile::Content() const {
  std::string content;
  for (const Line& line : m_lines) {
    content.append(line.Text).append(line.End);
  }
  return content;
}

std::optional<std::string> Profile::Commit(const std::filesystem::path& file) const {
  const std::string content = Content();
  if (content.size() > kLargestFile) {
    return Filled(Tr("cannot write %1: it would be larger than %2 bytes, and not read again"),
                  {file.string(), std::to_string(kLargestFile)});
  }
  std::error_code error;
  Profile present;
  if (std::filesystem::is_regular_file(file, error) && present.Load(file) == LoadResult::Unreadable) {
    const std::filesystem::path target = LinkTarget(file, error);
    std::filesystem::path aside = target;
    do {
      aside += ".unreadable";
    } while (std::filesystem::exists(std::filesystem::symlink_status(aside, error)));
    std::filesystem::rename(target, aside, error);
    if (error) {
      return Filled(Tr("cannot put %1 aside: %2"), {VisibleText(file.string()), error.message()});
    }
  }
  return WriteAtomically(file, content);
}

}  // namespace veerwatch
