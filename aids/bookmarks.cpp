#include "aids/bookmarks.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "aids/asked_name.h"
#include "base/errors.h"

namespace lectern::aids {

namespace {

constexpr int kBookmark = 1;  // slot

// A row of arrow heads that grow darker to the right: it shows that the strip is for sweeping.
forms::Picture Arrows() {
  constexpr int kWidth = 190;  // pixels
  constexpr int kHeight = 44;
  constexpr int kHeads = 6;
  constexpr double kBetween = 28;
  constexpr double kFirst = 22;
  constexpr double kHalf = 8;
  constexpr double kPen = 1.3;
  constexpr int kDarkest = 110;
  forms::Bitmap strip(kWidth, kHeight);
  for (int y = 0; y < kHeight; ++y) {
    const double down = std::abs(y - (kHeight - 1) / 2.0);
    for (int x = 0; x < kWidth && down <= kHalf; ++x) {
      for (int head = 0; head < kHeads; ++head) {
        const double away = std::abs(x - (kFirst + kBetween * head + kHalf - down));
        const double ink = std::clamp(kPen + 0.5 - away, 0.0, 1.0) * (head + 2) / (kHeads + 1);
        const auto grey = static_cast<forms::Pixel>(std::lround(255 - kDarkest * ink));
        if (ink > 0) strip.Set(x, y, forms::kOpaque | grey << 16 | grey << 8 | grey);
      }
    }
  }
  return forms::Picture(std::move(strip));
}

}  // namespace

Bookmarks::Bookmarks(reader::Reader& the_reader, forms::PictureBox& Picture1, forms::PictureBox& Picture2,
                     forms::PictureBox& picp, reader::ToolButtons& the_tools, forms::Menu& xb)
    : reader_(the_reader), Picture1_(Picture1), Picture2_(Picture2), picp_(picp), tools_(the_tools) {
  Label19_3.PutInArray(3);
  C_4.PutInArray(4);
  Picture2_.Picture = Arrows();
  tools_.Command3.Click = [this] {
    picp_.Visible = false;
    xb_Click();
    tools_.Disable();
  };
  xb.Click = [this] { xb_Click(); };
  File1.Click = [this] { File1_Click(); };
  Command5.Click = [this] {
    reader_.RestoreBookmark();
    Close();
  };
  Command6.Click = [this] { Command6_Click(); };
  Command7.Click = [this] { Close(); };
  Command10.Click = [this] { Command10_Click(); };
  Command11.Click = [this] { Command11_Click(); };
  // ODDITY(sweeping-chapters): every movement of the pointer over the box opens the next chapter, even past
  // the last one.
  Picture2_.MouseMove = [this](const forms::MouseEvent&) { reader_.StepToNextChapter(); };
}

// ODDITY(bookmark-doors): the menu entry leaves the picture open and the tool buttons enabled; the tool
// button does not.
void Bookmarks::xb_Click() {
  Picture1_.Visible = true;
  reader_.LBLMRK(1).Caption = reader_.Stem();
  reader_.LBLMRK(2).Caption = reader_.Chapter();
}

void Bookmarks::File1_Click() {
  const int selected = File1.SelectedIndex();
  if (selected < 0) return;
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kBookmark, reader_.DataFile(File1.List(selected)));
  const reader::BookmarkRecord record = reader::ReadBookmarkRecord(slots, kBookmark);
  slots.Close(kBookmark);
  reader_.TakeBookmark(record);
}

std::string Bookmarks::PathOf(const std::string& name) const { return reader_.DataFile(name + ".bkm"); }

void Bookmarks::WritePlace(const std::string& name) {
  reader::WriteBookmarkRecord(reader_.form.Slots(), kBookmark, {name, reader_.Book(), reader_.Chapter()});
}

void Bookmarks::Command10_Click() {
  const std::string name = AskForName(reader_.form.Platform(), "Enter a name for bookmark", "Enter Name");
  if (name.empty()) return;
  // ODDITY(new-keeps-place): in a file that exists the record is added after the first one. Only the first is
  // ever read, so the bookmark keeps its old place; Update replaces it.
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForAppending(kBookmark, PathOf(name));
  WritePlace(name);
  slots.Close(kBookmark);
  File1.Refresh();
  reader_.TakeBookmark({name, reader_.Book(), reader_.Chapter()});
}

// ODDITY(update-by-label): the label names the file. Without a current bookmark this is `.bkm`; a deleted
// file comes back; if the name inside a file differs from the file's name, another file is written.
void Bookmarks::Command6_Click() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  const std::string& name = reader_.LBLMRK(0).Caption;
  ignore([&] { reader_.form.Files().SetAside(PathOf(name)); });
  ignore([&] { slots.OpenForAppending(kBookmark, PathOf(name)); });
  ignore([&] { WritePlace(name); });
  ignore([&] { slots.Close(kBookmark); });
  ignore([&] { File1.Refresh(); });
}

void Bookmarks::Command11_Click() {
  if (const int selected = File1.SelectedIndex(); selected >= 0) {
    reader_.form.Files().DeleteKeepingBackup(reader_.DataFile(File1.List(selected)));
  }
  File1.Refresh();
}

void Bookmarks::Close() {
  Picture1_.Visible = false;
  tools_.Enable();
}

}  // namespace lectern::aids
