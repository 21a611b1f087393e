// What the program has to say beside its status texts, in one line under the mode bar: any part gives a text
// under its kind, and withdraws it when it holds no more.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace veerwatch {

/// Who has something to say; the most important first.
enum class AlarmKind {
  Save,     ///< the settings could not be saved
  Profile,  ///< the profile could not be read
  Source,   ///< a source of data that brings nothing
};

class AlarmCentre {
 public:
  /// What `kind` has to say now, its control characters as pictures; "" when nothing more.
  void Set(AlarmKind kind, const std::string& text);

  /// The user has read the first text: it goes until its kind says something else.
  void Dismiss();

  /// The texts that stand, the most important first.
  std::vector<std::string> Texts() const;

  /// The one line: the first text, and how many more there are. "" for none.
  std::string Line() const;

 private:
  struct Notice {
    std::string Text;
    bool Read = false;
  };
  std::map<AlarmKind, Notice> m_notices;
};

}  // namespace veerwatch
