#include "gallery/older_list.h"

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"

namespace lectern::gallery {

namespace {

constexpr int kEmpty = 2;  // slot

}  // namespace

OlderList::OlderList(PictureCatalogue& the_catalogue, forms::Frame& Frame5, forms::Frame& Frame6)
    : Frame5_(Frame5), Frame6_(Frame6), catalogue_(the_catalogue), reader_(catalogue_.reader) {
  Command40.Click = [this] { Command40_Click(); };
}

void OlderList::Command40_Click() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  const std::string empty_file = reader_.DataFile("tmppics3.dat");
  List4.Clear();
  List5.Clear();
  // ODDITY(older-list-doubles): the work file still holds what the last change of book put there, so that
  // each picture stands twice.
  const int highest = catalogue_.CopyBookRecords();
  ignore([&] { slots.OpenForAppending(kEmpty, empty_file); });
  const double chapter = text::LeadingDigits(reader_.Chapter());
  const std::size_t book_length = text::Length(reader_.Stem());
  for (const auto& entry : catalogue_.RecordsByChapter(book_length, highest)) {
    const std::string name(text::TrimEnd(entry.record.name));
    List4.AddItem(name);
    if (entry.chapter == chapter) List5.AddItem(name);
  }
  ignore([&] { slots.Close(kEmpty); });
  catalogue_.picnm.Max = List5.ListCount() - 1;
  if (List4.ListCount() > 0) ignore([&] { catalogue_.picnm.Value = 1; });
  ignore([&] { reader_.form.Files().Delete(catalogue_.WorkFile()); });
  ignore([&] { reader_.form.Files().Delete(empty_file); });
  ignore([&] { catalogue_.picnm.Value = 0; });
}

void OlderList::ListChapterPictures() {
  constexpr int kWorthAShow = 2;
  Command40_Click();
  if (List5.ListCount() == 0) {
    catalogue_.picnm.Max = 0;
  } else if (List5.ListCount() >= kWorthAShow) {
    reader_.tmrpic.Enabled = true;
  }
}

}  // namespace lectern::gallery
