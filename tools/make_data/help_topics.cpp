#include "tools/make_data/help_topics.h"

#include "base/files/record_reader.h"
#include "base/text/characters.h"
#include "tools/make_data/book_files.h"
#include "tools/make_data/written_texts.h"

namespace lectern::make_data {

namespace {

constexpr std::string_view kBehindParagraph = "\\par\r\n";

// A line with its marks turned into rich text. What is set off ends in the line that it begins in.
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

// Puts the paragraphs of a topic together from its lines.
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
  // In half points; a heading has a line of air above it.
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
