// A loudspeaker and a program starter that write down what they are told.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/CommandRunner.h"
#include "platform/Sounder.h"

namespace veerwatch {

class FakeSounder final : public Sounder {
 public:
  bool Device = true;                             ///< whether there is an audio device
  std::vector<std::vector<std::int16_t>> Played;  ///< what was played on it

  bool Play(const std::vector<std::int16_t>& samples) override {
    if (Device) {
      Played.push_back(samples);
    }
    return Device;
  }
};

class FakeRunner final : public CommandRunner {
 public:
  struct Started {
    std::string Command;
    std::string Text;
  };
  std::vector<Started> Runs;

  bool Run(const std::string& command, const std::string& text) override {
    Runs.push_back({command, text});
    return true;
  }
};

}  // namespace veerwatch
