#include "polar/PolarQuestions.h"

#include <system_error>

#include "instruments/MathLib.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"
#include "platform/WholeFile.h"
#include "polar/PolarDialect.h"

namespace veerwatch {

namespace {

constexpr const char* kTitle = "Veerwatch - Polar";
constexpr const char* kScaling = "AutoPilot - Polar Plot - Speed Factor";
constexpr const char* kSaveAs = "AutoPilot - Save As";

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

/// A factor as it is read out: with two decimals, or with as many as it has.
std::string FactorText(float factor) {
  const std::string text = FormatNumber(factor, "0.00");
  return StrictNumber(text) == factor ? text : ShortestText(factor);
}

/// The factor of an answer, or, when it was asked and agreed, the one that was meant: nobody's boat is more
/// than three times as fast as her polar, but many a factor is thought of in percent.
std::string FactorMeant(const std::string& answer, Dialogs& asks) {
  constexpr float kMostLikely = 3.0F;
  constexpr double kPercent = 100.0;
  const auto factor = StrictNumber(answer);
  if (!factor || !(*factor > kMostLikely)) {
    return answer;
  }
  const std::string likely = FactorText(ToSingle(static_cast<double>(*factor) / kPercent));
  return asks.WarnYesNo(kScaling, "Did you mean " + likely + "?") ? likely : answer;
}

/// After a save of a scaled polar: its next load would scale it once more.
void OfferFactorOne(PolarModel& model, Dialogs& asks) {
  const float factor = model.Settings().SpeedFactor;
  if (factor != 1.0F &&
      asks.WarnYesNo(kSaveAs, "The file holds the scaled speeds. With the scaling factor of " +
                                  FactorText(factor) +
                                  " the next start scales them again.\nSet the factor to 1?")) {
    model.Factor(1.0F);
    PolarLoadAndTell(model, PolarModel::kMain, asks);
  }
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
      !asks.WarnYesNo(kSaveAs, VisibleText(*file) + "file already exists.\nDo you want to replace it?")) {
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
  const auto answer = asks.AskText(
      kScaling,
      "Enter the scaling factor, used to scale the polar plot speed data.  The scaling factor is normally "
      "set to 1, but can be set to other values to compensate for bad weather or heavy displacement.",
      ShortestText(model.Settings().SpeedFactor));
  if (!answer || !model.TakeFactor(FactorMeant(*answer, asks))) {
    return false;
  }
  PolarLoadAndTell(model, PolarModel::kMain, asks);
  return true;
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
  OfferFactorOne(model, asks);
  return true;
}

void PolarLoadAndTell(PolarModel& model, int slot, Dialogs& asks) { Tell(model.Load(slot), asks); }

}  // namespace veerwatch
