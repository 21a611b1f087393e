// The settings file in INI form: sections in brackets, a key, an equals sign and a value per line. One
// instance serves all windows. Lines that nobody sets survive letter for letter, in their order and with
// their line ends.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veerwatch {

/// Whether two names are the same but for the case of their letters A to Z, in every locale.
bool SameName(std::string_view a, std::string_view b);

class Profile {
 public:
  /// Characters of a value that ProfileGet looks at.
  static constexpr std::size_t kValueLength = 79;
  /// A larger file [bytes] is not a profile.
  static constexpr std::uintmax_t kLargestFile = 1U << 20U;

  enum class LoadResult { Read, Missing, Unreadable };

  /// Reads the file in place of what was held. A file that is missing or unreadable (no permission, no file,
  /// too large, UTF-16) leaves the profile empty; whatever stands in a readable one is kept as lines.
  LoadResult Load(const std::filesystem::path& file);

  /// The whole value of a key, "" for an empty one or none. Section and key are found whatever the case of
  /// their letters A to Z, in every locale; the first of two equal ones counts. Blanks around and a pair of
  /// quotes around the value are dropped.
  std::string Text(std::string_view section, std::string_view key) const;

  /// The keys of a section in the order of their lines, as they are written.
  std::vector<std::string> Keys(std::string_view section) const;

  // Each reads a key into `value` and leaves it as it is when the key is missing, empty, or its text is
  // nothing of that type. Only the first kValueLength characters count.

  /// "True" and "False" in any case, or a number: 0 is false.
  void ProfileGet(std::string_view section, std::string_view key, bool& value) const;
  /// A number in [least, most], rounded to a whole one, ties to even.
  void ProfileGet(std::string_view section, std::string_view key, std::int16_t& value,
                  std::int16_t least = INT16_MIN, std::int16_t most = INT16_MAX) const;
  /// A number that is finite as a single.
  void ProfileGet(std::string_view section, std::string_view key, float& value) const;
  void ProfileGet(std::string_view section, std::string_view key, std::string& value) const;

  // Each sets a key, in its own line when it is there, else after the last line of its section, else in a
  // new section at the end.

  void ProfileSet(std::string_view section, std::string_view key, bool value);
  void ProfileSet(std::string_view section, std::string_view key, std::int16_t value);
  /// A value that is not finite is not set.
  void ProfileSet(std::string_view section, std::string_view key, float value);
  /// Control characters are written as blanks.
  void ProfileSet(std::string_view section, std::string_view key, std::string_view value);
  void ProfileSet(std::string_view section, std::string_view key, const char* value) {
    ProfileSet(section, key, std::string_view(value));
  }

  /// Writes all of it beside `file` and then puts it in place in one step, so that a crash or a full disk
  /// never costs the old file. A file that lies there and cannot be read is put aside as "<file>.unreadable"
  /// first. More than may be read again is not written. Nothing when done, else what went wrong, as one line.
  std::optional<std::string> Commit(const std::filesystem::path& file) const;

  /// All lines as they would be written.
  std::string Content() const;

 private:
  struct Line {
    std::string Text;
    std::string End;  ///< "\n", "\r\n", "\r" or, for a last line without one, ""
  };

  std::optional<std::size_t> FindSection(std::string_view section) const;
  std::optional<std::size_t> FindKey(std::size_t sectionLine, std::string_view key) const;
  std::size_t SectionEnd(std::size_t sectionLine) const;
  std::string Counted(std::string_view section, std::string_view key) const;

  std::vector<Line> m_lines;
  std::string m_lineEnd = "\n";
};

}  // namespace veerwatch
