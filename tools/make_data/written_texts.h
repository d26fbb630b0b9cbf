// The texts written for the data folder: the questions of the game and the help topics. Their files are next
// to the tool's sources and are built into the tool.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lectern::make_data {

struct WrittenText {
  std::string_view file;  // its name, without the folder
  std::string_view text;
};

extern const std::span<const WrittenText> kHelpSources;        // one for each topic
extern const std::span<const WrittenText> kTriviaSources;      // questions of the game
extern const std::span<const WrittenText> kDefinitionSources;  // words of the dictionary
extern const std::span<const WrittenText> kPlateTables;        // what the gallery's plates show

struct TriviaQuestion {
  std::string question;
  std::string answer;
  std::string place;  // the verse to read, "1 Samuel 3:10"
};

// Reads a question from each line, "question | answer | place". Skips lines that are empty or begin with #.
std::vector<TriviaQuestion> ParseTrivia(std::string_view text);

// All questions built into the tool, in order.
std::vector<TriviaQuestion> WrittenQuestions();

// The bytes of `codex.trv`: each answer is followed by the place to read.
std::string TriviaRecords(const std::vector<TriviaQuestion>& questions);

// Help topics are written as plain text in a small markup and installed as the rich text that the help shows.
//
//   # Title        ## Heading        * an item of a list
//   **the name of a button**         *a word that is set off*         \* a star
//
// Lines that follow one another are one paragraph.
std::string RichTextOf(std::string_view source);

void WriteHelpTopics(const std::string& data_folder);

}  // namespace lectern::make_data
