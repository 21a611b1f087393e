#include "app/TypedAngle.h"

#include <cmath>
#include <limits>

#include "platform/Angles.h"
#include "platform/NumberText.h"

namespace veerwatch {

TypedAngle ReadTypedAngle(std::string_view text, float present, const TypedAngleCare& care) {
  if (!care.Careful) {
    return {TypedAngle::Fate::Take, LeadingNumber(text)};
  }
  const float typed = LeadingNumber(text, std::numeric_limits<float>::quiet_NaN());
  if (std::isnan(typed)) {
    return {TypedAngle::Fate::Restore, present};
  }
  const float change = FoldRelative(static_cast<double>(typed) - static_cast<double>(present));
  const bool far = care.Sends && std::fabs(change) > care.MaxSteerTo;
  return {far ? TypedAngle::Fate::Ask : TypedAngle::Fate::Take, typed};
}

}  // namespace veerwatch
