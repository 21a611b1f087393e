#include "tests/e2e/Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <sstream>
#include <system_error>
#include <utility>
#include <vector>

namespace veerwatch {

namespace fs = std::filesystem;

namespace {

/// What the system takes as a list of words. `words` outlives it.
std::vector<char*> Pointers(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  for (std::string& word : words) {
    pointers.push_back(word.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

std::string_view NameOf(std::string_view entry) { return entry.substr(0, entry.find('=')); }

}  // namespace

// Child

Child::~Child() {
  if (Runs()) {
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
  }
  for (const int descriptor : {m_input, m_output}) {
    if (descriptor >= 0) {
      ::close(descriptor);
    }
  }
}

bool Child::Start(std::vector<std::string> words, std::vector<std::string> environment) {
  std::signal(SIGPIPE, SIG_IGN);
  std::array<int, 2> input{};
  std::array<int, 2> output{};
  if (::pipe2(input.data(), O_CLOEXEC) != 0 || ::pipe2(output.data(), O_CLOEXEC) != 0) {
    return false;
  }
  m_input = input[1];
  m_output = output[0];
  ::fcntl(m_output, F_SETFL, O_NONBLOCK);

  const std::vector<std::string> set = environment;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const auto same = [entry](const std::string& other) { return NameOf(other) == NameOf(*entry); };
    if (std::none_of(set.begin(), set.end(), same)) {
      environment.emplace_back(*entry);
    }
  }

  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, input[0], STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&files, output[1], STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&files, output[1], STDERR_FILENO);
  const int failure = ::posix_spawnp(&m_pid, words.front().c_str(), &files, nullptr, Pointers(words).data(),
                                     Pointers(environment).data());
  posix_spawn_file_actions_destroy(&files);
  ::close(input[0]);
  ::close(output[1]);
  if (failure != 0) {
    m_pid = -1;
  }
  return failure == 0;
}

void Child::Tell(const std::string& line) {
  const std::string text = line + "\n";
  if (::write(m_input, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    m_said += "(cannot be told: " + line + ")\n";
  }
}

const std::string& Child::Said() {
  std::array<char, 4096> part{};
  for (;;) {
    const ssize_t length = ::read(m_output, part.data(), part.size());
    if (length <= 0) {
      return m_said;
    }
    m_said.append(part.data(), static_cast<std::size_t>(length));
  }
}

void Child::Terminate() const { ::kill(m_pid, SIGTERM); }

void Child::Kill() const { ::kill(m_pid, SIGKILL); }

bool Child::Runs() {
  if (m_pid < 0 || m_end) {
    return false;
  }
  int status = 0;
  if (::waitpid(m_pid, &status, WNOHANG) == m_pid) {
    m_end = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }
  return !m_end;
}

std::optional<int> Child::AwaitEnd() {
  Await([this] {
    Said();  // so that it never waits for somebody who listens
    return !Runs();
  });
  return m_end;
}

// Process

Process::Process(const fs::path& program, const std::string& profile) {
  std::string folder = (fs::temp_directory_path() / "veerwatch-e2e-XXXXXX").string();
  if (::mkdtemp(folder.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), folder);
  }
  m_folder = folder;
  m_program = m_folder / program.filename();
  std::error_code apart;
  fs::create_hard_link(program, m_program, apart);
  if (apart) {
    fs::copy_file(program, m_program);
  }
  std::ofstream(m_folder / "Veerwatch.ini", std::ios::binary) << profile;
}

Process::Process(const Process* other)
    : m_folder(other->m_folder), m_owns(false), m_program(other->m_program) {}

Process::~Process() {
  if (Runs()) {
    Kill();
    AwaitEnd();
  }
  if (m_owns) {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
  }
}

std::string Process::Profile() const {
  std::ostringstream text;
  text << std::ifstream(m_folder / "Veerwatch.ini", std::ios::binary).rdbuf();
  return text.str();
}

bool Process::Start(const std::vector<std::string>& arguments, const Surroundings& around) {
  std::vector<std::string> words = around.Through;
  words.push_back(m_program.string());
  words.insert(words.end(), arguments.begin(), arguments.end());
  return Child::Start(std::move(words), around.Environment);
}

}  // namespace veerwatch
