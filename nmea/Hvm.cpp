#include "nmea/Hvm.h"

namespace veerwatch {

Hvm DecodeHvm(const Fields& fields) { return {DecodeVariation(fields, 1)}; }

}  // namespace veerwatch
