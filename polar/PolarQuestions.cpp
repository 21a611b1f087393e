#include "polar/PolarQuestions.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"
#include "platform/WholeFile.h"
#include "polar/PolarDialect.h"

namespace veerwatch {

namespace {

constexpr const char* kTitle = TrMark("Veerwatch - Polar");
constexpr const char* kScaling = TrMark("AutoPilot - Polar Plot - Speed Factor");
constexpr const char* kSaveAs = TrMark("AutoPilot - Save As");

/// A factor as it is read out: with two decimals, or with as many as it has.
std::string FactorText(float factor) {
  const std::string text = FormatNumber(factor, "0.00");
  return StrictNumber(text) == factor ? text : ShortestText(factor);
}

/// The factor that a typed one was more likely meant to be, if there is one: nobody's boat is more than three
/// times as fast as her polar, but many a factor is thought of in percent.
std::optional<std::string> LikelyFactor(const std::string& typed) {
  constexpr float kMostLikely = 3.0F;
  constexpr double kPercent = 100.0;
  const auto factor = StrictNumber(typed);
  if (!factor || !(*factor > kMostLikely)) {
    return std::nullopt;
  }
  return FactorText(ToSingle(static_cast<double>(*factor) / kPercent));
}

bool HoldsSomething(const std::filesystem::path& file) {
  std::error_code error;
  const auto size = std::filesystem::file_size(file, error);
  // Of what is no plain file nobody knows the size.
  return error ? std::filesystem::exists(file, error) : size > 0;
}

/// A name for the polar that `file` becomes, beside it.
std::string ConvertedName(std::filesystem::path file) {
  const bool polar = file.extension() == ".pol";
  return file.replace_filename(file.stem().string() + (polar ? " converted.pol" : ".pol")).string();
}

}  // namespace

// Numbers and the colour

/// Asks for a number and hands it to `take`. An answer that it does not take leaves everything as it was.
void PolarQuestions::AskNumber(const char* title, const char* prompt, float present,
                               bool (PolarModel::*take)(const std::string&)) {
  m_asks.AskText(Tr(title), Tr(prompt), ShortestText(present), [this, take](const auto& answer) {
    if (answer && !answer->empty() && (m_model.*take)(*answer)) {
      m_changed();
    }
  });
}

void PolarQuestions::AskRange() {
  // Deliberate: "maximun".
  AskNumber(TrMark("Polar Plot - Speed Range"),
            TrMark("Enter the maximun speed (Kts) for the polar plot display."),
            m_model.Settings().SpeedRange, &PolarModel::TakeRange);
}

void PolarQuestions::AskTargetBearing() {
  AskNumber(TrMark("Polar Plot - Target Bearing"), TrMark("Enter the Target Bearing."),
            m_model.Settings().CourseTargetBearing, &PolarModel::TakeBearing);
}

void PolarQuestions::AskMotorSpeed() {
  // Deliberate: "Traget".
  AskNumber(TrMark("Polar Plot - Motor Speed"), TrMark("Enter the Motor Only Speed to Traget/Waypoint."),
            m_model.Settings().BoatMotorSpeed, &PolarModel::TakeMotorSpeed);
}

void PolarQuestions::AskScaling() {
  const auto typed = [this](const std::optional<std::string>& answer) {
    if (!answer) {
      return;
    }
    const auto likely = LikelyFactor(*answer);
    if (!likely) {
      TakeFactor(*answer);
      return;
    }
    m_asks.WarnYesNo(
        Tr(kScaling), Filled(Tr("Did you mean %1?"), {*likely}),
        [this, entered = *answer, meant = *likely](bool yes) { TakeFactor(yes ? meant : entered); });
  };
  m_asks.AskText(
      Tr(kScaling),
      Tr("Enter the scaling factor, used to scale the polar plot speed data.  The scaling factor is normally "
         "set to 1, but can be set to other values to compensate for bad weather or heavy displacement."),
      ShortestText(m_model.Settings().SpeedFactor), typed);
}

void PolarQuestions::TakeFactor(const std::string& factor) {
  if (m_model.TakeFactor(factor)) {
    LoadAndTell(PolarModel::kMain);
    m_changed();
  }
}

void PolarQuestions::AskColor() {
  m_asks.PickColour(m_model.Settings().SpeedColor, [this](std::optional<std::uint32_t> color) {
    if (color) {
      m_model.Color(*color);
      m_changed();
    }
  });
}

// Files

void PolarQuestions::Tell(const PolarLoadResult& result) {
  if (!result.Error.empty()) {
    m_asks.Inform(Tr(kTitle), result.Error);
  }
}

void PolarQuestions::LoadAndTell(int slot) { Tell(m_model.Load(slot)); }

void PolarQuestions::AskOpen(int slot) {
  m_asks.OpenFile(kPolarFilter, m_model.FilePath(slot).string(), [this, slot](const auto& file) {
    if (!file) {
      return;
    }
    const PolarLoadResult result = m_model.Open(slot, *file);
    if (result.Error.empty() || !AskConvert(slot, *file, result.Error)) {
      Tell(result);
    }
    m_changed();
  });
}

/// Offers to convert `file`, which failed to load into `slot` with `error`. False when it is a polar in no
/// known spelling, so that nothing was asked.
bool PolarQuestions::AskConvert(int slot, const std::string& file, const std::string& error) {
  const WholeFile whole = ReadWholeFile(file, kLargestDialect);
  const auto table = std::make_shared<PolarTable>();
  const DialectResult read = PolarReadDialect(*table, PolarModel::kMain, whole.Bytes);
  if (!whole.Error.empty() || !read.Error.empty()) {
    return false;
  }
  const auto convert = [this, slot, table](const std::string& target) {
    if (const auto failure = PolarSave(*table, PolarModel::kMain, target, PolarHeads::Exact)) {
      m_asks.Inform(Tr(kTitle), *failure);
      return;
    }
    Tell(m_model.Open(slot, target));
    m_changed();
  };
  const std::string note = read.Note.empty() ? "" : "\n(" + read.Note + ")";
  m_asks.AskYesNo(Tr(kTitle),
                  error + "\n\n" + Tr("It is a polar in another spelling.") + note + "\n" +
                      Tr("Do you want to convert it into a new file and open that?"),
                  [this, file, convert](bool yes) {
                    if (yes) {
                      AskTarget(ConvertedName(file), convert);
                    }
                  });
  return true;
}

/// Asks where to write a polar, and again before it replaces a file.
void PolarQuestions::AskTarget(const std::string& proposed, Target target) {
  m_asks.SaveFile(kPolarFilter, proposed, [this, target = std::move(target)](const auto& file) {
    if (!file) {
      return;
    }
    if (!HoldsSomething(*file)) {
      target(*file);
      return;
    }
    // Deliberate: no blank in front of "file".
    m_asks.WarnYesNo(Tr(kSaveAs),
                     Filled(Tr("%1file already exists.\nDo you want to replace it?"), {VisibleText(*file)}),
                     [target, chosen = *file](bool yes) {
                       if (yes) {
                         target(chosen);
                       }
                     });
  });
}

void PolarQuestions::SaveAs() {
  AskTarget(m_model.FilePath(PolarModel::kMain).string(), [this](const std::string& file) { SaveTo(file); });
}

void PolarQuestions::SaveTo(const std::string& file) {
  if (const auto failure = m_model.SaveAs(file)) {
    m_asks.Inform(Tr(kTitle), *failure);
    return;
  }
  OfferFactorOne();
  m_changed();
}

/// After a save of a scaled polar: its next load would scale it once more.
void PolarQuestions::OfferFactorOne() {
  const float factor = m_model.Settings().SpeedFactor;
  if (factor == 1.0F) {
    return;
  }
  m_asks.WarnYesNo(
      Tr(kSaveAs),
      Filled(Tr("The file holds the scaled speeds. With the scaling factor of %1 the next start scales them "
                "again.\nSet the factor to 1?"),
             {FactorText(factor)}),
      [this, factor](bool yes) {
        if (yes && m_model.Settings().SpeedFactor == factor) {
          m_model.Factor(1.0F);
          LoadAndTell(PolarModel::kMain);
          m_changed();
        }
      });
}

}  // namespace veerwatch
