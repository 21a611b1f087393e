// When settings that were changed are saved while the program runs: ten seconds after the change, so that one
// that is being tried out is written once. Standard library only.
#pragma once

#include <string>
#include <utility>

namespace veerwatch {

class SaveWatch {
 public:
  /// Time from a change to the saving [s].
  static constexpr int kDelay = 10;

  /// `content` is what the profile holds now.
  void Saved(std::string content) {
    m_saved = std::move(content);
    m_age = 0;
  }

  /// A second has passed, and the profile would be `content`: true when it is time to save it.
  bool Tick(const std::string& content) {
    m_age = content == m_saved ? 0 : m_age + 1;
    return m_age > kDelay;
  }

 private:
  std::string m_saved;
  int m_age = 0;  ///< since the change was seen first [s]
};

}  // namespace veerwatch
