#include "bench/Pass.h"

#include <cmath>
#include <fstream>
#include <stdexcept>

#include "log/LogReader.h"
#include "nmea/LineFramer.h"
#include "nmea/Sentence.h"
#include "nmea/SentenceTable.h"

namespace veerwatch {

namespace {

/// The sum of what a sentence brought.
double Sum(const Readings& readings) {
  double sum = 0.0;
  for (const Reading& reading : readings) {
    sum += std::fabs(static_cast<double>(reading.Value));
  }
  return sum;
}

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
    const SentenceKind* kind = FindSentence(text);
    if (kind == nullptr) {
      ++result.Unsupported;
      return;
    }
    Readings readings(OriginOf(text, 0, Moment()));
    ++(kind->Decode(Fields(text), readings) ? result.Parsed : result.Bad);
    result.Accumulated += Sum(readings);
  };
  InChunks(bytes, [&](std::string_view chunk) { framer.Feed(chunk, line, bad); });
  return result;
}

PathPass::PathPass(const Settings& settings)
    : m_settings(settings),
      m_helm(m_settings, m_nmeaPort, m_pilotPort, m_timer, m_clock, m_random),
      m_told(m_helm.Observers().Join(*this)) {
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

void PathPass::OnNmeaLine(std::string_view line, LineFault fault, bool /*used*/) {
  ++m_result.Lines;
  if (fault != LineFault::None) {
    ++m_result.Bad;
  } else if (FindSentence(line) == nullptr) {
    ++m_result.Unsupported;
  }
}

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
