// Qt's side of platform/Language: the catalogues, which lie in the program, and texts as QString.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace veerwatch {

/// As Tr, for what Qt shows.
QString TrQ(const char* source);

inline QString TrQ(std::string_view source) { return TrQ(std::string(source).c_str()); }

/// Installs `language`, "en" or "de"; "" for the desktop's. English for a language that has no catalogue.
/// With it come the texts of Qt's own dialogs, where they are installed. What was installed before goes.
/// While there is no window.
void InstallLanguage(std::string_view language);

}  // namespace veerwatch
