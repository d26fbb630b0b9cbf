// Loading the last chapter of the longest book, beside a plain read of the book's file.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "bench/plain_read.h"
#include "bench/real_data.h"
#include "forms/text_controls.h"
#include "ui/headless/driver.h"

namespace {

using lectern::bench::DataFolder;

void PlainReadOfPsalms(benchmark::State& state) {
  const lectern::bench::PlainRead read;
  for (auto _ : state) read.One(DataFolder() + "/KJV/Psalms.txt");
}
BENCHMARK(PlainReadOfPsalms);

void LoadPsalm150(benchmark::State& state) {
  lectern::headless::Driver driver(DataFolder(), [](const std::string&) {});
  driver.Execute("click Form1.lst \"Psalms\"");
  lectern::forms::Window& form = *driver.Program().Touch("Form1");
  auto& lblc = dynamic_cast<lectern::forms::Label&>(*form.Find("lblc"));
  for (auto _ : state) {
    lblc.Caption = "";
    lblc.Caption = "150";
  }
}
BENCHMARK(LoadPsalm150);

}  // namespace
