// Writes each received line, with its time in front, to a file that the replay and "file://" read:
//
//     2026-11-21T09:15:02.123Z $IIMWV,045.0,R,10.5,N,A*hh
//     2 2026-11-21T09:15:02.123Z $IIMWV,045.0,R,10.5,N,A*hh
//     |
//     which of the port's endpoints it came from, where there are several
//
// Looks on at a helm. A new file begins at each midnight UTC and when one has become large: with its day, and
// a number where that is taken, in front of the ending, so that no file but the first one replaces another.
// What is written reaches the disk each second. A disk that takes no more ends the recording.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

#include "helm/HelmObserver.h"
#include "platform/Clock.h"

namespace veerwatch {

class InputRecorder final : private HelmObserver {
 public:
  static constexpr std::size_t kLargestFile = 50'000'000;  ///< [bytes]
  static constexpr std::int64_t kFlushTime = 1000;         ///< [ms]

  /// Whom to tell when the recording has ended by itself, and why, for the user.
  using Ended = std::function<void(const std::string& why)>;

  /// Which of several endpoints the line came from that is being told, from 1 on; 0 for the only one.
  using From = std::function<int()>;

  /// `observers` and `clock` outlive this. `largest` is the size at which a new file begins [bytes].
  InputRecorder(HelmObservers& observers, const Clock& clock, From from, Ended ended,
                std::size_t largest = kLargestFile);
  /// Ends the recording.
  ~InputRecorder() override;

  /// Begins to record into `file`, which it replaces; a recording that runs ends before. "" or why nothing is
  /// recorded now, for the user.
  std::string Start(const std::filesystem::path& file);
  /// Ends the recording. What was received is in the file; "" or why it is not, for the user.
  std::string Stop();
  bool Running() const { return m_stream.is_open(); }
  /// The file that is written now.
  const std::filesystem::path& File() const { return m_file; }

  /// The file's name on the day of that wall time: "dir/log.nmea" as "dir/log-2026-11-21.nmea", and from the
  /// second on as "dir/log-2026-11-21-2.nmea".
  static std::filesystem::path NameOn(const std::filesystem::path& first, std::int64_t wall, int number);

 private:
  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override;
  void OnTick() override { Flush(); }
  void OnInputState(InputState /*state*/) override { Flush(); }

  /// Opens a file; "" or why that cannot be.
  std::string Open(const std::filesystem::path& file, std::int64_t wall);
  /// Goes on in the next file.
  void Turn(std::int64_t wall);
  void Flush();
  void End(const std::string& why);

  const Clock& m_clock;
  From m_from;
  Ended m_ended;
  std::size_t m_largest;
  std::filesystem::path m_first;  ///< as it was asked for
  std::filesystem::path m_file;
  std::ofstream m_stream;
  std::size_t m_size = 0;      ///< of the file [bytes]
  std::int64_t m_day = 0;      ///< of the file, since 1970
  std::int64_t m_flushed = 0;  ///< when [ms of the steady clock]
  bool m_fresh = false;        ///< something has not been flushed
  std::string m_text;          ///< of a line; keeps its room
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
