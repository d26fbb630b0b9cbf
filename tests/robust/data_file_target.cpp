// Every file that the program reads may hold anything: it is laid into a small data folder, whole or as a
// damaged form of what stands there, and everything that reads it is used. Nothing crashes or hangs, and
// the house rules hold.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/kit/small_world.h"
#include "tests/kit/test_window.h"
#include "tests/robust/house_rules.h"

extern const std::size_t kHead;
extern const std::vector<std::string> kPieces;
const std::size_t kHead = 2;
const std::vector<std::string> kPieces = {"\"Genesis\",3\r\n",
                                          "\"river\",\"Genesis 1 1\"\r\n",
                                          "\"harp\",\"1 Samuel 1 2\"\r\n",
                                          "\"Harp\",\"Strings\",\"He heard\",\"1 Samuel 1\"\r\n",
                                          "\"Which?\",\"This\"\r\n",
                                          "\"river\",\"Genesis 1: 1\",\"A\"\r\n",
                                          "\"tent\",\"Genesis 99999999999: 1\",\"\"\r\n",
                                          "\"none\",\"Genesis 2\",\"A\"\r\n",
                                          "\"Georgia\",\"12\",\"Bold\"\r\n",
                                          "\"16776960\",255\r\n",
                                          "\"first\",\"Exodus\",\"2\"\r\n",
                                          "Chapter 1\r\n",
                                          "Chap",
                                          "1   The river was wide.       \r\n",
                                          "12  harp\r\n",
                                          "1-Samuel\r\n",
                                          "Song of songs\r\n",
                                          "PICTURES BY: A\r\n",
                                          "''''''\r\n",
                                          "meadow\r\n",
                                          "Genesis 1: 1\r\n",
                                          "Codex, King James Version\r\n",
                                          "\r\nJoel\r\n",
                                          "[1]In the beginning\r\n",
                                          "[2]a\r\nb c d e f\r\n",
                                          "[3",
                                          "-----\r\n",
                                          "{\\rtf1\\ansi ",
                                          "{\\fonttbl{\\f0 Arial;}}",
                                          "{\\colortbl;\\red255\\green0\\blue0;}",
                                          "\\b \\cf1 ",
                                          "\\u8212?",
                                          "\\'e9",
                                          "\\par}",
                                          "\r\n",
                                          "\n",
                                          "\r",
                                          "\"",
                                          ",",
                                          ",,",
                                          " ",
                                          "-1",
                                          "\xE9",
                                          "\xE2\x80\x94",
                                          "BM",
                                          "\xFF\xD8\xFF\xE0",
                                          std::string(4, '\0'),
                                          std::string(1100, 'a') + " river "};

