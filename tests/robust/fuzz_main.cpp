// Runs a fuzz target for a bounded time where no coverage-guided fuzzer is at hand: texts put together from
// the pieces that the target names, and changed by chance. The seed is fixed, so that a fault comes again;
// an argument takes another number of runs, a second one another seed, a third one a file that keeps the
// input in hand; the name of such a file alone gives that input again. An input that takes a minute of the
// processor's time hangs, and ends the run. Built with a fuzzer of its own, the target alone is enough.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <sys/resource.h>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern const std::vector<std::string> kPieces;
extern const std::size_t kHead;  // bytes of mere chance in front of the pieces

namespace {

void Take(const std::string& input) {
  constexpr rlim_t kLongest = 60;  // seconds
  rusage used{};
  ::getrusage(RUSAGE_SELF, &used);
  const auto until = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + kLongest;
  const rlimit limit{until, RLIM_INFINITY};
  ::setrlimit(RLIMIT_CPU, &limit);
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 2 && std::filesystem::exists(arguments[1])) {
    std::ifstream file(arguments[1], std::ios::binary);
    Take({std::istreambuf_iterator<char>(file), {}});
    return 0;
  }
  const int runs = count > 1 ? std::atoi(arguments[1]) : 20000;
  std::mt19937 random(count > 2 ? static_cast<unsigned>(std::atoi(arguments[2])) : 1U);
  const auto below = [&random](std::size_t limit) { return static_cast<std::size_t>(random()) % limit; };
  for (int run = 0; run < runs; ++run) {
    std::string input;
    while (input.size() < kHead) input.push_back(static_cast<char>(below(256)));
    for (std::size_t pieces = below(40); pieces > 0; --pieces) {
      if (below(8) == 0) {
        input.push_back(static_cast<char>(below(256)));
      } else {
        input += kPieces[below(kPieces.size())];
      }
    }
    for (std::size_t changes = below(4); changes > 0 && !input.empty(); --changes) {
      input[below(input.size())] = static_cast<char>(below(256));
    }
    if (count > 3) std::ofstream(arguments[3], std::ios::binary) << input;
    Take(input);
  }
  std::cout << runs << " inputs taken\n";
  return 0;
}
