// A story: what a person does, in the driver's language, and what is then to be seen. A line that is not
// indented is a step: a command of the driver, or one of the story's own, which begin with "@". What the step
// leads to stands indented under it:
//
//   click Form1.Command10
//     | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "Ruth"
//     lblbk "Ruth", lblc "1", picp hidden, Command3 disabled, scr 2, scr.Max 4
//     File1: "Naomi.bkm", "Ruth.bkm"
//
// - Steps that are one act stand in one line: type Form1.txts "lamp"; click Form1.Command22
//   Only the last one prints.
// - "|" begins a line that the step prints. These lines are all that it prints, in order. "| …" stands for
// any
//   number of lines, and "…" at the end of a line or a text for the rest of it. The lines may also stand
//   beside the step: run | beep | ran 265 ticks
// - The answers that boxes get in such lines (-> "Ruth", -> yes) are given, unless an `answer` stands in
// front;
//   a box that gets -> "" is cancelled.
// - Any other line checks what is there now. NAME.PROPERTY VALUE is a property as `get` prints it. Without a
//   property, a text is the Caption or Text, a number the Value, `picture 2x1` or `none` the Picture, `shown`
//   or `hidden` Visible, `enabled` or `disabled` Enabled, and `empty` a list without items. The window is
//   Form1, or the one that the line named last.
// - NAME: checks all items of a list, or all lines of a text; the selected item ends in " *".
// - A line of checks that ends in a comma goes on in the next one.
//
// The story's own commands look after its data folder, a fresh copy of one in tests/data:
//
//   @data small|empty|real|…     which one (the first line; small where it is left out)
//   @write FILE · @append FILE   with lines like those that a step prints, or with the one "text" beside it
//   @delete FILE · @copy A B · @folder NAME · @link NAME TARGET
//   @show FILE                   prints its lines; "missing", "empty"
//   @files FOLDER                prints the names in it
//   @changes FILE [OTHER]        prints what FILE has changed since it, or OTHER, was last written or shown,
//   or
//                                laid: "-3 line", "+5 line", with the line's number before and now;
//                                "unchanged". FILE may be a folder, for the names in it.
//   @restart                     starts the program anew in the same folder
//   @status                      prints the exit status that the driver would end with
//
// Recorded, a story is printed with what is to be seen now; a check without a value gets one. Read that
// against what the program should do, line by line.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "tests/kit/lines.h"
#include "tests/kit/story_folder.h"
#include "ui/headless/driver.h"

namespace lectern::kit {

enum class Mode { kPlay, kRecord };

class Story {
 public:
  Story(std::filesystem::path file, StoryFolder folder, Mode mode);

  // Whether all was there that the story says. What was not is printed.
  bool Play();

 private:
  bool IsPassedOver(std::size_t line) const;  // empty, or a comment
  bool IsUnderStep(std::size_t line) const;
  void PlayStep(std::size_t start, std::size_t end);
  void Act(std::size_t line, const std::string& step, const Lines& expected);
  void LayAnswers(const Lines& expected);
  void Restart();

  Lines Check(std::size_t line, const std::string& text);
  std::string Compared(std::size_t line, const std::string& name, const std::string& expected,
                       const std::string& got);
  std::string Seen(std::string& window, std::string name, const std::string& expected);
  std::string PropertyOf(const std::string& full_name, const std::string& expected);
  Lines ItemsOf(const std::string& full_name);
  Lines Ask(const std::string& command);

  void Fail(std::size_t line, const std::string& what, const std::string& expected, const std::string& got);
  void Record(const std::string& line) const;
  void RecordLines(std::size_t start, std::size_t end) const;
  void RecordStep(const std::string& step, const Lines& printed) const;
  void RecordChecks(const Lines& checks) const;

  std::filesystem::path file_;
  StoryFolder folder_;
  Mode mode_;
  std::unique_ptr<headless::Driver> driver_;
  Lines lines_;            // of the story
  Lines printed_;          // by the driver
  bool answered_ = false;  // whether the step before laid an answer
  int failures_ = 0;
};

}  // namespace lectern::kit
