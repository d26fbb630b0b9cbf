// The driver's language takes any bytes: the lines of all stories, torn apart, put together by chance and
// damaged. Whatever is not understood is told as an error, and the program neither crashes nor hangs.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "base/run_time_error.h"
#include "tests/kit/small_world.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace {

// Whole commands, single words of them and line ends, a third each.
std::vector<std::string> Pieces() {
  std::set<std::string> lines;
  std::set<std::string> words = {"=", "\"", "\\x",   "(",   ")",   ",",
                                 ".", "-1", "1e300", "nan", "inf", "99999999999"};
  for (const auto& story : std::filesystem::directory_iterator(LECTERN_STORIES)) {
    std::ifstream file(story.path());
    for (std::string line; std::getline(file, line);) {
      if (line.empty() || line[0] == '@' || line[0] == '#') continue;
      std::istringstream parts(line);
      for (std::string word; parts >> word;) words.insert(word + " ");
      if (line[0] != ' ') {
        lines.insert(line.substr(0, line.find(" | ")) + "\n");
      } else if (line.find('|') == std::string::npos) {  // a check, for which `get` is used
        lines.insert("get Form1." + line.substr(2, line.find(' ', 2) - 2) + "\n");
      }
    }
  }
  std::vector<std::string> pieces(lines.begin(), lines.end());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    pieces.push_back(*std::next(words.begin(), static_cast<std::ptrdiff_t>(i * words.size() / lines.size())));
    pieces.emplace_back("\n");
  }
  return pieces;
}

}  // namespace

extern const std::size_t kHead;
extern const std::vector<std::string> kPieces;
const std::size_t kHead = 0;
const std::vector<std::string> kPieces = Pieces();

namespace {

using lectern::headless::Driver;

[[noreturn]] void Break(std::string_view line, const char* what) {
  std::cerr << line << ": " << what << "\n";
  std::abort();
}

// A text comes back from its quotes as it was.
void CheckQuoting(std::string_view text) {
  const auto words = lectern::headless::Words(lectern::headless::Quoted(text));
  if (!words || words->size() != 1 || !words->front().quoted || words->front().text != text) {
    Break(text, "is another text when it is quoted");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const lectern::TemporaryFolder kAround;
  const std::string folder = kAround.Path() + "/data";
  lectern::LaySmallWorld(folder);
  std::vector<std::string> printed;
  Driver driver(folder, [&](const std::string& line) { printed.push_back(line); });
  // A script may point the program at any folder of the host; these are not for it.
  driver.Files().before = [&](lectern::files::Operation, const std::string& path) {
    if (!path.starts_with(kAround.Path() + "/") || path.find("/..") != std::string::npos) {
      throw lectern::base::RunTimeError(lectern::base::ErrorNumber::kPermissionDenied);
    }
  };
  int status = 0;
  std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
  for (std::string line; !driver.WantsToQuit() && std::getline(script, line);) {
    CheckQuoting(line);
    printed.clear();
    driver.Execute(line);
    const bool told = std::any_of(printed.begin(), printed.end(), [](const std::string& said) {
      return said.starts_with("error: ") && said.size() > std::string_view("error: ").size();
    });
    if (driver.ExitStatus() != status && !told) Break(line, "is not understood, and that is not told");
    status = driver.ExitStatus();
  }
  return 0;
}
