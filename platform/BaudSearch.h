// Finds out the rate of a serial line: each usual rate in turn, until two good lines have come within two
// seconds. Whoever reads the device hands over what arrives and passes nothing of it on before.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace veerwatch {

class BaudSearch {
 public:
  using Time = std::int64_t;               // [ms, steady]
  static constexpr Time kTogether = 2000;  ///< between two good lines, at the most
  /// At each rate: long enough for two lines of an instrument that sends one a second.
  static constexpr Time kEach = 3000;
  static constexpr std::size_t kLongestLine = 4096;  ///< [characters]

  /// Whether a line without its end has a good checksum.
  using Good = std::function<bool(std::string_view line)>;

  explicit BaudSearch(Good good) : m_good(std::move(good)) {}

  /// Begins to search, with the rate that was tried or found last.
  void Restart(Time now);

  /// The rate to listen at now [baud].
  int Rate() const;
  bool Found() const { return m_found; }
  /// Characters have come since Restart(), and no rate makes good lines of them so far.
  bool Noise() const { return m_heard && !m_found; }

  /// Takes what has arrived at this rate. Once that settles the rate, `text` keeps what came after the line
  /// that did; else it is empty.
  void Take(std::string& text, Time now);

  /// Time has passed: true when the rate is another one now.
  bool Tick(Time now);

 private:
  void Begin(Time now);
  void Forget();

  Good m_good;
  std::size_t m_rate = 0;  ///< index of kBaudRates
  bool m_found = false;
  bool m_heard = false;
  Time m_begun = 0;                ///< when this rate began
  std::optional<Time> m_lastGood;  ///< when the latest good line came
  std::string m_line;              ///< what has come of the present one
};

}  // namespace veerwatch
