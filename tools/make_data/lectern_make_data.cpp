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
#include <future>
#include <iostream>
#include <mutex>
#include <string>
#include <unistd.h>
#include <vector>

#include "reader/books.h"
#include "tools/make_data/concordance.h"
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

// Runs the steps, some of them at the same time, and prints the progress in percent as each begins: "28 %
// Help …". The first start from the menu reads this.
class Steps {
 public:
  // `share` is the part of the whole work that the step takes, in percent.
  template <class Work>
  auto Run(const std::string& what, int share, Work work) {
    {
      const std::lock_guard lock(mutex_);
      Print(std::to_string(done_) + " % " + what + " …");
    }
    const Share at_end(*this, share);
    return work();
  }

 private:
  class Share {
   public:
    Share(Steps& steps, int share) : steps_(steps), share_(share) {}
    ~Share() {
      const std::lock_guard lock(steps_.mutex_);
      steps_.done_ += share_;
    }

   private:
    Steps& steps_;
    int share_;
  };

  std::mutex mutex_;
  int done_ = 0;
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
                     const reader::Version& version, std::size_t most) {
  if (Stays(data_folder, std::string(version.concordance))) return;
  const std::string path = folder + "/" + std::string(version.concordance);
  std::vector<std::string> words = ConcordanceWords(text, most);
  // The tool that cuts a concordance to its true end knows the second version's by this word.
  if (version.folder == kSecond.folder && std::erase(words, "zion") > 0) words.emplace_back("Zion");
  WriteFile(path, ConcordanceRecords(folder, version, words));
  if (version.folder != kSecond.folder) return;
  std::string list;
  for (const std::string& word : words) list += word + "\r\n";
  WriteFile(folder + "/conc.txt", list);
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

// The second version and the drawings need as much time as everything else, and each goes its own way.
void MakeAll(const std::string& data_folder, std::size_t concordance_words) {
  Steps steps;
  const MakingFolder making(data_folder);
  const std::string& folder = making.Path();
  const std::shared_future<std::vector<MarkedVerse>> second_module =
      std::async(std::launch::async, [] { return ReadWorldEnglishModule(); });
  std::future<void> second = std::async(std::launch::async, [&] {
    const Version text = steps.Run("World English Bible, for the second version", 15, [&] {
      Version read = WorldEnglish(second_module.get());
      WriteStandIn(read, FolderOf(kSecond, folder), std::string(kSecond.prefix));
      return read;
    });
    steps.Run("Concordance of the second version", 10,
              [&] { MakeConcordance(data_folder, folder, text, kSecond, concordance_words); });
  });
  std::vector<MarkedVerse> first_module;
  const Version king_james = steps.Run(std::string(kFirst.name), 15, [&] {
    first_module = ReadKingJamesModule();
    Version read = KingJames(first_module);
    WriteBooks(read, FolderOf(kFirst, folder), std::string(kFirst.prefix));
    return read;
  });
  std::future<void> pictures = std::async(std::launch::async, [&] {
    steps.Run("Pictures", 35, [&] {
      plates::MakePictures(folder, king_james);
      MakePaintFiles(folder);
    });
  });
  steps.Run("Chapter counts", 3, [&] { WriteChapterCounts(king_james, folder); });
  steps.Run("Dictionary", 10, [&] {
    const DictionarySources sources = ReadDictionarySources(first_module, second_module.get());
    WriteFile(folder + "/cdxdic.dat", DictionaryRecords(sources, king_james));
  });
  steps.Run("Questions and help", 2, [&] {
    WriteFile(folder + "/codex.trv", TriviaRecords(WrittenQuestions()));
    WriteHelpTopics(folder);
    MakeSettings(folder);
  });
  steps.Run("Concordance of the first version", 10,
            [&] { MakeConcordance(data_folder, folder, king_james, kFirst, concordance_words); });
  second.get();
  pictures.get();
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
