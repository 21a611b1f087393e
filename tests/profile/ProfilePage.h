// The table of keys in docs/profile.md, from the tables of settings.
#pragma once

#include <string>

namespace veerwatch {

/// The lines of the table, each with its line end.
std::string ProfilePageTable();

}  // namespace veerwatch
