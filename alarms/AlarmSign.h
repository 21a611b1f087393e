// The sign of each level, as numbers: no colour alone tells how bad something is.
#pragma once

#include "control/WatchNow.h"
#include "draw/Shapes.h"

namespace veerwatch {

/// The outline of a sign that fills `box`, closed: eight corners for red, three for amber, a circle for a
/// note.
Polyline AlarmSign(Level level, const Box& box);

/// Where the mark in it stands, "!" or "i": lower in the triangle, whose tip has no room.
Box AlarmSignMark(Level level, const Box& box);

/// The mark.
constexpr char AlarmSignLetter(Level level) { return level == Level::Note ? 'i' : '!'; }

}  // namespace veerwatch
