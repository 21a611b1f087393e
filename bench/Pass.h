// One pass over sentences in memory: to decoded values, or through the whole path to the autopilot sentence.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/MemoryPort.h"
#include "helm/Helm.h"
#include "platform/SystemClock.h"

namespace veerwatch {

/// What a pass found.
struct PassResult {
  std::uint64_t Lines = 0;
  std::uint64_t Parsed = 0;       ///< lines of a decoded type without any error
  std::uint64_t Unsupported = 0;  ///< good lines of another type
  std::uint64_t Bad = 0;          ///< sentence, checksum and decode errors
  double Accumulated = 0.0;       ///< sum of the magnitudes of what was read; of the bearings sent
};

/// Bytes that arrive in one receive event of a pass.
inline constexpr std::size_t kChunk = 4096;

/// Frames `bytes`, checks every checksum and decodes every value that the decoders use.
PassResult DecodePass(std::string_view bytes);

/// A helm in Track mode by `settings`, on ports in memory, that counts what passes.
class PathPass final : private HelmObserver {
 public:
  explicit PathPass(const Settings& settings = Settings());
  /// Lets `bytes` arrive in events of kChunk bytes.
  PassResult Run(std::string_view bytes);
  /// Lets `bytes` arrive in one event.
  void Arrive(std::string_view bytes) { m_nmeaPort.Arrive(bytes); }
  /// Autopilot sentences so far.
  std::uint64_t Sentences() const { return m_sentences; }

 private:
  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override;
  void OnPilotData(std::string_view sentence) override;

  Settings m_settings;
  MemoryPort m_nmeaPort;
  MemoryPort m_pilotPort;
  IdleTimer m_timer;
  SystemClock m_clock;
  SeededRandom m_random{1};
  Helm m_helm;
  HelmObservers::Membership m_told;
  PassResult m_result;
  std::uint64_t m_sentences = 0;
};

/// The bytes of a file with every line end (LF, CR or CR LF) as CR LF; throws std::runtime_error where it
/// cannot be read.
std::string LoadLines(const std::string& file);

}  // namespace veerwatch
