// The question game: a random question from `codex.trv`, and its answer on request. There is no score and no
// end; a history of about a hundred numbers keeps a question from coming back soon.
//
// Each press reads the file again. The numbers of the questions count from 1.
#pragma once

#include <cstdint>

#include "forms/containers.h"
#include "forms/picture_box.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::search {

class Trivia {
 public:
  Trivia(reader::Reader& the_reader, forms::PictureBox& Picture17, forms::PictureBox& picp,
         reader::ToolButtons& the_tools, forms::Menu& cc4);

 private:
  void Command29_Click();
  void Command31_Click();

  void AskQuestion();
  std::int16_t Draw(int records);
  void KeepFromRepeating(int records);

  reader::Reader& reader_;
  forms::PictureBox& Picture17_;
  forms::PictureBox& picp_;
  reader::ToolButtons& tools_;

  forms::Label lbltrivia{Picture17_, "lbltrivia", {.caption = "CODEX TRIVIA"}};  // heading
  // The question, which is the key to its answer.
  forms::Label Label25{Picture17_, "Label25", {.caption = "Press Question to begin"}};
  forms::Label Label26{Picture17_, "Label26"};  // the answer
  // Numbers of the questions asked, the oldest first.
  forms::ListBox List3{Picture17_, "List3", {.visible = false, .name = "Questions asked"}};
  forms::CommandButton Command29{Picture17_, "Command29", {.caption = "Question", .is_default = true}};
  forms::CommandButton Command31{Picture17_, "Command31", {.caption = "Answer"}};
  forms::CommandButton Command28{Picture17_, "Command28", {.caption = "Close", .is_cancel = true}};

  std::int16_t QuestionNumber = 0;
};

}  // namespace lectern::search
