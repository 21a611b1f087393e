// Dialogs that nobody answers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Dialogs.h"

namespace veerwatch {

class NoDialogs final : public Dialogs {
 public:
  bool AskYesNo(const std::string&, const std::string&) override { return false; }
  bool WarnYesNo(const std::string&, const std::string&) override { return false; }
  void Inform(const std::string&, const std::string&) override {}
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> OpenFile(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> SaveFile(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> ExportFile(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::uint32_t> PickColour(std::uint32_t) override { return std::nullopt; }
  bool ShowPage(const std::string&) override { return false; }
  void Beep() override {}
  void ToForeground() override {}
  bool IsForeground() const override { return false; }
};

}  // namespace veerwatch
