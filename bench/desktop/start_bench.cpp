// How long programs take from their start to the first picture of a text on the screen, and how much memory
// they hold then, seen from outside: start_bench ROUNDS FOLDER PROGRAM... starts the programs in turn in the
// folder, on the display that DISPLAY names, and writes a line for each:
//   PROGRAM <tab> least ms <tab> median ms <tab> resident kB <tab> of these its own kB
//
// The text counts as painted when the middle of the left part of the largest window holds enough dark points.
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
  return {reply, &std::free};
}

struct Size {
  int width = 0;
  int height = 0;
};

class Screen {
 public:
  Screen() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) {
      std::fputs("start_bench: there is no display\n", stderr);
      std::exit(1);
    }
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
  }
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen() { xcb_disconnect(connection_); }

  bool ShowsText() const {
    const auto tree = Owned(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr));
    if (!tree) return false;
    const xcb_window_t* const windows = xcb_query_tree_children(tree.get());
    return std::any_of(windows, windows + xcb_query_tree_children_length(tree.get()),
                       [this](xcb_window_t window) { return HoldsText(window); });
  }

 private:
  Size SizeOfShown(xcb_window_t window) const {
    const auto state = Owned(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window), nullptr));
    if (!state || state->map_state != XCB_MAP_STATE_VIEWABLE) return {};
    const auto place =
        Owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
    return place ? Size{place->width, place->height} : Size{};
  }

  bool HoldsText(xcb_window_t window) const {
    constexpr int kSmallest = 400;  // pixels: what is less is no reading window
    const Size size = SizeOfShown(window);
    if (size.width < kSmallest || size.height < kSmallest) return false;
    const int width = size.width / 2;
    const int height = size.height / 6;
    const auto image = Owned(xcb_get_image_reply(
        connection_,
        xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                      static_cast<std::int16_t>(size.width / 10),
                      static_cast<std::int16_t>(size.height * 2 / 5), static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(height), ~0U),
        nullptr));
    if (!image) return false;
    constexpr int kBytesPerPixel = 4;
    constexpr int kDark = 100;
    constexpr int kEnough = 400;
    // A window that has not painted anything yet is black or white throughout.
    const std::uint8_t* const bytes = xcb_get_image_data(image.get());
    int dark = 0;
    for (int i = 0; i < width * height; ++i) {
      const std::uint8_t* const pixel = bytes + static_cast<std::ptrdiff_t>(i) * kBytesPerPixel;
      if (pixel[0] < kDark && pixel[1] < kDark && pixel[2] < kDark) ++dark;
    }
    return dark > kEnough && dark < width * height / 2;
  }

  xcb_connection_t* connection_;
  xcb_window_t root_ = 0;
};

struct Seen {
  double start = 0;   // ms
  long resident = 0;  // kB
  long own = 0;
};

// The sum of the lines of a process's memory map that begin so, in kB.
long Memory(pid_t process, const std::vector<std::string>& names) {
  std::ifstream map("/proc/" + std::to_string(process) + "/smaps_rollup");
  long sum = 0;
  for (std::string line; std::getline(map, line);) {
    for (const std::string& name : names) {
      if (line.starts_with(name)) sum += std::atol(line.c_str() + name.size());
    }
  }
  return sum;
}

Seen Watch(const Screen& screen, const char* program, const char* folder) {
  constexpr auto kBetweenLooks = std::chrono::microseconds(500);
  constexpr auto kToSettle = std::chrono::milliseconds(600);
  constexpr auto kLongest = std::chrono::seconds(20);
  const auto start = Clock::now();
  const pid_t process = ::fork();
  if (process == 0) {
    if (::chdir(folder) == 0) ::execl(program, program, static_cast<char*>(nullptr));
    std::perror(program);
    std::_Exit(1);
  }
  while (!screen.ShowsText() && Clock::now() - start < kLongest) std::this_thread::sleep_for(kBetweenLooks);
  Seen seen;
  seen.start = Milliseconds(Clock::now() - start).count();
  std::this_thread::sleep_for(kToSettle);
  seen.resident = Memory(process, {"Rss:"});
  seen.own = Memory(process, {"Private_Clean:", "Private_Dirty:"});
  ::kill(process, SIGKILL);
  ::waitpid(process, nullptr, 0);
  while (screen.ShowsText()) std::this_thread::sleep_for(kBetweenLooks);
  return seen;
}

template <class Member>
auto Ordered(const std::vector<Seen>& rounds, Member member) {
  std::vector<std::remove_cvref_t<decltype(rounds[0].*member)>> values;
  values.reserve(rounds.size());
  for (const Seen& seen : rounds) values.push_back(seen.*member);
  std::sort(values.begin(), values.end());
  return values;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 4) {
    std::fputs("start_bench ROUNDS FOLDER PROGRAM...\n", stderr);
    return 2;
  }
  const Screen screen;
  const int rounds = std::atoi(arguments[1]);
  const std::vector<const char*> programs(arguments + 3, arguments + count);
  std::vector<std::vector<Seen>> seen(programs.size());
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < programs.size(); ++i) {
      seen[i].push_back(Watch(screen, programs[i], arguments[2]));
    }
  }
  for (std::size_t i = 0; i < programs.size(); ++i) {
    const auto starts = Ordered(seen[i], &Seen::start);
    const auto resident = Ordered(seen[i], &Seen::resident);
    const auto own = Ordered(seen[i], &Seen::own);
    const std::size_t middle = starts.size() / 2;
    std::printf("%s\t%.1f\t%.1f\t%ld\t%ld\n", programs[i], starts[0], starts[middle], resident[middle],
                own[middle]);
  }
  return 0;
}
