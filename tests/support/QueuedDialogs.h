// Answers to the questions of a window, given beforehand; nothing is shown.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
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
  std::vector<Question> Told;       ///< what was told

  struct FileQuestion {
    std::string Title;
    std::string Filter;
    std::string Proposed;
  };
  std::deque<std::string> Files;  ///< answers to the next questions for a file; cancelled behind them
  std::vector<FileQuestion> FileQuestions;  ///< the files that were asked for
  std::deque<std::uint32_t> Colours;        ///< answers to the next questions for a colour; cancelled behind
  std::vector<std::uint32_t> ColourQuestions;  ///< the colours that were offered

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
  void Inform(const std::string& title, const std::string& text) override { Told.push_back({title, text}); }
  std::optional<std::string> SaveFile(const std::string& title, const std::string& filter,
                                      const std::string& proposed) override {
    FileQuestions.push_back({title, filter, proposed});
    return Next(Files);
  }
  std::optional<std::uint32_t> PickColour(std::uint32_t bgr) override {
    ColourQuestions.push_back(bgr);
    return Next(Colours);
  }
  void Beep() override {
    ++Beeps;
    if (DuringBeep) {
      DuringBeep();
    }
  }
  void ToForeground() override { ++Foregrounds; }
  bool IsForeground() const override { return Foreground; }

 private:
  template <class Answer>
  static std::optional<Answer> Next(std::deque<Answer>& answers) {
    if (answers.empty()) {
      return std::nullopt;
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace veerwatch
