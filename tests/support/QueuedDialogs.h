// Answers to the questions of a window, given beforehand; nothing is shown.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"

namespace veerwatch {

class QueuedDialogs final : public Dialogs {
 public:
  struct Question {
    std::string Title;
    std::string Text;
  };

  std::deque<bool> Answers;         ///< answers to the next questions; No behind them
  std::vector<Question> Questions;  ///< what was asked
  int Beeps = 0;
  int Foregrounds = 0;      ///< calls of ToForeground
  bool Foreground = false;  ///< whether the main window is in the foreground

  /// Called from inside every question, for tests of what happens meanwhile.
  std::function<void()> DuringQuestion;

  /// Called from inside every beep.
  std::function<void()> DuringBeep;

  bool AskYesNo(const std::string& title, const std::string& text) override {
    Questions.push_back({title, text});
    if (DuringQuestion) {
      DuringQuestion();
    }
    if (Answers.empty()) {
      return false;
    }
    const bool answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  void Beep() override {
    ++Beeps;
    if (DuringBeep) {
      DuringBeep();
    }
  }
  void ToForeground() override { ++Foregrounds; }
  bool IsForeground() const override { return Foreground; }
};

}  // namespace veerwatch
