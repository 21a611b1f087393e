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

  struct FileQuestion {
    std::string Title;
    std::string Filter;
    std::string Proposed;
  };
  std::vector<FileQuestion> FileQuestions;  ///< the files to export to that were asked for

  int Beeps = 0;
  int Foregrounds = 0;      ///< calls of ToForeground
  bool Foreground = false;  ///< whether the main window is in the foreground

  /// Called from inside every question, for tests of what happens meanwhile.
  std::function<void()> DuringQuestion;

  /// Called from inside every beep.
  std::function<void()> DuringBeep;

  std::deque<std::optional<std::string>> Texts;  ///< answers of the next input boxes; cancelled behind them
  std::deque<std::optional<std::string>> Files;  ///< answers of the next file dialogs; cancelled behind them
  std::optional<std::uint32_t> Colour;           ///< answer of every colour dialog; nothing cancels

  std::vector<std::string> Pages;  ///< what the browser was to show
  bool ShowsPages = true;          ///< whether there is a browser

  std::vector<Question> Messages;      ///< what was told
  std::vector<Question> Warnings;      ///< what was asked under a warning sign, answered from Answers
  std::vector<std::string> Presets;    ///< what the input boxes started with
  std::vector<Question> FileDialogs;   ///< filter and proposed name
  std::vector<std::uint32_t> Colours;  ///< what the colour dialogs started with

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
  bool WarnYesNo(const std::string& title, const std::string& text) override {
    Warnings.push_back({title, text});
    return Next(Answers, false);
  }
  void Inform(const std::string& title, const std::string& text) override {
    Messages.push_back({title, text});
  }
  std::optional<std::string> AskText(const std::string& title, const std::string& prompt,
                                     const std::string& preset) override {
    Questions.push_back({title, prompt});
    Presets.push_back(preset);
    return Next(Texts, std::nullopt);
  }
  std::optional<std::string> OpenFile(const std::string& filter, const std::string& proposed) override {
    FileDialogs.push_back({filter, proposed});
    return Next(Files, std::nullopt);
  }
  std::optional<std::string> SaveFile(const std::string& filter, const std::string& proposed) override {
    return OpenFile(filter, proposed);
  }
  std::optional<std::string> ExportFile(const std::string& title, const std::string& filter,
                                        const std::string& proposed) override {
    FileQuestions.push_back({title, filter, proposed});
    return Next(Files, std::nullopt);
  }
  std::optional<std::uint32_t> PickColour(std::uint32_t present) override {
    Colours.push_back(present);
    return Colour;
  }
  bool ShowPage(const std::string& file) override {
    Pages.push_back(file);
    return ShowsPages;
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
  template <class Queue, class Otherwise>
  static typename Queue::value_type Next(Queue& answers, Otherwise otherwise) {
    if (answers.empty()) {
      return otherwise;
    }
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace veerwatch
