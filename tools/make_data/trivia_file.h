// Makes `codex.trv`, the questions of the game, from the text that is part of this tool.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lectern::make_data {

struct TriviaQuestion {
  std::string question;
  std::string answer;
  std::string place;  // the verse to read, "1 Samuel 3:10"
};

// A question a line, "question | answer | place"; lines that are empty or begin with # say nothing.
std::vector<TriviaQuestion> ParseTrivia(std::string_view text);

// All that the tool carries, in order.
std::vector<TriviaQuestion> WrittenQuestions();

// The bytes of the file: each answer with the place to read behind it.
std::string TriviaRecords(const std::vector<TriviaQuestion>& questions);

}  // namespace lectern::make_data
