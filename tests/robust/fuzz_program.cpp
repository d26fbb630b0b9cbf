#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>

#include "base/errors.h"
#include "tests/kit/lines.h"
#include "tests/kit/session.h"
#include "tests/kit/small_world.h"
#include "tests/kit/temporary_folder.h"
#include "tests/robust/fuzz.h"
#include "tests/robust/invariants.h"

namespace lectern::fuzz {

namespace {

// A file of the data folder and everything that reads it; what passes it on to another file is followed
// there.
struct Reading {
  const char* file;
  const char* steps;
};

// Finds a word in all books and in the open one, and opens what was found.
constexpr auto kSearch =
    "click Form1.cc3; type Form1.txts \"river\"; click Form1.Command22; click Form1.lsts 0; click Form1.op1; "
    "click Form1.Command22; run 70; click Form1.lsts 0; click Form1.cmdadd; click Form1.Command20";
constexpr auto kPictures =
    "click Form1.imgp(0); click Form1.imgp(4); click Form1.SSCommand3; scroll Form1.picnm 1; "
    "click Form1.lst 1; click Form1.lst 0; scroll Form1.scr 2; click Form1.SSCommand4";
constexpr auto kPaint =
    "click Form1.imgp(1); click Form1.Command32; mousedown Form4.picbox 1 0 2 2; "
    "mousedown Form4.clrboxs(2) 1 0 1 1; click Form4.picpbs(0); click Form4.picpbs(4); click Form4.cmdm(0); "
    "click Form4.IMGSPB(4); click Form4.Command5; answer \"fresh\"; click Form4.Command2; click "
    "Form4.Command3";

constexpr Reading kReadings[] = {
    {"KJV/Genesis.txt", "scroll Form1.scr 2; scroll Form1.scr 3; click Form1.lst 0"},
    {"KJV/Genesis.txt", kSearch},
    {"KJV/Exodus.txt", "click Form1.lst 1; scroll Form1.scr 2"},
    {"NEW/NGenesis.txt", "click Form1.optn; scroll Form1.scr 3; click Form1.optk"},
    {"KJV/temp.txt", "click Form1.lst 1"},
    {"bookschap.txt", "click Form1.lst 1; click Form1.lst 8; scroll Form1.scr 2"},
    {"codex.cfg", "click Form1.oo11; click Form1.Command36"},
    {"CONCORD.DAT",
     "click Form1.cc1; click Form1.lstc 0; click Form1.lstc2 0; click Form1.lstc 1; "
     "click Form1.lstc2 1; click Form1.Command21; click Form1.lstc 0; click Form1.Command9"},
    {"CONCORD2.DAT", "click Form1.optn; click Form1.cc1; click Form1.lstc 0; click! Form1.Command18"},
    {"conc.txt", "click! Form1.Command27; run 600; click! Form1.List2 0; click Form1.cc1"},
    {"BKMK.DAT", "click! Form1.Command27; tick; click! Form1.List2 0; click! Form1.List2 1"},
    {"cdxdic.dat", "click Form1.cc2; click Form1.lstd 0; click Form1.lstd 1; click Form1.lstd 9"},
    {"codex.trv",
     "click Form1.cc4; random 0.9 0.7 0.5; click Form1.Command29; click Form1.Command31; "
     "random 0.1 0.3 0.2; click Form1.Command29; click Form1.Command31; click Form1.lst 0"},
    {"first.bkm", "click Form1.xb; click Form1.File1 0; click Form1.Command5; click Form1.Command6"},
    {"first.not",
     "click Form1.cc0; click Form3.File1 0; type Form3.txthelp \"more\"; click Form3.f3; "
     "click Form3.File1 0; close Form3; click Form1.Command30"},
    {"paint.txt", "click Form1.xh2; click Form1.lblhp(7); click Form1.lblhp(6)"},
    {"pics2.dat", kPictures},
    {"pics2.dat",
     "click Form1.imgp(1); click! Form1.SSCommand1; click Form1.imgp(0); click! Form1.SSCommand2; "
     "click Form1.imgp(0); click! Form1.Command45; click! Form1.Command40; call ListChapterPictures; "
     "run 3; click! Form1.Command49; click! Form1.Command47"},
    {"pics.dat", "call ShowPicsDatPicture; click! Form1.Command38; call ConvertPicsDat"},
    {"pics/tent.jpg", kPictures},
    {"pics/tent.jpg", kPaint},
    {"picend.jpg", "click Form1.SSCommand3; click Form1.imgp(4); click Form1.lst 5"},
    {"newpic.jpg", kPaint},
    {"cdx1.ico", kPaint},
    {"colors.dat", kPaint},
    {"TEMP.TXT", "type! Form1.RTB1 \"Codex, King James Version\"; click! Form1.Command33"},
    {"", "click! Form1.Command33"},  // no file: a text pasted into the converter
};

// The text with the bytes as instructions how to damage it: a place and what to do there, two bytes each.
std::string Damaged(std::string text, std::string_view how) {
  for (std::size_t i = 0; i + 1 < how.size() && !text.empty(); i += 2) {
    const std::size_t at = static_cast<unsigned char>(how[i]) * text.size() / 256;
    const auto what = static_cast<unsigned char>(how[i + 1]);
    const std::size_t length = std::min<std::size_t>(what % 16, text.size() - at);
    if (what < 64) {
      text.erase(at, length);
    } else if (what < 128) {
      text.insert(at, text.substr(at, length));
    } else if (what < 140) {
      text.resize(at);
    } else {
      text[at] = static_cast<char>(what);
    }
  }
  return text;
}

// The first byte says which file, the second whether the rest is its bytes or damages those it has.
void TakeDataFile(std::string_view input) {
  if (input.size() < 2) return;
  static const TemporaryFolder kAround;
  const std::string folder = kAround.Path() + "/data";
  LaySmallWorld(folder);
  const Reading& reading = kReadings[static_cast<unsigned char>(input[0]) % std::size(kReadings)];
  const bool is_file = *reading.file != '\0';
  const std::string path = folder + "/" + reading.file;
  std::string bytes(input.substr(2));
  if (input[1] % 2 == 0 && is_file && std::filesystem::exists(path)) bytes = Damaged(ReadFile(path), bytes);
  Steps steps = {"start"};
  if (is_file) {
    WriteFile(path, bytes);
  } else {
    steps.push_back("set Form1.RTB1.Text = " + headless::Quoted(bytes));
  }
  for (const std::string& step : kit::Split(reading.steps, "; ")) steps.push_back(step);
  Session session(folder);
  Invariants invariants(session, folder, Failures::kAnywhere);
  for (const std::string& step : steps) {
    const std::string broken = invariants.Broken(step, session.Do(step));
    if (!broken.empty()) std::cerr << reading.file << ": " << step << ": " << broken << "\n";
    Require(broken.empty());
  }
}

// What is not understood is reported; a text comes back from its quotes as it was.
void TakeScript(std::string_view input) {
  static const TemporaryFolder kAround;
  const std::string folder = kAround.Path() + "/data";
  LaySmallWorld(folder);
  Session session(folder);
  // A script may point the program at any folder of the host; these are not for it.
  session.driver.Files().disk.before = [&](files::Operation, const std::string& path) {
    if (!path.starts_with(kAround.Path() + "/") || path.find("/..") != std::string::npos) {
      throw base::RunTimeError(base::ErrorNumber::kPermissionDenied);
    }
  };
  int status = 0;
  std::istringstream script{std::string(input)};
  for (std::string line; !session.driver.WantsToQuit() && std::getline(script, line);) {
    const auto words = headless::Words(headless::Quoted(line));
    Require(words && words->size() == 1 && words->front().quoted && words->front().text == line);
    const Steps printed = session.Do(line);
    constexpr std::string_view kError = "error: ";
    const bool reported = std::any_of(printed.begin(), printed.end(), [&](const std::string& said) {
      return said.starts_with(kError) && said.size() > kError.size();
    });
    Require(session.driver.ExitStatus() == status || reported);
    status = session.driver.ExitStatus();
  }
}

}  // namespace

Target DataFiles() {
  std::vector<std::string> pieces = Pieces(
      "\"Genesis\",3\r\n~\"river\",\"Genesis 1 1\"\r\n~\"harp\",\"1 Samuel 1 2\"\r\n~"
      "\"Harp\",\"Strings\",\"He heard\",\"1 Samuel 1\"\r\n~\"Which?\",\"This\"\r\n~"
      "\"river\",\"Genesis 1: 1\",\"A\"\r\n~\"tent\",\"Genesis 99999999999: 1\",\"\"\r\n~"
      "\"none\",\"Genesis 2\",\"A\"\r\n~\"Georgia\",\"12\",\"Bold\"\r\n~\"16776960\",255\r\n~"
      "\"first\",\"Exodus\",\"2\"\r\n~Chapter 1\r\n~Chap~1   The river was wide.       \r\n~12  harp\r\n~"
      "1-Samuel\r\n~Song of songs\r\n~PICTURES BY: A\r\n~''''''\r\n~meadow\r\n~Genesis 1: 1\r\n~"
      "Codex, King James Version\r\n~\r\nJoel\r\n~[1]In the beginning\r\n~[2]a\r\nb c d e f\r\n~[3~-----\r\n~"
      "{\\rtf1\\ansi ~{\\fonttbl{\\f0 Arial;}}~{\\colortbl;\\red255\\green0\\blue0;}~\\b \\cf1 "
      "~\\u8212?~\\'e9~"
      "\\par}~\r\n~\n~\r~\"~,~,,~ ~-1~\xE9~\xE2\x80\x94~BM~\xFF\xD8\xFF\xE0");
  pieces.emplace_back(4, '\0');
  pieces.push_back(std::string(1100, 'a') + " river ");
  return {"data_files", 150, 2, pieces, TakeDataFile};
}

// Whole commands of the stories, single words of them and line ends, a third each.
Target Scripts(const std::string& stories) {
  std::set<std::string> lines;
  std::set<std::string> words = {"=", "\"", "\\x",   "(",   ")",   ",",
                                 ".", "-1", "1e300", "nan", "inf", "99999999999"};
  for (const auto& story : std::filesystem::directory_iterator(stories)) {
    std::ifstream file(story.path());
    for (std::string line; std::getline(file, line);) {
      for (const std::string& step : kit::Split(line.substr(0, line.find(" | ")), "; ")) {
        if (step.empty() || std::string_view(" |@#").find(step[0]) != std::string_view::npos) continue;
        std::istringstream parts(step);
        for (std::string word; parts >> word;) words.insert(word + " ");
        lines.insert(step + "\n");
      }
    }
  }
  Require(lines.size() > 100);
  std::vector<std::string> pieces(lines.begin(), lines.end());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    pieces.push_back(*std::next(words.begin(), static_cast<std::ptrdiff_t>(i * words.size() / lines.size())));
    pieces.emplace_back("\n");
  }
  return {"scripts", 150, 0, pieces, TakeScript};
}

}  // namespace lectern::fuzz
