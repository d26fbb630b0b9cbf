// Fills a folder with all files that the program reads, made from packages of the distribution.
//
//   lectern-make-data FOLDER                 everything; safe to run again
//   lectern-make-data --words N FOLDER       with concordances of N words, for a quick look
//   lectern-make-data --second FILE FOLDER   a person's own text as the second version
//
// It replaces the files that it made before, and leaves alone what a person made or changed.
#include <charconv>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "reader/books.h"
#include "tools/make_data/dictionary/dictionary.h"
#include "tools/make_data/made_files.h"
#include "tools/make_data/paint_files.h"
#include "tools/make_data/plates/gallery.h"
#include "tools/make_data/texts.h"
#include "tools/make_data/version_files.h"
#include "tools/make_data/written_texts.h"

namespace lectern::make_data {

namespace {

void Print(const std::string& what) { std::cout << what << std::endl; }

// Prints the progress in percent as each step begins: "28 % Concordance of the first version …". Within a
// long step only the number is rewritten. The first start from the menu reads both.
class Steps {
 public:
  // `share` is the part of the whole time that the step takes, in percent.
  void Begin(const std::string& what, int share) {
    done_ += share_;
    share_ = share;
    shown_ = done_;
    Print(std::to_string(done_) + " % " + what + " …");
  }

  void Within(std::size_t done, std::size_t all) {
    const int now = done_ + static_cast<int>(static_cast<std::size_t>(share_) * done / all);
    if (now != shown_) std::cout << '\r' << now << " % " << std::flush;
    shown_ = now;
  }

 private:
  int done_ = 0;
  int share_ = 0;
  int shown_ = 0;
};

constexpr reader::Version kFirst = reader::kVersions[0];
constexpr reader::Version kSecond = reader::kVersions[1];

std::string FolderOf(const reader::Version& version, const std::string& data_folder) {
  return data_folder + "/" + std::string(version.folder);
}

void MakeSettings(const std::string& folder) {
  WriteFile(folder + "/codex.cfg", "\"" + SerifFont() + "\",\"12\",\"Regular\"\r\n");
}

// An existing concordance stays, as the person may have added to it.
void MakeConcordance(const std::string& data_folder, const std::string& folder, const Version& text,
                     const reader::Version& version, std::size_t most, Steps& steps) {
  if (Stays(data_folder, std::string(version.concordance))) return;
  std::vector<std::string> words = ConcordanceWords(text, most);
  // The tool that cuts a concordance to its true end knows the second version's by this word.
  if (version.folder == kSecond.folder && std::erase(words, "zion") > 0) words.emplace_back("Zion");
  BuildConcordance(folder, version, words,
                   [&steps](std::size_t done, std::size_t all) { steps.Within(done, all); });
  std::cout << "\r        \r";
}

// Otherwise a power cut could leave a folder of empty files that looks complete.
void FlushToDisk(const std::string& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool is_done = descriptor >= 0 && ::syncfs(descriptor) == 0;
  if (descriptor >= 0) ::close(descriptor);
  if (!is_done) throw Obstacle("The folder " + folder + " cannot be written to the disk.");
}

// As it is called without links, which are not followed in it.
std::string DataFolder(const std::string& argument) {
  std::filesystem::create_directories(argument);
  return std::filesystem::canonical(argument).string();
}

void MakeAll(const std::string& data_folder, std::size_t concordance_words) {
  Steps steps;
  const MakingFolder making(data_folder);
  const std::string& folder = making.Path();
  steps.Begin(std::string(kFirst.name), 4);
  const std::vector<MarkedVerse> king_james_module = ReadKingJamesModule();
  const Version king_james = KingJames(king_james_module);
  WriteBooks(king_james, FolderOf(kFirst, folder), std::string(kFirst.prefix));
  steps.Begin("World English Bible, for the second version", 4);
  const std::vector<MarkedVerse> world_english_module = ReadWorldEnglishModule();
  const Version world_english = WorldEnglish(world_english_module);
  WriteStandIn(world_english, FolderOf(kSecond, folder), std::string(kSecond.prefix));
  steps.Begin("Chapter counts", 4);
  WriteChapterCounts(king_james, folder);
  steps.Begin("Dictionary", 4);
  WriteFile(folder + "/cdxdic.dat",
            DictionaryRecords(ReadDictionarySources(king_james_module, world_english_module), king_james));
  steps.Begin("Questions", 4);
  WriteFile(folder + "/codex.trv", TriviaRecords(WrittenQuestions()));
  steps.Begin("Help", 4);
  WriteHelpTopics(folder);
  steps.Begin("Pictures", 4);
  plates::MakePictures(folder, king_james);
  MakePaintFiles(folder);
  MakeSettings(folder);
  steps.Begin("Concordance of the first version", 36);
  MakeConcordance(data_folder, folder, king_james, kFirst, concordance_words, steps);
  steps.Begin("Concordance of the second version", 36);
  MakeConcordance(data_folder, folder, world_english, kSecond, concordance_words, steps);
  FlushToDisk(folder);
  for (const std::string& name : BringIn(folder, data_folder)) Print(name + " stays as you have changed it.");
  FlushToDisk(data_folder);
  Print("The data folder is ready.");
}

int Run(const std::vector<std::string>& arguments) {
  constexpr std::size_t kConcordanceWords = 3900;
  if (arguments.size() == 1 && !arguments[0].starts_with("--")) {
    MakeAll(DataFolder(arguments[0]), kConcordanceWords);
    return 0;
  }
  if (arguments.size() == 3 && arguments[0] == "--words") {
    std::size_t words = 0;
    const char* const end = arguments[1].data() + arguments[1].size();
    const auto [stop, failure] = std::from_chars(arguments[1].data(), end, words);
    if (failure != std::errc{} || stop != end)
      throw Obstacle("'" + arguments[1] + "' is not a number of words.");
    MakeAll(DataFolder(arguments[2]), words);
    return 0;
  }
  if (arguments.size() == 3 && arguments[0] == "--second") {
    const Version own = ReadOwnText(arguments[1]);
    const std::string folder = DataFolder(arguments[2]);
    const MakingFolder making(folder);
    WriteBooks(own, FolderOf(kSecond, making.Path()), std::string(kSecond.prefix));
    FlushToDisk(making.Path());
    BringInOwn(making.Path(), folder);
    FlushToDisk(folder);
    Print("The second version is in place: " + std::to_string(own.VerseCount()) + " verses.");
    return 0;
  }
  std::cerr << "usage: lectern-make-data FOLDER\n       lectern-make-data --second FILE FOLDER\n";
  return 2;
}

}  // namespace

}  // namespace lectern::make_data

int main(int count, char** arguments) {
  try {
    return lectern::make_data::Run({arguments + 1, arguments + count});
  } catch (const std::exception& obstacle) {
    std::cerr << obstacle.what() << '\n';
    return 1;
  }
}
