#include "polar/PolarQuestions.h"

#include <system_error>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr const char* kTitle = "Veerwatch - Polar";

void Tell(const PolarLoadResult& result, Dialogs& asks) {
  if (!result.Error.empty()) {
    asks.Inform(kTitle, result.Error);
  }
}

/// Asks for a number and hands it to `take`. An answer that it does not take leaves everything as it was.
bool AskNumber(PolarModel& model, Dialogs& asks, const char* title, const char* prompt, float present,
               bool (PolarModel::*take)(const std::string&)) {
  const auto answer = asks.AskText(title, prompt, ShortestText(present));
  return answer && !answer->empty() && (model.*take)(*answer);
}

bool HoldsSomething(const std::filesystem::path& file) {
  std::error_code error;
  const auto size = std::filesystem::file_size(file, error);
  // Of what is no plain file nobody knows the size.
  return error ? std::filesystem::exists(file, error) : size > 0;
}

}  // namespace

bool AskRange(PolarModel& model, Dialogs& asks) {
  return AskNumber(model, asks, "Polar Plot - Speed Range",
                   "Enter the maximun speed (Kts) for the polar plot display.", model.Settings().SpeedRange,
                   &PolarModel::TakeRange);
}

bool AskScaling(PolarModel& model, Dialogs& asks) {
  const bool taken = AskNumber(
      model, asks, "AutoPilot - Polar Plot - Speed Factor",
      "Enter the scaling factor, used to scale the polar plot speed data.  The scaling factor is normally "
      "set to 1, but can be set to other values to compensate for bad weather or heavy displacement.",
      model.Settings().SpeedFactor, &PolarModel::TakeFactor);
  if (taken) {
    PolarLoadAndTell(model, PolarModel::kMain, asks);
  }
  return taken;
}

bool AskTargetBearing(PolarModel& model, Dialogs& asks) {
  return AskNumber(model, asks, "Polar Plot - Target Bearing", "Enter the Target Bearing.",
                   model.Settings().CourseTargetBearing, &PolarModel::TakeBearing);
}

bool AskMotorSpeed(PolarModel& model, Dialogs& asks) {
  return AskNumber(model, asks, "Polar Plot - Motor Speed", "Enter the Motor Only Speed to Traget/Waypoint.",
                   model.Settings().BoatMotorSpeed, &PolarModel::TakeMotorSpeed);
}

bool AskColor(PolarModel& model, Dialogs& asks) {
  const auto color = asks.PickColour(model.Settings().SpeedColor);
  if (color) {
    model.Color(*color);
  }
  return color.has_value();
}

bool AskOpen(PolarModel& model, int slot, Dialogs& asks) {
  const auto file = asks.OpenFile(kPolarFilter, model.FilePath(slot).string());
  if (!file) {
    return false;
  }
  Tell(model.Open(slot, *file), asks);
  return true;
}

bool PolarSaveAs(PolarModel& model, Dialogs& asks) {
  const auto file = asks.SaveFile(kPolarFilter, model.FilePath(PolarModel::kMain).string());
  if (!file) {
    return false;
  }
  if (HoldsSomething(*file) &&
      !asks.WarnYesNo("AutoPilot - Save As", *file + "file already exists.\nDo you want to replace it?")) {
    return false;
  }
  if (const auto failure = model.SaveAs(*file)) {
    asks.Inform(kTitle, *failure);
    return false;
  }
  return true;
}

void PolarLoadAndTell(PolarModel& model, int slot, Dialogs& asks) { Tell(model.Load(slot), asks); }

}  // namespace veerwatch
