// Fills a folder with everything that the program reads, from packages of the distribution.
//
//   lectern-make-data FOLDER                 all of it; safe to run again
//   lectern-make-data --words N FOLDER       with concordances of N words, for a quick look
//   lectern-make-data --second FILE FOLDER   a person's own text as the second version
//
// What it made before it replaces; what a person made it leaves alone.
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "core/canon.h"
#include "tools/make_data/book_files.h"
#include "tools/make_data/concordance.h"
#include "tools/make_data/dictionary_file.h"
#include "tools/make_data/help_topics.h"
#include "tools/make_data/paint_files.h"
#include "tools/make_data/pictures.h"
#include "tools/make_data/sources.h"
#include "tools/make_data/topics.h"
#include "tools/make_data/trivia_file.h"

namespace lectern::make_data {

namespace {

void Progress(const std::string& step) { std::cout << step << std::endl; }

void MakeSecondVersion(const Version& version, const std::string& folder) {
  WriteBooks(version, folder + "/NEW", "N");
}

// The settings are the person's as soon as they are there.
void MakeSettings(const std::string& folder) {
  const std::string path = folder + "/codex.cfg";
  if (std::filesystem::exists(path)) return;
  WriteFile(path, "\"" + SerifFont() + "\",\"12\",\"Regular\"\r\n");
}

// A concordance that is there may hold what the person added: it is left alone.
void MakeConcordance(const std::string& folder, const Version& version, WhichVersion which,
                     std::size_t most) {
  const bool second = which == WhichVersion::kSecond;
  if (std::filesystem::exists(folder + (second ? "/CONCORD2.DAT" : "/CONCORD.DAT"))) return;
  std::vector<std::string> words = ConcordanceWords(version, most);
  // The tool that cuts a concordance to its true end knows the second version's by this word.
  if (second && std::erase(words, "zion") > 0) words.emplace_back("Zion");
  std::size_t shown = 0;
  BuildConcordance(folder, which, words, [&shown](std::size_t done, std::size_t all) {
    const std::size_t percent = done * 100 / all;
    if (percent != shown) std::cout << "\r  " << percent << " %" << std::flush;
    shown = percent;
  });
  std::cout << "\r        \r";
}

void MakeAll(const std::string& folder, std::size_t concordance_words) {
  std::filesystem::create_directories(folder);
  Progress("King James Version …");
  const Version king_james = ReadKingJames();
  WriteBooks(king_james, folder + "/KJV", "");
  Progress("World English Bible, for the second version …");
  const Version world_english = ReadWorldEnglish();
  MakeSecondVersion(world_english, folder);
  Progress("Chapter counts …");
  WriteChapterCounts(king_james, folder);
  Progress("Dictionary …");
  WriteFile(folder + "/cdxdic.dat", DictionaryRecords(ReadTopics(), king_james));
  Progress("Questions …");
  WriteFile(folder + "/codex.trv", TriviaRecords(WrittenQuestions()));
  Progress("Help …");
  WriteHelpTopics(folder);
  Progress("Pictures …");
  MakePictures(folder);
  MakePaintFiles(folder);
  MakeSettings(folder);
  Progress("Concordance of the first version …");
  MakeConcordance(folder, king_james, WhichVersion::kFirst, concordance_words);
  Progress("Concordance of the second version …");
  MakeConcordance(folder, world_english, WhichVersion::kSecond, concordance_words);
  Progress("The data folder is ready.");
}

int Run(const std::vector<std::string>& arguments) {
  constexpr std::size_t kConcordanceWords = 3900;
  if (arguments.size() == 1 && !arguments[0].starts_with("--")) {
    MakeAll(std::filesystem::absolute(arguments[0]).lexically_normal().string(), kConcordanceWords);
    return 0;
  }
  if (arguments.size() == 3 && arguments[0] == "--words") {
    MakeAll(std::filesystem::absolute(arguments[2]).lexically_normal().string(), std::stoul(arguments[1]));
    return 0;
  }
  if (arguments.size() == 3 && arguments[0] == "--second") {
    const Version own = ReadOwnText(arguments[1]);
    MakeSecondVersion(own, std::filesystem::absolute(arguments[2]).lexically_normal().string());
    Progress("The second version is in place: " + std::to_string(own.VerseCount()) + " verses.");
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
