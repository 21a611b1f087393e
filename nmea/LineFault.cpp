#include "nmea/LineFault.h"

namespace veerwatch {

std::string_view LineFaultText(LineFault fault) {
  switch (fault) {
    case LineFault::Decode:
      return "Decode Error";
    case LineFault::Sentence:
      return "Sentence Error";
    case LineFault::Checksum:
      return "Checksum Error";
    case LineFault::None:
      break;
  }
  return {};
}

void ListedLine(std::string_view line, LineFault fault, std::string& text) {
  text.assign(line);
  if (fault == LineFault::Sentence || fault == LineFault::Checksum) {
    text.append(" <<").append(LineFaultText(fault)).append(">>");
  }
}

void ListedFault(std::string_view line, LineFault fault, std::string& text) {
  text.assign(LineFaultText(fault)).append(" - ").append(line);
}

}  // namespace veerwatch
