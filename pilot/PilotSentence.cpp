#include "pilot/PilotSentence.h"

#include "nmea/Checksum.h"
#include "platform/NumberText.h"

namespace veerwatch {

void BuildPilotSentence(float bearing, std::string& sentence) {
  const std::string text = FormatNumber(bearing, "000.0");
  sentence.assign("$ECAPB,A,A,0.00,R,N,V,V,").append(text).append(",M,1,");
  sentence.append(text).append(",M,").append(text).append(",M");
  const std::string checksum = PilotChecksum(sentence);
  sentence.append("*").append(checksum);
}

std::string PilotChecksum(const std::string& sentence) {
  const auto digits = ChecksumText(Checksum(std::string_view(sentence).substr(1)));
  return {digits[0], digits[1]};
}

}  // namespace veerwatch
