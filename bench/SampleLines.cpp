#include "bench/SampleLines.h"

#include <cmath>
#include <initializer_list>
#include <string_view>

#include "nmea/Checksum.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

std::string Sentence(const std::string& body) {
  const auto digits = ChecksumText(Checksum(body));
  return std::string(1, '$').append(body).append(1, '*').append(digits.data(), digits.size()).append("\r\n");
}

std::string Joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) {
    text.append(part);
  }
  return text;
}

std::string Text(double value, const char* pattern) {
  return FormatNumber(static_cast<float>(value), pattern);
}

}  // namespace

std::string SampleLines(int lines) {
  std::string text;
  for (int line = 0; line < lines; ++line) {
    const double swing = std::sin(static_cast<double>(line) * 0.01);
    const std::string heading = Text(210.0 + 8.0 * swing, "000.0");
    const std::string speed = Text(6.5 + 0.8 * swing, "0.0");
    const std::string wind = Text(45.0 + 6.0 * swing, "000.0");
    if (line % 2 == 0) {
      text += Sentence(Joined({"IIMWV,", wind, ",R,", Text(14.0 + 2.0 * swing, "0.0"), ",N,A"}));
      continue;
    }
    switch (line / 2 % 6) {
      case 0:
        text += Sentence(Joined({"IIHDG,", heading, ",1.0,E,3.2,W"}));
        break;
      case 1:
        text += Sentence(Joined({"IIVHW,", heading, ",T,", heading, ",M,", speed, ",N,12.0,K"}));
        break;
      case 2:
        text += Sentence(Joined({"GPVTG,", heading, ",T,", heading, ",M,", speed, ",N,12.0,K,A"}));
        break;
      case 3:
        text += Sentence(
            Joined({"GPRMC,123519,A,4807.038,N,01131.000,E,", speed, ",", heading, ",230394,003.2,W"}));
        break;
      case 4:
        text += Sentence("GPRMB,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V");
        break;
      default:
        text += Sentence("IIDBT,036.4,f,011.1,M,006.0,F");
        break;
    }
  }
  return text;
}

std::string WindLine() { return Sentence("IIMWV,047.3,R,14.2,N,A"); }

}  // namespace veerwatch
