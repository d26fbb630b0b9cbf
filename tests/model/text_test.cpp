#include <gtest/gtest.h>

#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "tests/kit/test_window.h"

namespace lectern::text {
namespace {

TEST(Characters, AreCountedFromOneWhateverTheirBytes) {
  EXPECT_EQ(Length("Ἰησοῦς"), 6U);
  EXPECT_EQ(Mid("Ἰησοῦς", 2, 2), "ησ");
  EXPECT_EQ(Mid("abc", 3), "c");
  EXPECT_EQ(Mid("abc", 4), "");
  EXPECT_EQ(Left("añb", 2), "añ");
  EXPECT_EQ(Left("a", 5), "a");
  EXPECT_EQ(Length("a\xFF\xC3"), 3U);  // stray bytes count for themselves
  EXPECT_FALSE(IsUtf8("\xC0\xAF"));
  EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
}

TEST(LetterCase, ChangesTheScriptsThatPeopleWriteIn) {
  const std::string capitals =
      "ABZ ÀÁÖ×ØÙÞß ĀĂĮ ĲĴĶ ĹĻŇ ŊŌŶ ŹŻŽŸ ΈΉΊ "
      "ΑΒΡ ΣΤΫ ЀЁЏ АБЯ ѠѢҀ ҊҌҾ ӐӒԮ ḀḂẔ ẠẢỾ ἀ12";
  const std::string smalls =
      "abz àáö×øùþß āăį ĳĵķ ĺļň ŋōŷ źżžÿ έήί "
      "αβρ στϋ ѐёџ абя ѡѣҁ ҋҍҿ ӑӓԯ ḁḃẕ ạảỿ ἀ12";
  for (const std::string& text : {capitals, smalls}) {
    EXPECT_EQ(Upper(text), capitals);
    EXPECT_EQ(Lower(text), smalls);
  }
  EXPECT_TRUE(EqualFolded("Ünïcode", "üNÏCODE"));
  EXPECT_FALSE(EqualFolded("abc", "abcd"));
}

TEST(Numbers, AreReadForgivinglyOrStrictly) {
  EXPECT_EQ(LeadingDigits("12 Chapter"), 12);
  EXPECT_EQ(LeadingDigits(" -3.5x"), -3);
  EXPECT_EQ(LeadingDigits("1e2"), 1);
  EXPECT_EQ(LeadingDigits("+5"), 0);
  EXPECT_EQ(LeadingDigits("-"), 0);
  EXPECT_EQ(NumberValue(" -3.5x"), -3.5);
  EXPECT_EQ(NumberValue("x12"), 0);
  EXPECT_EQ(NumberValue("-inf"), 0);
  EXPECT_EQ(ErrorOf([] { IntegerValue("99999"); }), 6);
  EXPECT_EQ(ToInteger(" 2.5 "), 2);  // a half goes to the even neighbour
  EXPECT_EQ(ToInteger("3.5"), 4);
  EXPECT_EQ(ErrorOf([] { ToInteger("12 Chapter"); }), 13);
  EXPECT_EQ(ErrorOf([] { ToInteger(""); }), 13);
  EXPECT_EQ(ErrorOf([] { ToLong("1e12"); }), 6);
  EXPECT_EQ(ToLong("&H80000005"), -2147483643);
  EXPECT_EQ(NumberText(8.5), "8.5");
  EXPECT_EQ(NumberText(-0.0), "0");
}

}  // namespace
}  // namespace lectern::text
