#include <gtest/gtest.h>

#include "forms/rich_text_box.h"
#include "tests/kit/test_window.h"

namespace lectern::forms {
namespace {

// The pane's text with its coloured stretches in brackets.
std::string Marked(const RichTextBox& pane) {
  std::string marked;
  const std::string& text = pane.Text();  // of ASCII alone in these tests
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool here = pane.Runs().At(i).colour.has_value();
    const bool before = i > 0 && pane.Runs().At(i - 1).colour.has_value();
    if (here && !before) marked += "[";
    if (!here && before) marked += "]";
    marked += text[i];
  }
  return marked;
}

void Colour(RichTextBox& pane, int start, int length, forms::Colour colour) {
  pane.SelStart = start;
  pane.SelLength = length;
  pane.SelColor = colour;
}

TEST(RichTextBox, FindsInAnyCaseAndInsideWords) {
  TestWindow test;
  RichTextBox pane(test.form, "rtxt");
  pane.Text = "Grace upon\r\ngrace; DISGRACE";
  EXPECT_EQ(pane.Find("grace", 0, kFindNoHighlight), 0);
  EXPECT_EQ(pane.Find("grace", 1, kFindNoHighlight), 12);
  EXPECT_EQ(pane.Find("GRACE", 13, kFindNoHighlight), 22);
  EXPECT_EQ(pane.Find("grace", 23, kFindNoHighlight), -1);
  EXPECT_EQ(pane.Find("", 0, kFindNoHighlight), -1);
  EXPECT_EQ(pane.Find("grace", 999, kFindNoHighlight), -1);
  EXPECT_EQ(pane.SelLength, 0);
  EXPECT_EQ(pane.Find("upon", 0, 0), 6);
  EXPECT_EQ(pane.SelText(), "upon");

  // Positions count characters, not bytes.
  pane.Text = "Éli, Éli, lama";
  EXPECT_EQ(pane.Find("éli", 1, kFindNoHighlight), 5);
  EXPECT_EQ(pane.Find("lama", 0, kFindNoHighlight), 10);
}

TEST(RichTextBox, ColoursStretchesThatTouchAndOverlap) {
  TestWindow test;
  RichTextBox pane(test.form, "rtxt");
  pane.Text = "0123456789";
  Colour(pane, 2, 2, kBlue);
  Colour(pane, 6, 2, kBlue);
  EXPECT_EQ(Marked(pane), "01[23]45[67]89");
  Colour(pane, 3, 4, kRed);
  EXPECT_EQ(Marked(pane), "01[234567]89");
  EXPECT_EQ(pane.Runs().At(2).colour, kBlue);
  EXPECT_EQ(pane.Runs().At(6).colour, kRed);
  EXPECT_EQ(pane.Runs().At(7).colour, kBlue);

  // A person's edit moves what stands behind it; a new text has no colours.
  pane.PersonEdits(0, 1, "abc");
  EXPECT_EQ(Marked(pane), "abc1[234567]89");
  pane.PersonEdits(4, 2, "");
  EXPECT_EQ(Marked(pane), "abc1[4567]89");
  pane.Text = "0123456789";
  EXPECT_EQ(Marked(pane), "0123456789");
}

TEST(RichTextBox, KeepsTheSelectionInsideTheText) {
  TestWindow test;
  RichTextBox pane(test.form, "rtxt");
  pane.Text = "ab\r\ncd";
  pane.SelStart = 3;
  pane.SelLength = 99;
  EXPECT_EQ(pane.SelLength, 3);
  pane.SelText = "é";
  EXPECT_EQ(pane.Text, "ab\ré");
  pane.SelStart = 50;
  EXPECT_EQ(pane.SelStart, 4);
  pane.Text = std::string(20, 'x');
  pane.SelStart = 10;
  pane.SelLength = 8;
  pane.Text = std::string(12, 'y');
  EXPECT_EQ(pane.SelLength, 2);
  EXPECT_EQ(ErrorOf([&] { pane.SelStart = -1; }), 380);
}

TEST(RichTextBox, LoadsPlainAndRichTextAndTellsItEachTime) {
  TestWindow test;
  RichTextBox pane(test.form, "txthelp", {.read_only = true});
  int changes = 0;
  pane.Change = [&] { ++changes; };
  test.folder.Write("plain.txt", "one\ntwo\r\ncaf\xE9");
  pane.LoadFile(test.folder.Path() + "\\plain.txt");
  EXPECT_EQ(pane.Text, "one\r\ntwo\r\ncafé");
  pane.LoadFile(test.folder.Path() + "\\plain.txt");
  EXPECT_EQ(changes, 2);
  pane.PersonTypes("x");
  pane.PersonEdits(0, 1, "x");
  EXPECT_EQ(changes, 2);

  test.folder.Write(
      "rich.txt",
      "{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Georgia;}{\\f1 Arial;}}{\\colortbl;\\red255\\green0\\blue0;}"
      "{\\*\\generator Word;}\\f1\\fs48\\b Head\\b0\\par\\plain caf\\'e9 \\u8212?{\\cf1\\i red}\\line "
      "{\\pict 0102}end\\}}");
  pane.LoadFile(test.folder.Path() + "\\rich.txt");
  EXPECT_EQ(pane.Text, "Head\r\ncafé —red\r\nend}");
  EXPECT_EQ(pane.Runs().At(0).font, "Arial");
  EXPECT_EQ(pane.Runs().At(0).size, 24);
  EXPECT_EQ(pane.Runs().At(0).bold, true);
  EXPECT_EQ(pane.Runs().At(7), TextStyle{});
  EXPECT_EQ(pane.Runs().At(12).colour, kRed);
  EXPECT_EQ(pane.Runs().At(12).italic, true);
  EXPECT_EQ(ErrorOf([&] { pane.LoadFile(test.folder.Path() + "\\none.txt"); }), 53);
}

// A page with a heading, a link, a list and signs, as two word processors of different habits write it.
TEST(ReadRtf, TakesASimplePageOfAWordProcessor) {
  const RichText terse = ReadRtf(
      "{\\rtf1\\ansi\\ansicpg1252\\deff0\\nouicompat\\deflang1033{\\fonttbl{\\f0\\fnil\\fcharset0 Calibri;}"
      "{\\f1\\fnil\\fcharset2 Symbol;}}\r\n{\\colortbl ;\\red0\\green0\\blue255;}\r\n"
      "{\\*\\generator Editor 10.0}\\viewkind4\\uc1 \r\n\\pard\\sa200\\sl276\\slmult1\\b\\f0\\fs28\\lang9 "
      "Ruth\\b0\\fs22\\par\r\n\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb"
      "\\'B7}}\\fi-360\\li720 Naomi\\rquote s \\cf1\\ul friend\\cf0\\ulnone\\par\r\n}\r\n");
  EXPECT_EQ(terse.text, "Ruth\r\n·\tNaomi’s friend\r\n");
  EXPECT_EQ(terse.runs.At(0).bold, true);
  EXPECT_EQ(terse.runs.At(0).size, 14);
  EXPECT_EQ(terse.runs.At(17).colour, kBlue);
  EXPECT_EQ(terse.runs.At(17).underline, true);
  EXPECT_EQ(terse.runs.At(8).colour, std::nullopt);

  const RichText wordy = ReadRtf(
      "{\\rtf1\\ansi\\deff3\\adeflang1025\n{\\fonttbl{\\f0\\froman\\fprq2\\fcharset0 Times New Roman;}{\\f3"
      "\\froman\\fprq2\\fcharset0 Liberation Serif{\\*\\falt Times New Roman};}}\n{\\colortbl;\\red0\\green0"
      "\\blue0;}\n{\\stylesheet{\\s0\\snext0\\rtlch\\af7 \\ltrch\\lang1033\\fs24 Normal;}}{\\info{\\creatim"
      "\\yr2026\\mo11}}{\\*\\userprops}\\deftab709\n\\viewscale100\\formshade{\\header \\pard page\\par}\n"
      "\\pgndec\\pard\\plain \\s0\\rtlch\\af7 \\ltrch\\lang1033\\fs24{\\rtlch \\ltrch\\loch\\b\nBoaz}"
      "{\\rtlch \\ltrch\\loch \\u8211\\'96 kinsman}\n\\par \\pard\\plain {\\field{\\*\\fldinst HYPERLINK "
      "\"http://x/\" }{\\fldrslt {\\i gleaning}}}\\line \\u1512?\\u1493?\\u1514?{\\pict\\wmetafile8 0100}\n"
      "\\par }");
  EXPECT_EQ(wordy.text, "Boaz– kinsman\r\ngleaning\r\nרות\r\n");
  EXPECT_EQ(wordy.runs.At(0).bold, true);
  EXPECT_EQ(wordy.runs.At(6).bold, std::nullopt);
  EXPECT_EQ(wordy.runs.At(6).size, 12);
  EXPECT_EQ(wordy.runs.At(16).italic, true);
}

}  // namespace
}  // namespace lectern::forms
