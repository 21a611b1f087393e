#include "polar/PolarQuestions.h"

#include <system_error>

#include "platform/NumberText.h"
#include "platform/VisibleText.h"
#include "platform/WholeFile.h"
#include "polar/PolarDialect.h"

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

/// Asks where to write a polar, and again before it replaces a file.
std::optional<std::string> AskTarget(const std::string& proposed, Dialogs& asks) {
  auto file = asks.SaveFile(kPolarFilter, proposed);
  if (file && HoldsSomething(*file) &&
      !asks.WarnYesNo("AutoPilot - Save As",
                      VisibleText(*file) + "file already exists.\nDo you want to replace it?")) {
    file.reset();
  }
  return file;
}

/// A name for the polar that `file` becomes, beside it.
std::string ConvertedName(std::filesystem::path file) {
  const bool polar = file.extension() == ".pol";
  return file.replace_filename(file.stem().string() + (polar ? " converted.pol" : ".pol")).string();
}

/// Offers to convert `file`, which failed to load into `slot` with `error`. False when it is a polar in no
/// known spelling, so that nothing was asked.
bool AskConvert(PolarModel& model, int slot, const std::string& file, const std::string& error,
                Dialogs& asks) {
  const WholeFile whole = ReadWholeFile(file, kLargestDialect);
  PolarTable table;
  const DialectResult read = PolarReadDialect(table, PolarModel::kMain, whole.Bytes);
  if (!whole.Error.empty() || !read.Error.empty()) {
    return false;
  }
  const std::string note = read.Note.empty() ? "" : "\n(" + read.Note + ")";
  if (!asks.AskYesNo(kTitle, error + "\n\nIt is a polar in another spelling." + note +
                                 "\nDo you want to convert it into a new file and open that?")) {
    return true;
  }
  const auto target = AskTarget(ConvertedName(file), asks);
  if (!target) {
    return true;
  }
  if (const auto failure = PolarSave(table, PolarModel::kMain, *target, PolarHeads::Exact)) {
    asks.Inform(kTitle, *failure);
    return true;
  }
  Tell(model.Open(slot, *target), asks);
  return true;
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
  const PolarLoadResult result = model.Open(slot, *file);
  if (result.Error.empty() || !AskConvert(model, slot, *file, result.Error, asks)) {
    Tell(result, asks);
  }
  return true;
}

bool PolarSaveAs(PolarModel& model, Dialogs& asks) {
  const auto file = AskTarget(model.FilePath(PolarModel::kMain).string(), asks);
  if (!file) {
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
