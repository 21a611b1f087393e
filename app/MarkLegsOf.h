// The way to a mark by the boat's polar, as the course is sailed.
#pragma once

#include <optional>

#include "polar/PolarTable.h"
#include "tack/CourseSail.h"

namespace veerwatch {

/// What CourseTargets finds with slot 0 of `table` in its true wind, whichever the plot shows. Nothing where
/// the polar makes no way to the mark.
std::optional<MarkLegs> MarkLegsOf(const PolarTable& table, const MarkAsk& ask);

}  // namespace veerwatch
