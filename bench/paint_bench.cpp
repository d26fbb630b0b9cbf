// The work of the paint window in the core: a dot, a stroke's event, a zoom, a snapshot.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>

#include "bench/real_data.h"
#include "forms/picture_box.h"
#include "ui/headless/driver.h"

namespace {

using lectern::forms::Bitmap;

void DotOfWidth25(benchmark::State& state) {
  Bitmap bitmap(1280, 960);
  int x = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        bitmap.Dot(100 + x++ % 1000, 480, 25, 0xFFFF00, lectern::forms::RasterOperation::kMaskNotPen));
  }
}
BENCHMARK(DotOfWidth25)->Unit(benchmark::kMicrosecond);

void ZoomTo1280By960(benchmark::State& state) {
  const Bitmap source(640, 480, 0xFF336699);
  Bitmap target(1280, 960);
  for (auto _ : state) benchmark::DoNotOptimize(target.Stretch(source, 0, 0, 1280, 960));
}
BENCHMARK(ZoomTo1280By960)->Unit(benchmark::kMillisecond);

// The paint window on a picture of 640 by 480 pixels.
class PaintWindow {
 public:
  PaintWindow() : driver_(DataFolder(), [](const std::string&) {}) {
    driver_.Execute("click! Form1.Command32");
    driver_.Execute("set Form4.picbox.Width = 9600");
    driver_.Execute("set Form4.picbox.Height = 7200");
  }
  void Execute(const std::string& command) { driver_.Execute(command); }

 private:
  static std::string DataFolder() { return lectern::bench::DataFolder(); }
  lectern::headless::Driver driver_;
};

// By so many levels and back: one is 1280 by 960 pixels, two are 2560 by 1920.
void ZoomInAndOut(benchmark::State& state) {
  PaintWindow window;
  window.Execute("set Form4.picbox.AutoRedraw = True");
  for (auto _ : state) {
    for (std::int64_t level = 0; level < state.range(0); ++level) window.Execute("click! Form4.cmdm(0)");
    for (std::int64_t level = 0; level < state.range(0); ++level) window.Execute("click! Form4.cmdm(1)");
  }
}
BENCHMARK(ZoomInAndOut)->ArgName("levels")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void Snapshot(benchmark::State& state) {
  PaintWindow window;
  window.Execute("set Form4.txt5.Text = \"1\"");  // no scratch file
  for (auto _ : state) window.Execute("mousedown! Form4.clrboxs(0) 1 0 5 5");
}
BENCHMARK(Snapshot)->Unit(benchmark::kMillisecond);

}  // namespace
