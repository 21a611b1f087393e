#include "pilot/LineLoad.h"

#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

bool LineLoad::Full() const {
  constexpr double kMost = 0.8;
  return Part > kMost;
}

std::optional<LineLoad> LineLoadOf(std::size_t characters, int cadence, const std::optional<double>& winds,
                                   const std::optional<int>& baud) {
  constexpr double kBits = 10.0;  // a character with its start and its stop
  const std::optional<double> times = cadence > 0 ? std::optional(static_cast<double>(cadence)) : winds;
  if (!times || !baud) {
    return std::nullopt;
  }
  return LineLoad{static_cast<double>(characters) * kBits * *times / static_cast<double>(*baud), *baud};
}

std::string LineLoadText(const LineLoad& load) {
  constexpr double kPercent = 100.0;
  return Filled(Tr("Pilot line %1 % full at %2 baud"),
                {FormatNumber(static_cast<float>(load.Part * kPercent), "0"), std::to_string(load.Baud)});
}

}  // namespace veerwatch
