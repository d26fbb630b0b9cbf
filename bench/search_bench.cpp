// A search of the whole text through the panel's own timer, files read anew each time, beside a plain read of
// the 66 files.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "bench/plain_read.h"
#include "bench/real_data.h"
#include "forms/lists.h"
#include "ui/headless/driver.h"

namespace {

using lectern::bench::DataFolder;

void PlainReadOf66Files(benchmark::State& state) {
  const lectern::bench::PlainRead read;
  for (auto _ : state) read.All();
}
BENCHMARK(PlainReadOf66Files)->Unit(benchmark::kMicrosecond);

void Search(benchmark::State& state, const std::string& first, const std::string& second) {
  lectern::headless::Driver driver(DataFolder(), [](const std::string&) {});
  driver.Execute("click Form1.Command16");
  driver.Execute("click Form1.op1");
  driver.Execute("type Form1.txts \"" + first + "\"");
  driver.Execute("type Form1.txts2 \"" + second + "\"");
  for (auto _ : state) {
    driver.Execute("click! Form1.Command22");
    driver.Execute("run");
  }
  const auto* const list =
      dynamic_cast<lectern::forms::ListBox*>(driver.Program().Touch("Form1")->Find("lsts"));
  state.counters["verses"] = list->ListCount();
}
BENCHMARK_CAPTURE(Search, common_the, "the", "")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Search, middling_grace, "grace", "")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Search, rare_zion, "zion", "")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Search, phrase_in_the_beginning, "in the beginning", "")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Search, two_terms_faith_and_hope, "faith", "hope")->Unit(benchmark::kMicrosecond);

}  // namespace
