#include "tools/make_data/written_texts.h"

#include <utility>

#include "base/files/record_reader.h"
#include "base/text/characters.h"
#include "tools/make_data/texts.h"
#include "tools/make_data/version_files.h"

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
    if (answer == place) throw Obstacle("Not a question of the game: " + std::string(line));
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

namespace {

constexpr std::string_view kBehindParagraph = "\\par\r\n";

// A line with its markup turned into rich text. Emphasis ends in the line in which it begins.
std::string Marked(std::string_view text) {
  std::string rich;
  bool bold = false;
  bool italic = false;
  for (std::size_t at = 0; at < text.size();) {
    if (text.substr(at).starts_with("\\*")) {
      rich += '*';
      at += 2;
    } else if (text.substr(at).starts_with("**")) {
      bold = !bold;
      rich += bold ? "{\\b " : "}";
      at += 2;
    } else if (text[at] == '*') {
      italic = !italic;
      rich += italic ? "{\\i " : "}";
      ++at;
    } else if (const char32_t character = text::NextCharacter(text, at); character >= 0x80) {
      rich += "\\u" + std::to_string(static_cast<std::uint32_t>(character)) + "?";
    } else {
      if (character == '\\' || character == '{' || character == '}') rich += '\\';
      rich += static_cast<char>(character);
    }
  }
  return rich;
}

// Assembles the paragraphs of a topic from its lines.
class RichTopic {
 public:
  void Take(std::string_view line) {
    if (line.empty()) {
      EndParagraph();
    } else if (line.starts_with("# ")) {
      Heading(line.substr(2), 32);
    } else if (line.starts_with("## ")) {
      Heading(line.substr(3), 24);
    } else if (line.starts_with("* ")) {
      EndParagraph();
      paragraph_ = "\\bullet   " + Marked(line.substr(2));
    } else {
      if (!paragraph_.empty()) paragraph_ += ' ';
      paragraph_ += Marked(line);
    }
  }

  std::string Finish() {
    EndParagraph();
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss ;}}\r\n" + rich_ + "}\r\n";
  }

 private:
  // In half points; a heading has a blank line above it.
  void Heading(std::string_view text, int size) {
    EndParagraph();
    if (!rich_.empty()) rich_ += kBehindParagraph;
    rich_ += "{\\b\\fs" + std::to_string(size) + " " + Marked(text) + "}" + std::string(kBehindParagraph);
  }

  void EndParagraph() {
    if (!paragraph_.empty()) rich_ += paragraph_ + std::string(kBehindParagraph);
    paragraph_.clear();
  }

  std::string rich_;
  std::string paragraph_;
};

}  // namespace

std::string RichTextOf(std::string_view source) {
  RichTopic topic;
  files::RecordReader lines(source);
  while (!lines.AtEnd()) topic.Take(lines.Line());
  return topic.Finish();
}

void WriteHelpTopics(const std::string& data_folder) {
  for (const WrittenText& topic : kHelpSources) {
    WriteFile(data_folder + "/" + std::string(topic.file), RichTextOf(topic.text));
  }
}

}  // namespace lectern::make_data
