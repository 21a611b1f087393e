// Dialogs that nobody answers.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/Dialogs.h"

namespace veerwatch {

class NoWindowDialogs final : public WindowDialogs {
 public:
  void AskYesNo(const std::string&, const std::string&, YesNo) override {}
  void WarnYesNo(const std::string&, const std::string&, YesNo) override {}
  void Inform(const std::string&, const std::string&) override {}
  void AskText(const std::string&, const std::string&, const std::string&, Text) override {}
  void OpenFile(const std::string&, const std::string&, Text) override {}
  void SaveFile(const std::string&, const std::string&, Text) override {}
  void ExportFile(const std::string&, const std::string&, const std::string&, Text) override {}
  void PickColour(std::uint32_t, Colour) override {}
};

class NoDialogs final : public Dialogs {
 public:
  std::unique_ptr<WindowDialogs> Of(QWidget&) override { return std::make_unique<NoWindowDialogs>(); }
  void Inform(const std::string&, const std::string&) override {}
  bool ShowPage(const std::string&) override { return false; }
  void Beep() override {}
  void ToForeground() override {}
  bool IsForeground() const override { return false; }
};

}  // namespace veerwatch
