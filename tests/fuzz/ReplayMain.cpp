// Feeds a fuzz target without a fuzzer: every file of the folders on the command line, then a fixed number of
// mutations of them, the same at every run. A file must get the target to one of its landmarks unless its
// name begins with "bad-", and all of them together to each.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "tests/fuzz/Demand.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void Feed(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

/// How often all landmarks were reached.
std::size_t Reached() {
  std::size_t sum = 0;
  for (const veerwatch::Landmark* landmark : veerwatch::Landmark::All()) {
    sum += landmark->Count();
  }
  return sum;
}

/// Whether the seeds got to each landmark; says which ones they did not get to.
bool ReachedAll() {
  bool all = true;
  for (const veerwatch::Landmark* landmark : veerwatch::Landmark::All()) {
    if (landmark->Count() == 0) {
      std::fprintf(stderr, "no seed reaches: %s\n", landmark->Name());
      all = false;
    }
  }
  return all;
}

/// One to eight changes: a byte, a cut, a repeated piece, or a piece of another input.
std::string Mutated(std::string input, const std::vector<std::string>& corpus, std::mt19937& random) {
  const auto below = [&random](std::size_t bound) { return bound == 0 ? 0 : random() % bound; };
  for (std::size_t changes = 1 + below(8); changes > 0; --changes) {
    const std::size_t at = below(input.size() + 1);
    switch (below(4)) {
      case 0:
        if (at < input.size()) {
          input[at] = static_cast<char>(below(256));
        }
        break;
      case 1:
        input.erase(at, below(16));
        break;
      case 2:
        input.insert(at, input.substr(below(input.size() + 1), below(64)));
        break;
      default: {
        const std::string& other = corpus[below(corpus.size())];
        input.insert(at, other.substr(below(other.size() + 1), below(64)));
      }
    }
  }
  return input;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s MUTATIONS FOLDER...\n", argv[0]);
    return 2;
  }
  std::vector<std::filesystem::path> files;
  for (int i = 2; i < argc; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  std::vector<std::string> corpus;
  bool good = true;
  for (const std::filesystem::path& file : files) {
    std::ifstream stream(file, std::ios::binary);
    corpus.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    const std::size_t before = Reached();
    Feed(corpus.back());
    const bool bad = file.filename().string().rfind("bad-", 0) == 0;
    if (!bad && !veerwatch::Landmark::All().empty() && Reached() == before) {
      std::fprintf(stderr, "a seed that gets nowhere: %s\n", file.string().c_str());
      good = false;
    }
  }
  if (corpus.empty()) {
    std::fprintf(stderr, "no inputs\n");
    return 2;
  }
  if (!ReachedAll() || !good) {
    return 1;
  }
  std::mt19937 random(20);
  const int mutations = std::atoi(argv[1]);
  for (int i = 0; i < mutations; ++i) {
    Feed(Mutated(corpus[random() % corpus.size()], corpus, random));
  }
  std::printf("%zu inputs and %d mutations\n", corpus.size(), mutations);
  return 0;
}
