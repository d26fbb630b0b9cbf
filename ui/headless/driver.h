// The program without a screen, driven by a language of one command a line. It reads what a reader or keeper
// does, delivers it where a mouse would, and prints what happens. It adds no behaviour of its own.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/files/file_system.h"
#include "ui/headless/commands.h"
#include "ui/headless/headless_platform.h"
#include "ui/program.h"

namespace lectern::headless {

class Driver {
 public:
  // The data folder, and where each line of output goes (without its end).
  Driver(std::string data_folder, std::function<void(const std::string&)> print);

  void Execute(std::string_view line);

  bool WantsToQuit() const { return quit_; }
  // 0 when every command was understood, 2 when one was not.
  int ExitStatus() const { return misunderstood_ ? 2 : 0; }

  files::FileSystem& Files() { return files_; }
  ui::Program& Program() { return program_; }

 private:
  struct Command;
  static const std::vector<Command>& Commands();

  void Run(std::string_view name, std::string_view rest);
  void Start();
  void PrintEnd();

  void Set(std::string_view rest);
  void Call(const std::vector<Word>& words);
  void RunTimers(const std::vector<Word>& words);
  void LayAnswer(const std::vector<Word>& words);
  void SetDate(const std::vector<Word>& words);
  void LayRandom(const std::vector<Word>& words);
  void SetScreen(const std::vector<Word>& words);
  void SetPrinter(const std::vector<Word>& words);

  std::function<void(const std::string&)> print_;
  HeadlessPlatform platform_;
  files::FileSystem files_;
  ui::Program program_;
  Inspector inspector_;
  ScriptedPerson person_;
  bool started_ = false;
  bool end_printed_ = false;
  bool quit_ = false;
  bool misunderstood_ = false;
};

}  // namespace lectern::headless
