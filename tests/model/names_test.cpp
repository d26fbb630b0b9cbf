// Names that people give to bookmarks, notes and paintings: each is shown again as it was typed, also after
// the next start. Only a separator of folders and a double quote become apostrophes.
#include <algorithm>
#include <gtest/gtest.h>

#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "tests/kit/session.h"
#include "tests/kit/small_world.h"
#include "tests/kit/temporary_folder.h"
#include "ui/headless/language.h"

namespace lectern {
namespace {

const Steps kNames = {
    // Places and times.
    "John 3:16", "Ps. 119:105", "1 Cor. 13:4-8", "Gen 1:1–2:3", "Mt 5:3 ff.", "Luke 2:1, 14", "Rev. 22:20-21",
    "10:30", "3.7.2026", "2026-07-03", "03 - 07 - 26", "7:00 a.m.", "Is 53:5 (a)", "Joh. 3,16", "Mk 1:1; 2:1",
    "§ 12",
    // Questions, exclamations and quotations.
    "Why?", "What is truth?", "Who? What? Where?", "Rejoice!", "Amen!!", "Lord, how long?!",
    "\"In the beginning\"", "a \"b\"", "\"", "'In the beginning'", "“It is finished”", "‘Selah’",
    "«Fiat lux»", "„Es werde Licht“", "Noah: the ark", "To do: read again", "Jacob & Esau", "Cain vs. Abel",
    "Mary, Martha & Lazarus", "a=b", "#1", "No. 1", "50%", "$5", "€30 silver", "me@church", "*important*",
    "*", "???", "<<<", "a>b", "<Ruth>", "A|B", "|", "~draft", "^ see above", "`code`", "[1]", "{x}",
    "(see note)", "a+b", "a;b", "x_y", "A, B and C", "…", "...",
    // Blanks, dashes and dots at either end.
    " leading", "   three blanks", "-", "- dash", "--help", "– dash", "_", ".hidden", "..", "dot.", "a.b.c",
    "two  blanks",
    // Letters of the world.
    "Ἐν ἀρχῇ ἦν ὁ λόγος", "Ἰησοῦς Χριστός: Κύριος", "בראשית א:א", "שָׁלוֹם", "Ruth רות", "سفر التكوين",
    "Бытие 1:1", "創世記 1:1", "창세기", "Псалом 22?", "Éxodo", "Offenbarung des Johannes: Übersicht",
    "naïve café", "Ægir", "İstanbul", "ﬁnal", "Z͑a̐l", "e\u0301 and é",
    // Signs and lengths.
    "🙏", "❤️ Psalm 23", "👨‍👩‍👧 family: Genesis 2", "✝", "♫ Psalms", "a", "1", "CON",
    "nul.txt", "name.bkm", "name.not",
    "John 3:16 John 3:16 John 3:16 John 3:16 John 3:16 John 3:16 John 3:16 John 3:16 John 3:16 John 3:16 "
    "John 3:16",
    "A rather long name that tells everything about the passage, who spoke to whom, where it was, and why it "
    "matters: "
    "because this is how people name things when nobody tells them not to, and why should anybody tell "
    "them?"};

bool Has(const Steps& items, const std::string& item) {
  return std::find(items.begin(), items.end(), item) != items.end();
}

class Names : public testing::Test {
 protected:
  Names() { LaySmallWorld(folder_.Path()); }

  TemporaryFolder folder_;
};

TEST_F(Names, OfBookmarks) {
  {
    Session session(folder_.Path());
    session.Do("click Form1.xb");
    for (const std::string& name : kNames) {
      EXPECT_EQ(session.Do("answer " + headless::Quoted(name), "click Form1.Command10").size(), 1U) << name;
    }
  }
  Session session(folder_.Path());
  session.Do("click Form1.xb");
  for (const std::string& name : kNames) {
    const std::string shown = files::FieldText(name);
    EXPECT_TRUE(Has(session.Items("Form1.File1"), shown + ".bkm")) << name;
    const std::string again = "click Form1.File1 " + headless::Quoted(shown + ".bkm");
    EXPECT_EQ(session.Do(again), Steps{}) << name;
    EXPECT_EQ(session.Get<forms::Label>("Form1.LBLMRK(0)").Caption, shown);
    EXPECT_EQ(session.Do("click Form1.Command6", again, "click Form1.Command11"), Steps{}) << name;
  }
  EXPECT_EQ(session.Items("Form1.File1"), Steps{"first.bkm"});
}

TEST_F(Names, OfNotes) {
  {
    Session session(folder_.Path());
    session.Do("click Form1.cc0", "click Form3.File1 \"first.not\"");
    for (const std::string& name : kNames) {
      session.Get<forms::RichTextBox>("Form3.txthelp").Text = name;
      EXPECT_EQ(
          session.Do("answer " + headless::Quoted(name), "click Form3.f2", "click Form3.Command2").size(), 1U)
          << name;
    }
  }
  Session session(folder_.Path());
  session.Do("click Form1.cc0");
  for (const std::string& name : kNames) {
    const std::string shown = files::FieldText(name);
    EXPECT_EQ(session.Do("click Form3.f2", "click Form3.File1 " + headless::Quoted(shown + ".not")), Steps{})
        << name;
    EXPECT_EQ(session.Get<forms::Label>("Form3.lblname").Caption, shown);
    EXPECT_EQ(session.Get<forms::RichTextBox>("Form3.txthelp").Text, name + "\r\n");
    EXPECT_EQ(session.Do("click Form3.f3"), Steps{}) << name;
  }
}

TEST_F(Names, OfPaintings) {
  {
    Session session(folder_.Path());
    session.Do("click Form1.imgp(1)", "click Form1.Command32");
    for (const std::string& name : kNames) {
      EXPECT_EQ(session.Do("answer " + headless::Quoted(name), "click Form4.Command2").size(), 1U) << name;
    }
  }
  Session session(folder_.Path());
  EXPECT_EQ(session.Do("click Form1.lst \"Genesis\"", "click Form1.imgp(1)"), Steps{});
  const Steps listed = session.Items("Form1.lstmc(0)");
  for (const std::string& name : kNames) {
    const std::string shown = files::FieldText(name);
    const auto found = std::find(listed.begin(), listed.end(), shown);
    ASSERT_NE(found, listed.end()) << name;
    EXPECT_EQ(session.Do("set Form1.picnm.Value = " + std::to_string(found - listed.begin())), Steps{})
        << name;
    EXPECT_EQ(session.Get<forms::Label>("Form1.LBLPICP").Caption, shown);
    EXPECT_TRUE(session.driver.Files().FileExists("pics\\" + shown + ".jpg")) << name;
  }
}

}  // namespace
}  // namespace lectern