namespace {

using lectern::HouseRules;
using lectern::headless::Driver;
using Steps = std::vector<std::string>;

// A file and everything that reads it; what hands it to another file is followed there.
struct Read {
  const char* file;
  Steps steps;
};

// Finds a word in all books, in the open one, and opens what was found.
const Steps kSearch = {"click Form1.cc3",
                       "type Form1.txts \"river\"",
                       "click Form1.Command22",
                       "click Form1.lsts 0",
                       "click Form1.op1",
                       "click Form1.Command22",
                       "run 70",
                       "click Form1.lsts 0",
                       "click Form1.cmdadd",
                       "click Form1.Command20"};
const Steps kWords = {"click Form1.cc1",    "click Form1.lstc 0",  "click Form1.lstc2 0",
                      "click Form1.lstc 1", "click Form1.lstc2 1", "click Form1.Command21",
                      "click Form1.lstc 0", "click Form1.Command9"};
const Steps kPictures = {"click Form1.imgp(0)",  "click Form1.imgp(4)",   "click Form1.SSCommand3",
                         "scroll Form1.picnm 1", "click Form1.lst 1",     "click Form1.lst 0",
                         "scroll Form1.scr 2",   "click Form1.SSCommand4"};
const Steps kPaint = {"click Form1.imgp(1)",
                      "click Form1.Command32",
                      "mousedown Form4.picbox 1 0 2 2",
                      "mousedown Form4.clrboxs(2) 1 0 1 1",
                      "click Form4.picpbs(0)",
                      "click Form4.picpbs(4)",
                      "click Form4.cmdm(0)",
                      "click Form4.IMGSPB(4)",
                      "click Form4.Command5",
                      "answer \"fresh\"",
                      "click Form4.Command2",
                      "click Form4.Command3"};

const std::vector<Read>& Reads() {
  static const std::vector<Read> kReads = {
      {"KJV/Genesis.txt", {"scroll Form1.scr 2", "scroll Form1.scr 3", "click Form1.lst 0"}},
      {"KJV/Genesis.txt", kSearch},
      {"KJV/Exodus.txt", {"click Form1.lst 1", "scroll Form1.scr 2"}},
      {"NEW/NGenesis.txt", {"click Form1.optn", "scroll Form1.scr 3", "click Form1.optk"}},
      {"KJV/temp.txt", {"click Form1.lst 1"}},
      {"bookschap.txt", {"click Form1.lst 1", "click Form1.lst 8", "scroll Form1.scr 2"}},
      {"codex.cfg", {"click Form1.oo11", "click Form1.Command36"}},
      {"CONCORD.DAT", kWords},
      {"CONCORD2.DAT",
       {"click Form1.optn", "click Form1.cc1", "click Form1.lstc 0", "click! Form1.Command18"}},
      {"conc.txt", {"click! Form1.Command27", "run 600", "click! Form1.List2 0", "click Form1.cc1"}},
      {"BKMK.DAT", {"click! Form1.Command27", "tick", "click! Form1.List2 0", "click! Form1.List2 1"}},
      {"cdxdic.dat", {"click Form1.cc2", "click Form1.lstd 0", "click Form1.lstd 1", "click Form1.lstd 9"}},
      {"codex.trv",
       {"click Form1.cc4", "random 0.9 0.7 0.5", "click Form1.Command29", "click Form1.Command31",
        "random 0.1 0.3 0.2", "click Form1.Command29", "click Form1.Command31", "click Form1.lst 0"}},
      {"first.bkm",
       {"click Form1.xb", "click Form1.File1 0", "click Form1.Command5", "click Form1.Command6"}},
      {"first.not",
       {"click Form1.cc0", "click Form3.File1 0", "type Form3.txthelp \"more\"", "click Form3.f3",
        "click Form3.File1 0", "close Form3", "click Form1.Command30"}},
      {"paint.txt", {"click Form1.xh2", "click Form1.lblhp(7)", "click Form1.lblhp(6)"}},
      {"pics2.dat", kPictures},
      {"pics2.dat",
       {"click Form1.imgp(1)", "click! Form1.SSCommand1", "click Form1.imgp(0)", "click! Form1.SSCommand2",
        "click Form1.imgp(0)", "click! Form1.Command45", "click! Form1.Command40", "call ListChapterPictures",
        "run 3", "click! Form1.Command49", "click! Form1.Command47"}},
      {"pics.dat", {"call ShowPicsDatPicture", "click! Form1.Command38", "call ConvertPicsDat"}},
      {"pics/tent.jpg", kPictures},
      {"pics/tent.jpg", kPaint},
      {"picend.jpg", {"click Form1.SSCommand3", "click Form1.imgp(4)", "click Form1.lst 5"}},
      {"newpic.jpg", kPaint},
      {"cdx1.ico", kPaint},
      {"colors.dat", kPaint},
      {"TEMP.TXT", {"type! Form1.RTB1 \"Codex, King James Version\"", "click! Form1.Command33"}},
      {"source", {"click! Form1.Command33"}},  // a text pasted into the converter
  };
  return kReads;
}

// The bytes as they are, or what stands in the small world with the bytes as instructions how to damage it:
// a place and what to do there, two bytes each.
std::string Damaged(std::string whole, std::string_view how) {
  for (std::size_t i = 0; i + 1 < how.size() && !whole.empty(); i += 2) {
    const std::size_t at = static_cast<unsigned char>(how[i]) * whole.size() / 256;
    const auto what = static_cast<unsigned char>(how[i + 1]);
    const std::size_t length = std::min<std::size_t>(what % 16, whole.size() - at);
    if (what < 64) {
      whole.erase(at, length);
    } else if (what < 128) {
      whole.insert(at, whole.substr(at, length));
    } else if (what < 140) {
      whole.resize(at);
    } else {
      whole[at] = static_cast<char>(what);
    }
  }
  return whole;
}

void Write(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < kHead) return 0;
  static const lectern::TemporaryFolder kAround;
  static const auto kWorld = lectern::SmallWorld();
  const std::string folder = kAround.Path() + "/data";
  lectern::LaySmallWorld(folder);

  // Which file, and whether the rest is its bytes or says what becomes of those it has.
  const Read& read = Reads()[data[0] % Reads().size()];
  std::string bytes(reinterpret_cast<const char*>(data) + kHead, size - kHead);
  const auto known =
      std::find_if(kWorld.begin(), kWorld.end(), [&](const auto& file) { return file.first == read.file; });
  if (data[1] % 2 == 0 && known != kWorld.end()) bytes = Damaged(known->second, bytes);
  const bool is_file = read.file != std::string_view("source");
  if (is_file) Write(folder + "/" + read.file, bytes);

  Steps printed;
  Driver driver(folder, [&](const std::string& line) { printed.push_back(line); });
  HouseRules rules(driver, folder, lectern::Failures::kAnywhere);
  Steps steps = {"start"};
  if (!is_file) steps.push_back("set Form1.RTB1.Text = " + lectern::headless::Quoted(bytes));
  steps.insert(steps.end(), read.steps.begin(), read.steps.end());
  for (const std::string& step : steps) {
    printed.clear();
    driver.Execute(step);
    if (const std::string broken = rules.Broken(step, printed); !broken.empty()) {
      std::cerr << read.file << ": " << step << ": " << broken << "\n";
      std::abort();
    }
  }
  return 0;
}
