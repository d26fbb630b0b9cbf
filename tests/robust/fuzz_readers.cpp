#include "base/errors.h"
#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "forms/bitmap.h"
#include "forms/picture.h"
#include "forms/rich_text.h"
#include "tests/kit/temporary_folder.h"
#include "tests/robust/fuzz.h"
#include "tools/make_data/dictionary/definitions.h"
#include "tools/make_data/dictionary/original_words.h"
#include "tools/make_data/dictionary/topics.h"
#include "tools/make_data/markup.h"
#include "tools/make_data/texts.h"
#include "tools/make_data/written_texts.h"
#include "ui/headless/headless_platform.h"

namespace lectern::fuzz {

namespace {

using namespace std::string_literals;

// The reader comes to the end of any text, by lines and by fields, and hands out nothing but parts of it.
// What was written is read back as it was.
void TakeRecords(std::string_view bytes) {
  const std::string text = files::Decode(bytes);
  for (const bool by_line : {true, false}) {
    files::RecordReader reader(text);
    std::size_t taken = 0;
    for (std::size_t steps = 0; !reader.AtEnd(); ++steps) {
      Require(steps <= text.size());
      taken += by_line ? reader.Line().size() : reader.Field().size();
    }
    Require(taken <= text.size());
  }
  Require(files::Decode(files::Encode(text)) == text);
}

// The runs are in order and inside the text.
void TakeRichText(std::string_view bytes) {
  const forms::RichText page = forms::ReadRtf(bytes);
  std::size_t end = 0;
  for (const forms::TextRun& run : page.runs.All()) {
    Require(run.start >= end && run.length > 0);
    end = run.End();
  }
  Require(end <= text::Length(page.text));
}

// A picture or refused; what was taken is written and read back in its size.
void TakePicture(std::string_view bytes) {
  try {
    const forms::Picture taken = headless::DecodePicture(bytes);
    constexpr int kLargest = 1000;  // pixels; the way back of a larger one only takes time
    if (taken->Width() > kLargest || taken->Height() > kLargest) return;
    const forms::Picture back = headless::DecodePicture(forms::BmpBytes(*taken));
    Require(back->Width() == taken->Width() && back->Height() == taken->Height());
  } catch (const base::RunTimeError& error) {
    Require(error.number() == static_cast<int>(base::ErrorNumber::kInvalidPicture));
  }
}

// Markup of verses, the index of topics, the source of a help topic, a person's own text.
void TakeSource(std::string_view input) {
  if (input.empty()) return;
  const std::string_view text = input.substr(1);
  switch (static_cast<unsigned char>(input[0]) % 4) {
    case 0:
      make_data::PlainWords(text);
      break;
    case 1: {
      make_data::ParseTopics(text);
      make_data::ParseGlossary(text);
      make_data::OriginalWords words;
      make_data::ParseOriginalWords(text, 'H', words);
      break;
    }
    case 2:
      make_data::RichTextOf(text);
      break;
    default:
      static const TemporaryFolder kFolder;
      kFolder.Write("own.txt", std::string(text));
      try {
        make_data::ReadOwnText(kFolder.Path() + "/own.txt");
      } catch (const make_data::Obstacle&) {  // says in a sentence what is wrong
      }
  }
}

}  // namespace

std::vector<Target> Readers() {
  std::vector<std::string> pictures = Pieces(
      "BM~\x89PNG\r\n\x1A\n~GIF89a~\xFF\xDB~\xFF\xC0~\xFF\xDA~\xFF\xD9~P6 2 2 255\n~"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" height=\"4\"/>~"
      "/* XPM */ static char*x[]={\"1 1 1 1\",\"a c #fff\",\"a\"};");
  pictures.insert(
      pictures.end(),
      {forms::BmpBytes(forms::Bitmap(3, 2, 0xFF123456)), forms::BmpBytes(forms::Bitmap(1, 1)).substr(0, 54),
       "\x28\0\0\0"s, "\x01\0\x18\0"s, "\x01\0\x08\0"s,
       "\0\0\x01\0\x01\0\x10\x10"s,  // an icon of one picture
       "\0\0\0\x0DIHDR\0\0\0\x01\0\0\0\x01\x08\x02\0\0\0"s, "\0\0\0\0IEND\xAE\x42\x60\x82"s,
       "\x02\0\x02\0\x80\0\0\xFF\xFF\xFF\0\0\0"s, ",\0\0\0\0\x02\0\x02\0\0\x02\x03\x84\x8F\x05\0;"s,
       "\xFF\xD8\xFF\xE0\0\x10JFIF\0\x01\x01\0\0\x01\0\x01\0\0"s, std::string(4, '\0'),
       std::string(4, '\xFF'), std::string(64, '\x10')});
  std::vector<std::string> records =
      Pieces("\"Genesis\",50\r\n~\"~,~\r\n~\n~\r~ ~\"a,b\"~\t~word~,,~\"\"~-7~\xE9~\xE2\x80\x94~\"open");
  records.emplace_back(1, '\0');
  return {
      {"records", 20000, 0, records, TakeRecords},
      {"rich_text", 20000, 0,
       Pieces("{\\rtf1\\ansi ~{~}~\\par ~\\b ~\\b0 ~\\i~\\fs48 ~\\cf1 ~\\cf99~\\f0 ~\\u8212?~\\u-3913 ~\\uc2 "
              "~\\'e9~\\'~"
              "\\*\\generator ~{\\fonttbl{\\f0 Arial;}{\\f1\\fnil "
              "Georgia;}}~{\\colortbl;\\red255\\green0\\blue0;}~"
              "\\bin5 ~\\bin999999999 ~word ~\\tab~\\\\~\\{~\\~\\fs-7 ~\\plain~\\ul ~\\pict ~\xC3\xA9~"
              "\\u55357 \\u56832 ~\r\n"),
       TakeRichText},
      {"pictures", 3000, 0, pictures, TakePicture},
      {"sources", 20000, 1,
       Pieces(
           "Ge1:1 In the beginning\n~Rev22:21 Amen\n~Ge0:99999999999 x\n~<osis>~<verse osisID=\"Gen.1.1\">~"
           "<verse sID=\"Gen.1.2\"/>~<verse eID=\"Gen.1.2\"/>~</verse>~<note>~</note>~<title>~</title>~"
           "<q marker=\"\"/>~<~>~/~&amp;~&#8217;~&#x110000;~&#99999999999999999999;~&~;~$$$AARON\n~$$$/~"
           "\xE2\x86\x92 ~<lb/>~<ref osisRef=\"Exod.6.16-Exod.6.20\">Exodus 6:16-20</ref>~"
           "<ref osisRef=\"Gen.999999999999.1\">~<ref target=\"Nave:MOSES\">MOSES</ref>~# Title\n~## "
           "Heading\n~"
           "* item\n~**~*~\\*~\\~{~word ~\xE2\x80\x9C~\xC3~\n~\r\n"),
       TakeSource},
  };
}

}  // namespace lectern::fuzz
