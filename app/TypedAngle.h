// What becomes of a bearing or an angle that somebody has typed. Used by the main window.
#pragma once

#include <string_view>

namespace veerwatch {

struct TypedAngle {
  enum class Fate {
    Take,     ///< it holds
    Restore,  ///< nothing was typed that could hold: what held before is shown again
    Ask,      ///< it is far from what holds, and the pilot would follow
  };
  Fate What = Fate::Take;
  float Value = 0.0F;  ///< what was typed [deg, any turn]; with Restore what held before

  bool operator==(const TypedAngle&) const = default;
};

/// What has to be known of the moment.
struct TypedAngleCare {
  bool Careful = false;      ///< "Careful Entry"
  float MaxSteerTo = 10.0F;  ///< largest change without a question [deg]
  bool Sends = false;        ///< the pilot is being sent to
};

/// Reads the leading number of `text`, typed over `present` [deg]. Without care a text that begins with no
/// number is 0; with it an empty one, or one without a number, restores, and a change beyond the limit asks.
TypedAngle ReadTypedAngle(std::string_view text, float present, const TypedAngleCare& care);

}  // namespace veerwatch
