// What the polar window asks: its input boxes, its file and colour dialogs and its messages, with their
// texts. Each question stays open while the program goes on; its answer is for the model, and `changed` is
// called once the model has taken it.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/Dialogs.h"
#include "polar/PolarModel.h"

namespace veerwatch {

/// The filter of every dialog for polar files.
inline constexpr const char* kPolarFilter = "(*.pol)|*.pol";

class PolarQuestions {
 public:
  /// Model and dialogs are there as long as answers come.
  PolarQuestions(PolarModel& model, WindowDialogs& asks, std::function<void()> changed)
      : m_model(model), m_asks(asks), m_changed(std::move(changed)) {}

  void AskRange();
  /// A new factor loads the own polar again. One above 3 asks whether its hundredth was meant.
  void AskScaling();
  void AskTargetBearing();
  void AskMotorSpeed();
  void AskColor();

  /// Opens a file into a slot and tells what was wrong with it. One that is a polar in another spelling it
  /// offers to convert into a new file and to open that.
  void AskOpen(int slot);

  /// Saves the own polar under a new name, with a question before an old file is replaced. After a scaled one
  /// it says so and offers the factor 1, with which the polar is loaded again.
  void SaveAs();

  /// Loads a slot and tells what was wrong with it.
  void LoadAndTell(int slot);

 private:
  using Target = std::function<void(const std::string& file)>;

  void AskNumber(const char* title, const char* prompt, float present,
                 bool (PolarModel::*take)(const std::string&));
  void TakeFactor(const std::string& factor);
  void AskTarget(const std::string& proposed, Target target);
  void SaveTo(const std::string& file);
  void OfferFactorOne();
  bool AskConvert(int slot, const std::string& file, const std::string& error);
  void Tell(const PolarLoadResult& result);

  PolarModel& m_model;
  WindowDialogs& m_asks;
  std::function<void()> m_changed;
};

}  // namespace veerwatch
