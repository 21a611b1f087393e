// An origin for values of tests that do not ask where they came from.
#pragma once

#include "instruments/Reading.h"

namespace veerwatch {

inline constexpr Origin kOrigin{{'M', 'W', 'V'}, {'I', 'I'}, 5, {1000, 2000}};

}  // namespace veerwatch
