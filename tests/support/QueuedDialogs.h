// Answers to the questions of the windows, given beforehand; nothing is shown. A question is answered in the
// call, or, with Later, when the test says so.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Dialogs.h"

namespace veerwatch {

class QueuedDialogs final : public Dialogs {
 public:
  struct Question {
    std::string Title;
    std::string Text;
  };

  std::deque<bool> Answers;         ///< answers to the next questions; No after them
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

  /// Called from inside every beep.
  std::function<void()> DuringBeep;

  std::deque<std::optional<std::string>> Texts;  ///< answers of the next input boxes; cancelled after them
  std::deque<std::optional<std::string>> Files;  ///< answers of the next file dialogs; cancelled after them
  std::deque<std::optional<std::uint32_t>> PickedColours;  ///< the same of the colour dialogs

  std::vector<std::string> Pages;  ///< what the browser was to show
  bool ShowsPages = true;          ///< whether there is a browser

  std::vector<Question> Messages;      ///< what was told
  std::vector<Question> Warnings;      ///< what was asked under a warning sign, answered from Answers
  std::vector<std::string> Presets;    ///< what the input boxes started with
  std::vector<Question> FileDialogs;   ///< filter and proposed name
  std::vector<std::uint32_t> Colours;  ///< what the colour dialogs started with

  /// Leaves each question open until Answer() is called, instead of answering it in the call.
  bool Later = false;
  int Refused = 0;  ///< questions that were not asked, as the window had one open already

  /// Whether a question is open.
  bool Open() const { return !m_open.empty(); }

  /// Answers the open questions with what is given beforehand, as if the user did it now.
  void Answer() {
    // An answer may ask the next question.
    const auto open = std::exchange(m_open, {});
    for (const auto& [window, answer] : open) {
      answer();
    }
  }

  /// The dialogs of one more window.
  std::unique_ptr<WindowDialogs> OfWindow() { return std::make_unique<Asker>(*this); }
  std::unique_ptr<WindowDialogs> Of(QWidget& /*window*/) override { return OfWindow(); }
  void Inform(const std::string& title, const std::string& text) override {
    Messages.push_back({title, text});
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
  class Asker final : public WindowDialogs {
   public:
    explicit Asker(QueuedDialogs& queue) : m_queue(queue) {}
    ~Asker() override { m_queue.m_open.erase(this); }

    void AskYesNo(const std::string& title, const std::string& text, YesNo answer) override {
      Put(m_queue.Questions, {title, text}, m_queue.Answers, std::move(answer));
    }
    void WarnYesNo(const std::string& title, const std::string& text, YesNo answer) override {
      Put(m_queue.Warnings, {title, text}, m_queue.Answers, std::move(answer));
    }
    void Inform(const std::string& title, const std::string& text) override { m_queue.Inform(title, text); }
    void AskText(const std::string& title, const std::string& prompt, const std::string& preset,
                 Text answer) override {
      if (Put(m_queue.Questions, {title, prompt}, m_queue.Texts, std::move(answer))) {
        m_queue.Presets.push_back(preset);
      }
    }
    void OpenFile(const std::string& filter, const std::string& proposed, Text answer) override {
      Put(m_queue.FileDialogs, {filter, proposed}, m_queue.Files, std::move(answer));
    }
    void SaveFile(const std::string& filter, const std::string& proposed, Text answer) override {
      OpenFile(filter, proposed, std::move(answer));
    }
    void ExportFile(const std::string& title, const std::string& filter, const std::string& proposed,
                    Text answer) override {
      Put(m_queue.FileQuestions, {title, filter, proposed}, m_queue.Files, std::move(answer));
    }
    void PickColour(std::uint32_t present, Colour answer) override {
      Put(m_queue.Colours, present, m_queue.PickedColours, std::move(answer));
    }

   private:
    /// Notes a question and answers it, now or later, with the next of `answers`, after the last one with No
    /// or nothing. False when the window has one open already.
    template <class Asked, class Answer, class Answered>
    bool Put(std::vector<Asked>& asked, Asked question, std::deque<Answer>& answers, Answered answered) {
      if (m_queue.m_open.contains(this)) {
        ++m_queue.Refused;
        return false;
      }
      asked.push_back(std::move(question));
      const auto answer = [&answers, answered] {
        Answer next{};
        if (!answers.empty()) {
          next = answers.front();
          answers.pop_front();
        }
        answered(next);
      };
      if (m_queue.Later) {
        m_queue.m_open[this] = answer;
      } else {
        answer();
      }
      return true;
    }

    QueuedDialogs& m_queue;
  };

  std::map<const WindowDialogs*, std::function<void()>> m_open;
};

}  // namespace veerwatch
