#include "bench/Pass.h"

#include <cmath>
#include <fstream>
#include <stdexcept>

#include "cli/LogReader.h"
#include "nmea/LineFramer.h"
#include "nmea/Sentence.h"

namespace veerwatch {

namespace {

// The sum of what each decoder read; a value that was not read is 0.

double Sum(const VariationValue& variation) { return std::fabs(static_cast<double>(variation.Degrees)); }
double Sum(const Hdg& hdg) { return static_cast<double>(hdg.Heading) + Sum(hdg.Variation); }
double Sum(const Hvm& hvm) { return Sum(hvm.Variation); }
double Sum(const Mwv& mwv) { return static_cast<double>(mwv.WindAngle) + static_cast<double>(mwv.WindSpeed); }
double Sum(const Rmb& rmb) { return static_cast<double>(rmb.Range) + static_cast<double>(rmb.Bearing); }
double Sum(const Rmc& rmc) {
  return static_cast<double>(rmc.Speed) + static_cast<double>(rmc.Course) + Sum(rmc.Variation);
}
double Sum(const Vhw& vhw) { return static_cast<double>(vhw.Heading) + static_cast<double>(vhw.Speed); }

template <class Take>
void InChunks(std::string_view bytes, Take&& take) {
  for (; !bytes.empty(); bytes.remove_prefix(std::min(kChunk, bytes.size()))) {
    take(bytes.substr(0, kChunk));
  }
}

}  // namespace

PassResult DecodePass(std::string_view bytes) {
  PassResult result;
  LineFramer framer;
  const auto bad = [&result](std::string_view /*line*/) {
    ++result.Lines;
    ++result.Bad;
  };
  const auto line = [&result, &bad](std::string_view text) {
    if (CheckFrame(text) != Frame::Good) {
      bad(text);
      return;
    }
    ++result.Lines;
    const bool known = VisitSentence(SentenceTypeOf(text), text, [&result](const auto& sentence) {
      ++(sentence.Complete() ? result.Parsed : result.Bad);
      result.Accumulated += Sum(sentence);
    });
    result.Unsupported += known ? 0 : 1;
  };
  InChunks(bytes, [&](std::string_view chunk) { framer.Feed(chunk, line, bad); });
  return result;
}

PathPass::PathPass() : m_helm(m_settings, m_nmeaPort, m_pilotPort, m_timer, m_random, *this) {
  m_helm.Modes().TrackSetSetup();
  m_helm.Modes().TrackSetManual();
  m_helm.Modes().TrackSetTrack();
}

PassResult PathPass::Run(std::string_view bytes) {
  m_result = PassResult();
  InChunks(bytes, [this](std::string_view chunk) { Arrive(chunk); });
  m_result.Parsed = m_result.Lines - m_result.Unsupported - m_result.Bad;
  return m_result;
}

void PathPass::OnNmeaData(std::string_view line, bool /*used*/) {
  ++m_result.Lines;
  // The receiver marks a line whose frame is bad; it counts as that alone.
  const bool badFrame = line.ends_with(">>");
  m_result.Unsupported += !badFrame && SentenceTypeOf(line) == SentenceType::Other ? 1U : 0U;
}

void PathPass::OnNmeaError(std::string_view /*text*/) { ++m_result.Bad; }

void PathPass::OnPilotData(std::string_view /*sentence*/) {
  ++m_sentences;
  m_result.Accumulated += static_cast<double>(m_settings.m_fAutoPilot);
}

std::string LoadLines(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  stream.peek();
  if (!stream.is_open() || stream.bad()) {
    throw std::runtime_error("cannot read " + file);
  }
  stream.clear();
  LogReader reader(stream, LineEnds::Any);
  std::string bytes;
  for (std::string line; reader.Next(line);) {
    bytes.append(line).append("\r\n");
  }
  return bytes;
}

}  // namespace veerwatch
