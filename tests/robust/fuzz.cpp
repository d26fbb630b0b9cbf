// Runs a fuzz target for a bounded time: inputs are put together from the target's pieces and changed at
// random. The seed is fixed, so that a fault comes again. An input that takes a minute of the processor's
// time hangs, and ends the run.
//
// usage: fuzz TARGET STORIES [RUNS [SEED [KEEP]]]   KEEP: a file that holds the input in hand
//        fuzz TARGET STORIES FILE                   gives that input once more
#include "tests/robust/fuzz.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <sys/resource.h>

#include "tests/kit/temporary_folder.h"

namespace lectern::fuzz {

std::vector<std::string> Pieces(std::string_view text) {
  std::vector<std::string> pieces;
  for (std::size_t end = 0; end != text.npos; text.remove_prefix(end == text.npos ? 0 : end + 1)) {
    end = text.find('~');
    pieces.emplace_back(text.substr(0, end));
  }
  return pieces;
}

void Require(bool holds) {
  if (!holds) std::abort();
}

namespace {

void TakeWithinAMinute(const Target& target, const std::string& input) {
  constexpr rlim_t kLongest = 60;  // seconds
  rusage used{};
  ::getrusage(RUSAGE_SELF, &used);
  const auto until = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + kLongest;
  const rlimit limit{until, RLIM_INFINITY};
  ::setrlimit(RLIMIT_CPU, &limit);
  target.take(input);
}

std::string RandomInput(const Target& target, std::mt19937& random) {
  const auto below = [&random](std::size_t limit) { return static_cast<std::size_t>(random()) % limit; };
  std::string input;
  while (input.size() < target.head) input.push_back(static_cast<char>(below(256)));
  for (std::size_t pieces = below(40); pieces > 0; --pieces) {
    if (below(8) == 0) {
      input.push_back(static_cast<char>(below(256)));
    } else {
      input += target.pieces[below(target.pieces.size())];
    }
  }
  for (std::size_t changes = below(4); changes > 0 && !input.empty(); --changes) {
    input[below(input.size())] = static_cast<char>(below(256));
  }
  return input;
}

int Run(const std::vector<std::string>& arguments) {
  std::vector<Target> targets = Readers();
  targets.push_back(DataFiles());
  targets.push_back(Scripts(arguments[1]));
  const auto target = std::find_if(targets.begin(), targets.end(),
                                   [&](const Target& known) { return known.name == arguments[0]; });
  if (target == targets.end()) return 2;
  if (arguments.size() == 3 && std::filesystem::exists(arguments[2])) {
    TakeWithinAMinute(*target, ReadFile(arguments[2]));
    return 0;
  }
  const int runs = arguments.size() > 2 ? std::atoi(arguments[2].c_str()) : target->runs;
  std::mt19937 random(arguments.size() > 3 ? static_cast<unsigned>(std::atoi(arguments[3].c_str())) : 1U);
  for (int run = 0; run < runs; ++run) {
    const std::string input = RandomInput(*target, random);
    if (arguments.size() > 4) WriteFile(arguments[4], input);
    TakeWithinAMinute(*target, input);
  }
  std::cout << runs << " inputs taken\n";
  return 0;
}

}  // namespace
}  // namespace lectern::fuzz

int main(int count, char** arguments) {
  if (count < 3) return 2;
  return lectern::fuzz::Run({arguments + 1, arguments + count});
}
