// The paint window saves pictures and colours. Whatever stops it, at whichever file operation, the catalogue
// has the new record whole or not at all, and a picture or palette that was there is in place, or under
// `backup`.
#include <gtest/gtest.h>

#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/picture.h"
#include "tests/kit/stopping.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

using headless::Driver;

constexpr const char* kCatalogue = "\"river\",\"Genesis 1: 1\",\"PICTURES BY: A\"\r\n";
constexpr const char* kPalette = "\"16776960\",255\r\n";
const std::string kPicture = forms::BmpBytes(forms::Bitmap(2, 2));

void LayOut(const TemporaryFolder& folder) {
  folder.Write("pics2.dat", kCatalogue);
  folder.Write("colors.dat", kPalette);
  for (const char* name : {"picend.jpg", "cdx2.ico", "pics/river.jpg"}) folder.Write(name, kPicture);
}

const Steps kPaintARedDot = {"click Form1.imgp(0)", "click Form1.Command32",
                             "mousedown Form4.clrboxs(0) 1 0 5 5", "mousedown Form4.picbox 1 0 0 0"};
const Steps kSaveAsDusk = {"answer \"dusk\"", "click Form4.Command2"};
const Steps kSaveOverRiver = {"answer \"river\"", "answer yes", "click Form4.Command2"};
const Steps kSavePalette = {"click Form4.Command3"};

// Lets a person paint and save, and stops the saving ahead of its n-th file operation; whether it came to its
// end before.
bool Saves(const TemporaryFolder& folder, const Steps& saving, Stop stop, int n) {
  return PlaysToItsEnd(folder.Path(), kPaintARedDot, saving, stop, n);
}

// Plays the saving with a stop ahead of each operation in turn; `check` looks at what each one leaves.
void StopAtEveryOperation(const Steps& saving, const std::function<void(const TemporaryFolder&)>& check) {
  for (const Stop stop : {Stop::kKilled, Stop::kFullDisk}) {
    int stops = 0;
    for (bool done = false; !done; ++stops) {
      const TemporaryFolder folder;
      LayOut(folder);
      done = Saves(folder, saving, stop, stops + 1);
      SCOPED_TRACE("stopped ahead of operation " + std::to_string(stops + 1));
      check(folder);
    }
    EXPECT_GE(stops, 4);
  }
}

TEST(PaintSafety, ANewPictureStandsInTheCatalogueWhollyOrNotAtAll) {
  const std::string record = "\"dusk\",\"Genesis 1: 1\",\"PICTURES BY: A\"\r\n";
  std::string dusk;
  {
    const TemporaryFolder folder;
    LayOut(folder);
    ASSERT_TRUE(Saves(folder, kSaveAsDusk, Stop::kKilled, kNever));
    dusk = folder.Read("pics/dusk.JPG");
    EXPECT_EQ(dusk.size(), kPicture.size());
    EXPECT_NE(dusk, kPicture);
  }
  StopAtEveryOperation(kSaveAsDusk, [&](const TemporaryFolder& folder) {
    const std::string catalogue = folder.Read("pics2.dat");
    const std::string picture = folder.Read("pics/dusk.JPG");
    const bool recorded = catalogue == kCatalogue + record;
    EXPECT_TRUE(recorded || catalogue == kCatalogue) << catalogue;
    EXPECT_TRUE(picture == dusk || picture == "(missing)");
    EXPECT_TRUE(recorded || picture == "(missing)");
    EXPECT_EQ(folder.Read("pics/river.jpg"), kPicture);

    // The person comes back and saves once more under the name, over what is there.
    Driver driver(folder.Path(), [](const std::string&) {});
    Play(driver, kPaintARedDot);
    driver.Execute("answer \"dusk\"");
    if (recorded) driver.Execute("answer yes");
    driver.Execute("click Form4.Command2");
    EXPECT_EQ(folder.Read("pics2.dat"), kCatalogue + record);
    EXPECT_EQ(folder.Read("pics/dusk.JPG"), dusk);
    EXPECT_EQ(folder.Read("pics/lectern-saving.tmp"), "(missing)");
    const auto& names = dynamic_cast<forms::ItemList&>(*driver.Program().Touch("Form1")->Find("lstmc", 0));
    EXPECT_EQ(names.ListCount(), 2);
  });
}

// What a saving replaces: the old version or the new one in place, or the old one in the backup.
void ExpectReplaced(const std::string& file, const std::string& before, const Steps& saving) {
  const TemporaryFolder undisturbed;
  LayOut(undisturbed);
  ASSERT_TRUE(Saves(undisturbed, saving, Stop::kKilled, kNever));
  const std::string after = undisturbed.Read(file);
  EXPECT_NE(after, before);
  EXPECT_EQ(undisturbed.Read("backup/" + file), before);
  StopAtEveryOperation(saving, [&](const TemporaryFolder& folder) {
    const std::string in_place = folder.Read(file);
    const std::string kept = folder.Read("backup/" + file);
    EXPECT_TRUE(in_place == before || kept == before) << in_place;
    EXPECT_TRUE(in_place == before || in_place == after || in_place == "(missing)" || in_place.empty());
    EXPECT_EQ(folder.Read("pics2.dat"), kCatalogue);
  });
}

TEST(PaintSafety, APictureThatIsReplacedIsInPlaceOrInTheBackup) {
  ExpectReplaced("pics/river.jpg", kPicture, kSaveOverRiver);
}

TEST(PaintSafety, APaletteThatIsReplacedIsInPlaceOrInTheBackup) {
  ExpectReplaced("colors.dat", kPalette, kSavePalette);
}

}  // namespace
}  // namespace lectern
