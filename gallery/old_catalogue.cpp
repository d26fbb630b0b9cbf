#include "gallery/old_catalogue.h"

#include <utility>

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

namespace {

constexpr int kOld = 1;  // slots
constexpr int kNew = 2;

}  // namespace

OldCatalogue::OldCatalogue(PictureCatalogue& the_catalogue, Viewer& the_viewer)
    : catalogue_(the_catalogue), viewer_(the_viewer), reader_(catalogue_.reader) {
  Command38.Click = [this] { Command38_Click(); };
}

std::string OldCatalogue::OldFile() const { return reader_.DataFile("pics.dat"); }

void OldCatalogue::ConvertPicsDat() {
  enum class Expected { kCredit, kName, kPlace };
  files::FileSlots& slots = reader_.form.Slots();
  const base::Ignoring ignore;
  ignore([&] { reader_.form.Files().DeleteKeepingBackup(catalogue_.CatalogueFile()); });  // or it was missing
  slots.OpenForReading(kOld, OldFile());
  slots.OpenForAppending(kNew, catalogue_.CatalogueFile());
  PictureRecord record;
  Expected expected = Expected::kCredit;
  while (!slots.EndOfFile(kOld)) {
    std::string line(slots.ReadLine(kOld));
    // ODDITY(short-names-are-skipped): a name of five letters or fewer is taken for no line at all, and the
    // place behind it for a name.
    constexpr std::size_t kTooShort = 5;
    if (text::Length(line) <= kTooShort || line.starts_with("'''''")) continue;
    if (line.starts_with("PICTU")) {
      record.author = std::move(line);
      expected = Expected::kName;
    } else if (expected == Expected::kName) {
      record.name = std::move(line);
      expected = Expected::kPlace;
    } else if (expected == Expected::kPlace) {
      record.place = std::move(line);
      WritePictureRecord(slots, kNew, record);
      expected = Expected::kName;
    }
  }
  slots.Close(kOld);
  slots.Close(kNew);
  reader_.rtxt.LoadFile(catalogue_.CatalogueFile());
}

// Shows the picture whose place the line is, where that lies at or behind the reader's chapter and the
// picture has a name; whether it did.
bool OldCatalogue::ShowAtOrBehindChapter(const std::string& line, std::string name) {
  const int chapter = ChapterOf(line, text::Length(reader_.Book()));
  name = text::TrimEnd(name);
  if (chapter < text::LeadingDigits(reader_.Chapter()) || name.empty()) return false;
  viewer_.pick.Picture = reader_.form.LoadPicture(reader_.DataFile("pics\\" + name + ".jpg"));
  viewer_.LBLPICP.Caption = name;
  viewer_.lblvs.Caption = line;
  return true;
}

void OldCatalogue::ShowPicsDatPicture() {
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kOld, OldFile());
  std::string name;
  bool shown = false;
  while (!shown && !slots.EndOfFile(kOld)) {
    const std::string line(slots.ReadLine(kOld));
    if (IsInBook(line, reader_.Book())) {
      shown = ShowAtOrBehindChapter(line, name);
    } else {
      name = line;
    }
  }
  slots.CloseAll();
}

// The same with every line told in a box, and the book's name in another: a means to look into the file.
void OldCatalogue::Command38_Click() {
  files::FileSlots& slots = reader_.form.Slots();
  const std::string book = text::Upper(reader_.Book());
  slots.OpenForReading(kOld, OldFile());
  std::string name;
  bool shown = false;
  while (!shown && !slots.EndOfFile(kOld)) {
    const std::string line(slots.ReadLine(kOld));
    reader_.form.Platform().Message(line);
    reader_.form.Platform().Message(book);
    if (IsInBook(text::Upper(line), book)) {
      shown = ShowAtOrBehindChapter(line, name);
    } else {
      name = line;
    }
  }
  slots.Close(kOld);
}

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
