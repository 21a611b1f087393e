// The frame of the history window as the profile keeps it.
#pragma once

#include "settings/SettingRow.h"

namespace veerwatch {

/// [twips]
struct HistoryPlace {
  float Top = 0.0F;
  float Left = 0.0F;
  float Height = 4000.0F;
  float Width = 4000.0F;
};

/// The keys of the frame in section "History Window".
const SettingTable<HistoryPlace>& HistoryPlaceTable();

}  // namespace veerwatch
