// The reader of rich text takes any bytes, and its runs lie in order inside the text.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/text/characters.h"
#include "forms/rich_text.h"

extern const std::size_t kHead;
extern const std::vector<std::string> kPieces;
const std::size_t kHead = 0;
const std::vector<std::string> kPieces = {"{\\rtf1\\ansi ",
                                          "{",
                                          "}",
                                          "\\par ",
                                          "\\b ",
                                          "\\b0 ",
                                          "\\i",
                                          "\\fs48 ",
                                          "\\cf1 ",
                                          "\\cf99",
                                          "\\f0 ",
                                          "\\u8212?",
                                          "\\u-3913 ",
                                          "\\uc2 ",
                                          "\\'e9",
                                          "\\'",
                                          "\\*\\generator ",
                                          "{\\fonttbl{\\f0 Arial;}{\\f1\\fnil Georgia;}}",
                                          "{\\colortbl;\\red255\\green0\\blue0;}",
                                          "\\bin5 ",
                                          "\\bin999999999 ",
                                          "word ",
                                          "\\tab",
                                          "\\\\",
                                          "\\{",
                                          "\\",
                                          "\\fs-7 ",
                                          "\\plain",
                                          "\\ul ",
                                          "\\pict ",
                                          "\xC3\xA9",
                                          "\\u55357 \\u56832 ",
                                          "\r\n"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using lectern::forms::ReadRtf;
  const lectern::forms::RichText page = ReadRtf({reinterpret_cast<const char*>(data), size});
  std::size_t end = 0;
  for (const lectern::forms::TextRun& run : page.runs.All()) {
    if (run.start < end || run.length == 0) std::abort();
    end = run.End();
  }
  if (end > lectern::text::Length(page.text)) std::abort();
  return 0;
}
