// What a number on the command line can be.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "platform/NumberText.h"

namespace veerwatch {

/// A number of things, in digits alone.
inline const CLI::Validator kWholeNumber(
    [](const std::string& text) {
      const bool digits = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
      constexpr std::size_t kMostDigits = 18;
      return digits && text.size() <= kMostDigits ? std::string() : text + " is not a whole number";
    },
    "NUMBER");

/// A number as the program reads it everywhere else; CLI11 alone would also take "nan" and "inf".
inline const CLI::Validator kNumber(
    [](const std::string& text) { return StrictNumber(text) ? std::string() : text + " is not a number"; },
    "NUMBER");

/// Adds an option that takes a number.
template <class Value>
CLI::Option* AddNumber(CLI::App* command, const char* name, Value& value, const char* text,
                       const char* type) {
  return command->add_option(name, value, text)->check(kNumber)->type_name(type);
}

}  // namespace veerwatch
