// The record reader comes to the end of any text, as lines and as fields, and hands out nothing but parts
// of it.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"

extern const std::size_t kHead;
extern const std::vector<std::string> kPieces;
const std::size_t kHead = 0;
const std::vector<std::string> kPieces = {"\"Genesis\",50\r\n",
                                          "\"",
                                          ",",
                                          "\r\n",
                                          "\n",
                                          "\r",
                                          " ",
                                          "\"a,b\"",
                                          "\t",
                                          "word",
                                          ",,",
                                          "\"\"",
                                          "-7",
                                          "\xE9",
                                          "\xE2\x80\x94",
                                          "\"open",
                                          std::string(1, '\0')};

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string text = lectern::files::Decode(bytes);
  for (const bool by_line : {true, false}) {
    lectern::files::RecordReader reader(text);
    std::size_t taken = 0;
    std::size_t steps = 0;
    while (!reader.AtEnd()) {
      const std::string_view part = by_line ? reader.Line() : reader.Field();
      taken += part.size();
      Require(++steps <= text.size() + 1);
    }
    Require(taken <= text.size());
  }
  // What was written is read back as it was.
  Require(lectern::files::Decode(lectern::files::Encode(text)) == text);
  return 0;
}
