#include "gallery/older_list.h"

#include "base/error_modes.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"

namespace lectern::gallery {

namespace {

constexpr int kEmpty = 2;  // slot

}  // namespace

OlderList::OlderList(PictureCatalogue& the_catalogue, reader::Panels& panels)
    : Command40(panels.Frame5, "Command40", {.caption = "list?"}),
      List4(panels.Frame6, "List4", {.name = "Older list of the book's pictures"}),
      List5(panels.Frame6, "List5", {.name = "Older list of the chapter's pictures"}),
      catalogue(the_catalogue),
      reader(catalogue.reader) {
  Command40.Click = [this] { Command40_Click(); };
}

void OlderList::Command40_Click() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader.form.Slots();
  const std::string empty_file = reader.Dir1.Path + "\\tmppics3.dat";
  List4.Clear();
  List5.Clear();
  // ODDITY(older-list-doubles): the work file still holds what the last change of book put there, so that
  // each picture stands twice. It is meant.
  const int highest = catalogue.CopyBookRecords();
  ignore([&] { slots.OpenForAppending(kEmpty, empty_file); });
  const double chapter = text::NumberValue(reader.lblc.Caption());
  const std::size_t book_length = text::Length(reader.lblbook.Caption());
  for (const auto& entry : catalogue.RecordsByChapter(book_length, highest)) {
    const std::string name(text::TrimEnd(entry.record.name));
    List4.AddItem(name);
    if (entry.chapter == chapter) List5.AddItem(name);
  }
  ignore([&] { slots.Close(kEmpty); });
  ignore([&] { catalogue.picnm.Max = List5.ListCount() - 1; });
  ignore([&] {
    if (List4.ListCount() > 0) catalogue.picnm.Value = 1;
  });
  ignore([&] { reader.form.Files().Delete(catalogue.WorkFile()); });
  ignore([&] { reader.form.Files().Delete(empty_file); });
  ignore([&] { catalogue.picnm.Value = 0; });
}

void OlderList::ListChapterPictures() {
  constexpr int kWorthAShow = 2;
  Command40_Click();
  if (List5.ListCount() == 0) {
    catalogue.picnm.Max = 0;
  } else if (List5.ListCount() >= kWorthAShow) {
    reader.tmrpic.Enabled = true;
  }
}

}  // namespace lectern::gallery
