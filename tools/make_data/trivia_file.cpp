#include "tools/make_data/trivia_file.h"

#include <utility>

#include "base/files/record_reader.h"
#include "tools/make_data/verses.h"
#include "tools/make_data/written_texts.h"

namespace lectern::make_data {

std::vector<TriviaQuestion> ParseTrivia(std::string_view text) {
  constexpr std::string_view kSign = " | ";
  std::vector<TriviaQuestion> questions;
  files::RecordReader lines(text);
  while (!lines.AtEnd()) {
    const std::string_view line = lines.Line();
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t answer = line.find(kSign);
    const std::size_t place = line.rfind(kSign);
    if (answer == place) throw Obstacle("This is no question of the game: " + std::string(line));
    questions.push_back({std::string(line.substr(0, answer)),
                         std::string(line.substr(answer + kSign.size(), place - answer - kSign.size())),
                         std::string(line.substr(place + kSign.size()))});
  }
  return questions;
}

std::vector<TriviaQuestion> WrittenQuestions() {
  std::vector<TriviaQuestion> questions;
  for (const WrittenText& written : kTriviaSources) {
    for (TriviaQuestion& question : ParseTrivia(written.text)) questions.push_back(std::move(question));
  }
  return questions;
}

std::string TriviaRecords(const std::vector<TriviaQuestion>& questions) {
  std::string records;
  for (const TriviaQuestion& question : questions) {
    records += "\"" + question.question + "\",\"" + question.answer + " (" + question.place + ")\"\r\n";
  }
  return records;
}

}  // namespace lectern::make_data
