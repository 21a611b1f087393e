#include "platform/WholeFile.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include "platform/Language.h"

namespace veerwatch {

namespace {

WholeFile Failed(const std::string& why) { return {{}, why.empty() ? Tr("cannot be read") : why}; }

WholeFile TooLarge(std::uintmax_t most) {
  return Failed(Filled(Tr("larger than %1 MiB"), {std::to_string(most >> 20U)}));
}

std::string LastError() { return std::generic_category().message(errno != 0 ? errno : EIO); }

}  // namespace

WholeFile ReadWholeFile(const std::filesystem::path& file, std::uintmax_t most) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::is_regular_file(status)) {
    return Failed(error ? error.message() : Tr("not a file"));
  }
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) {
    return Failed(error.message());
  }
  if (size > most) {
    return TooLarge(most);
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) {
    return Failed(LastError());
  }
  // The size may be wrong: some files of the system tell none, others grow.
  WholeFile whole;
  constexpr std::size_t kChunk = 65536;
  while (stream.good() && whole.Bytes.size() <= most) {
    const std::size_t held = whole.Bytes.size();
    whole.Bytes.resize(held + kChunk);
    stream.read(whole.Bytes.data() + held, static_cast<std::streamsize>(kChunk));
    whole.Bytes.resize(held + static_cast<std::size_t>(stream.gcount()));
  }
  if (stream.bad()) {
    return Failed(LastError());
  }
  return whole.Bytes.size() > most ? TooLarge(most) : whole;
}

}  // namespace veerwatch
