// The frame of the history window as the profile keeps it, in twips, and in pixels.
#pragma once

#include "draw/Shapes.h"
#include "settings/SettingRow.h"

namespace veerwatch {

/// [twips]
struct HistoryPlace {
  float Top = 0.0F;
  float Left = 0.0F;
  float Height = 4000.0F;
  float Width = 4000.0F;
};

/// The frame in whole pixels.
Box FrameOf(const HistoryPlace& place);

/// Takes a frame [px]. A number that still means the same pixel stays as it is.
void NoteFrame(HistoryPlace& place, const Box& frame);

/// The keys of the frame in section "History Window".
const SettingTable<HistoryPlace>& HistoryPlaceTable();

}  // namespace veerwatch
