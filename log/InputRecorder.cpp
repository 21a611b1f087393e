#include "log/InputRecorder.h"

#include <cerrno>
#include <chrono>
#include <system_error>
#include <utility>

#include "log/LineTime.h"
#include "platform/Language.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

std::int64_t DayOf(std::int64_t wall) {
  return std::chrono::floor<std::chrono::days>(std::chrono::milliseconds(wall)).count();
}

/// What the system says of the latest failure.
std::string SystemText() {
  return errno != 0 ? std::error_code(errno, std::generic_category()).message() : Tr("it cannot be written");
}

std::string CannotWrite(const std::filesystem::path& file, const std::string& why) {
  return VisibleText(file.string()) + ": " + why;
}

}  // namespace

InputRecorder::InputRecorder(HelmObservers& observers, const Clock& clock, From from, Ended ended,
                             std::size_t largest)
    : m_clock(clock),
      m_from(std::move(from)),
      m_ended(std::move(ended)),
      m_largest(largest),
      m_told(observers.Join(*this)) {}

InputRecorder::~InputRecorder() { Stop(); }

std::filesystem::path InputRecorder::NameOn(const std::filesystem::path& first, std::int64_t wall,
                                            int number) {
  constexpr std::size_t kDateLength = 10;
  std::string time;
  AppendLineTime(wall, time);
  std::filesystem::path name = first.stem();
  name += "-" + time.substr(0, kDateLength);
  if (number > 1) {
    name += "-" + std::to_string(number);
  }
  name += first.extension();
  return first.parent_path() / name;
}

std::string InputRecorder::Start(const std::filesystem::path& file) {
  std::string why = Stop();
  if (why.empty()) {
    why = Open(file, m_clock.Now().Wall);
  }
  if (why.empty()) {
    m_first = file;
  }
  return why;
}

std::string InputRecorder::Open(const std::filesystem::path& file, std::int64_t wall) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  // A pipe would let the window wait for whoever reads it.
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
    return CannotWrite(file, Tr("it is no file"));
  }
  errno = 0;
  m_stream.open(file, std::ios::binary | std::ios::trunc);
  if (!m_stream) {
    std::string why = CannotWrite(file, SystemText());
    m_stream = std::ofstream();
    return why;
  }
  m_file = file;
  m_size = 0;
  m_day = DayOf(wall);
  m_fresh = false;
  m_flushed = m_clock.Now().Steady;
  return {};
}

std::string InputRecorder::Stop() {
  if (!Running()) {
    return {};
  }
  errno = 0;
  m_stream.close();
  std::string why = m_stream ? std::string() : CannotWrite(m_file, SystemText());
  m_stream = std::ofstream();
  return why;
}

void InputRecorder::OnNmeaLine(std::string_view line, LineFault /*fault*/, bool /*used*/) {
  if (!Running()) {
    return;
  }
  const Moment now = m_clock.Now();
  if (DayOf(now.Wall) != m_day || m_size >= m_largest) {
    Turn(now.Wall);
    if (!Running()) {
      return;
    }
  }
  m_text.clear();
  if (const int from = m_from(); from > 0) {
    m_text.append(std::to_string(from)).append(1, ' ');
  }
  AppendLineTime(now.Wall, m_text);
  m_text.append(1, ' ').append(line).append(1, '\n');
  errno = 0;
  m_stream.write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
  m_size += m_text.size();
  m_fresh = true;
  if (!m_stream) {
    End(CannotWrite(m_file, SystemText()));
  } else if (now.Steady - m_flushed >= kFlushTime) {
    Flush();
  }
}

void InputRecorder::Turn(std::int64_t wall) {
  if (const std::string why = Stop(); !why.empty()) {
    m_ended(why);
    return;
  }
  // Also what nobody can look at counts as taken.
  constexpr int kMost = 10000;
  std::error_code error;
  int number = 1;
  while (number < kMost && std::filesystem::symlink_status(NameOn(m_first, wall, number), error).type() !=
                               std::filesystem::file_type::not_found) {
    ++number;
  }
  const std::filesystem::path next = NameOn(m_first, wall, number);
  const std::string why = number < kMost ? Open(next, wall) : CannotWrite(next, Tr("it is there already"));
  if (!why.empty()) {
    m_ended(why);
  }
}

void InputRecorder::Flush() {
  if (!Running() || !m_fresh) {
    return;
  }
  errno = 0;
  m_stream.flush();
  m_fresh = false;
  m_flushed = m_clock.Now().Steady;
  if (!m_stream) {
    End(CannotWrite(m_file, SystemText()));
  }
}

void InputRecorder::End(const std::string& why) {
  m_stream = std::ofstream();
  m_ended(why);
}

}  // namespace veerwatch
