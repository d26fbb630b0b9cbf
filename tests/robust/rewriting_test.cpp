// The keeper's tools rewrite the catalogue of pictures. Whatever stops them, at whichever file operation, the
// catalogue is in place, or whole in the new file with the old one under `backup`.
#include <array>
#include <gtest/gtest.h>

#include "forms/picture.h"
#include "tests/kit/stopping.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

using headless::Driver;

constexpr const char* kOldCatalogue =
    "\"river\",\"Genesis 1: 1\",\"A\"\r\n\"flock \",\"Genesis 1: 2\",\"A\"\r\n\"tent\",\"Genesis 1: "
    "3\",\"A\"\r\n"
    "\"cloud\",\"Exodus 1: 1\",\"A\"\r\n";

void LayOut(const TemporaryFolder& folder) {
  const std::string picture = forms::BmpBytes(forms::Bitmap(1, 1));
  folder.Write("pics2.dat", kOldCatalogue);
  folder.Write("picend.jpg", picture);
  for (const char* name : {"river", "flock", "tent", "cloud"}) {
    folder.Write(std::string("pics/") + name + ".jpg", picture);
  }
  folder.Write("KJV/flock/jpg", "what Remove All moves");
  folder.Write("KJV/rem/flock/here", "");
}

// Lets the keeper use a tool on the second picture, and stops it ahead of its n-th file operation; whether it
// came to its end before.
bool UsesTool(const TemporaryFolder& folder, const std::string& tool, Stop stop, int n) {
  return PlaysToItsEnd(folder.Path(), {"click Form1.imgp(1)"}, {"click! Form1." + tool}, stop, n);
}

class Rewriting : public testing::TestWithParam<std::tuple<const char*, Stop>> {};

TEST_P(Rewriting, LeavesTheCatalogueRecoverableWhereverItStops) {
  const auto& [tool, stop] = GetParam();
  std::string fresh;
  {
    const TemporaryFolder folder;
    LayOut(folder);
    ASSERT_TRUE(UsesTool(folder, tool, stop, kNever));
    fresh = folder.Read("pics2.dat");
    EXPECT_NE(fresh, kOldCatalogue);
    EXPECT_EQ(folder.Read("pics22.dat"), "(missing)");
  }
  int old_in_place = 0;
  int between = 0;
  int new_in_place = 0;
  bool done = false;
  for (int n = 1; !done; ++n) {
    const TemporaryFolder folder;
    LayOut(folder);
    done = UsesTool(folder, tool, stop, n);
    const std::string catalogue = folder.Read("pics2.dat");
    if (catalogue == kOldCatalogue) {
      ++old_in_place;
    } else if (catalogue == fresh) {
      ++new_in_place;
    } else {
      EXPECT_EQ(catalogue, "(missing)") << "stopped at operation " << n;
      EXPECT_EQ(folder.Read("pics22.dat"), fresh) << "stopped at operation " << n;
      ++between;
    }
    EXPECT_EQ(folder.Read("backup/pics2.dat"), catalogue == kOldCatalogue ? "(missing)" : kOldCatalogue);

    // The next start has the pictures, or none where the catalogue is to be put back by hand.
    Driver driver(folder.Path(), [](const std::string& line) { ADD_FAILURE() << line; });
    driver.Execute("start");
    const auto* names = dynamic_cast<forms::ItemList*>(driver.Program().Touch("Form1")->Find("lstmc", 0));
    EXPECT_EQ(names->ListCount() == 0, catalogue == "(missing)");
  }
  EXPECT_GE(old_in_place, 4);  // opened, read, written, about to be deleted
  EXPECT_EQ(between, 1);       // about to be renamed
  EXPECT_GE(new_in_place, 2);
}

INSTANTIATE_TEST_SUITE_P(Tools, Rewriting,
                         testing::Combine(testing::Values("Command45", "Command47", "SSCommand1",
                                                          "SSCommand2"),
                                          testing::Values(Stop::kKilled, Stop::kFullDisk)));

}  // namespace
}  // namespace lectern
