// What the data is made from may hold anything, too: markup of verses, the index of topics, the source of a
// help topic, a person's own text.
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/kit/test_window.h"
#include "tools/make_data/help_topics.h"
#include "tools/make_data/markup.h"
#include "tools/make_data/sources.h"
#include "tools/make_data/topics.h"

extern const std::size_t kHead;
extern const std::vector<std::string> kPieces;
const std::size_t kHead = 1;
const std::vector<std::string> kPieces = {"Ge1:1 In the beginning\n",
                                          "Rev22:21 Amen\n",
                                          "Ge0:99999999999 x\n",
                                          "<osis>",
                                          "<verse osisID=\"Gen.1.1\">",
                                          "<verse sID=\"Gen.1.2\"/>",
                                          "<verse eID=\"Gen.1.2\"/>",
                                          "</verse>",
                                          "<note>",
                                          "</note>",
                                          "<title>",
                                          "</title>",
                                          "<q marker=\"\"/>",
                                          "<",
                                          ">",
                                          "/",
                                          "&amp;",
                                          "&#8217;",
                                          "&#x110000;",
                                          "&#99999999999999999999;",
                                          "&",
                                          ";",
                                          "$$$AARON\n",
                                          "$$$/",
                                          "\xE2\x86\x92 ",
                                          "<lb/>",
                                          "<ref osisRef=\"Exod.6.16-Exod.6.20\">Exodus 6:16-20</ref>",
                                          "<ref osisRef=\"Gen.999999999999.1\">",
                                          "<ref target=\"Nave:MOSES\">MOSES</ref>",
                                          "# Title\n",
                                          "## Heading\n",
                                          "* item\n",
                                          "**",
                                          "*",
                                          "\\*",
                                          "\\",
                                          "{",
                                          "word ",
                                          "\xE2\x80\x9C",
                                          "\xC3",
                                          "\n",
                                          "\r\n"};

namespace {

using namespace lectern::make_data;

void ReadOwn(std::string_view text) {
  static const lectern::TemporaryFolder kFolder;
  const std::string path = kFolder.Path() + "/own.txt";
  std::ofstream(path, std::ios::binary) << text;
  try {
    ReadOwnText(path);
  } catch (const Obstacle&) {  // said in a sentence
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  switch (data[0] % 4) {
    case 0:
      PlainWords(text);
      break;
    case 1:
      ParseTopics(text);
      break;
    case 2:
      RichTextOf(text);
      break;
    default:
      ReadOwn(text);
  }
  return 0;
}
