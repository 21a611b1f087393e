// The words that windows show, in the user's language. English is the source: it stands in the code, once, as
// one literal, and is what is shown while nothing is installed, as by the command line. script/languages
// finds the literals of Tr, TrQ and TrMark and keeps the catalogues in languages/.
//
//     lblNothing->setText(TrQ("All is well"));                        in files of Qt, TrQ of LanguageQt.h
//     return Filled(Tr("No Wind %1 s"), {Whole(seconds)});            a whole sentence with its places
//     constexpr std::array<const char*, 2> kNames{TrMark("Steer"), TrMark("Tack")};
//     ... Tr(kNames[i])                                               marked in the table, translated where
//     shown
//
// Not translated: sentences, names of keys and their values, what files hold, what the command line prints.
// Nothing on the way from a wind sentence to the pilot calls Tr: it takes memory.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace veerwatch {

/// Makes the text of a source, as Qt's translator does; UTF-8 both.
using Translation = std::string (*)(const char* source);

/// Installs what Tr asks from now on; null for English.
void SetTranslation(Translation translation);

/// The text for `source` in the language that is installed; `source` itself while none is or where it has
/// none.
/// "" stays "".
std::string Tr(const char* source);

/// The same for a marked text that is held in another way.
inline std::string Tr(std::string_view source) { return Tr(std::string(source).c_str()); }

/// Marks a literal for the catalogues and hands it back as it is.
constexpr const char* TrMark(const char* source) { return source; }

/// `pattern` with its places "%1" to "%9" filled with the values; a place without a value stays. What a value
/// holds is not looked into.
std::string Filled(std::string_view pattern, std::initializer_list<std::string_view> values);

}  // namespace veerwatch
