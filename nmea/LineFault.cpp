#include "nmea/LineFault.h"

#include "platform/Language.h"

namespace veerwatch {

std::string_view LineFaultText(LineFault fault) {
  switch (fault) {
    case LineFault::Decode:
      return TrMark("Decode Error");
    case LineFault::Sentence:
      return TrMark("Sentence Error");
    case LineFault::Checksum:
      return TrMark("Checksum Error");
    case LineFault::None:
      break;
  }
  return {};
}

void ListedLine(std::string_view line, LineFault fault, std::string& text) {
  text.assign(line);
  if (fault == LineFault::Sentence || fault == LineFault::Checksum) {
    text.append(" <<").append(Tr(LineFaultText(fault))).append(">>");
  }
}

void ListedFault(std::string_view line, LineFault fault, std::string& text) {
  text.assign(LineFaultText(fault)).append(" - ").append(line);
}

}  // namespace veerwatch
