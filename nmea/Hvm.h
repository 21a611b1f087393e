// "HVM", magnetic variation.
#pragma once

#include "nmea/Fields.h"
#include "nmea/Variation.h"

namespace veerwatch {

///     $IIHVM,5.0,W*hh
///            1   2
///            |   direction of the variation: E or W
///            magnetic variation [deg, [-180, 180]]
///
/// Source: the sentence of that name that older instruments send.
struct Hvm {
  VariationValue Variation;

  bool Complete() const { return Variation.Direction != '\0'; }
  void AddTo(Readings& readings) const { Variation.AddTo(readings); }
};

Hvm DecodeHvm(const Fields& fields);

}  // namespace veerwatch
