#include "gallery/old_catalogue.h"

#include <utility>

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"

namespace lectern::gallery {

namespace {

constexpr int kOld = 1;  // slots
constexpr int kNew = 2;
constexpr int kEmpty = 2;

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
  ignore([&] { reader_.form.Files().SetAside(catalogue_.CatalogueFile()); });  // it may be missing
  slots.OpenForReading(kOld, OldFile());
  slots.OpenForAppending(kNew, catalogue_.CatalogueFile());
  PictureRecord record;
  Expected expected = Expected::kCredit;
  while (!slots.EndOfFile(kOld)) {
    std::string line(slots.ReadLine(kOld));
    // ODDITY(short-names-are-skipped): a name of five letters or fewer is skipped, and the place after it is
    // taken for a name.
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

// Shows the first picture with a name whose place is at or after the chapter. Other lines are names.
void OldCatalogue::ShowChapterPicture(const std::function<bool(const std::string& line)>& is_in_book) {
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kOld, OldFile());
  std::string name;
  while (!slots.EndOfFile(kOld)) {
    const std::string line(slots.ReadLine(kOld));
    if (!is_in_book(line)) {
      name = text::TrimEnd(line);
    } else if (!name.empty() &&
               ChapterOf(line, text::Length(reader_.Book())) >= text::LeadingDigits(reader_.Chapter())) {
      viewer_.pick.Picture = reader_.form.LoadPicture(reader_.DataFile("pics\\" + name + ".jpg"));
      viewer_.LBLPICP.Caption = name;
      viewer_.lblvs.Caption = line;
      return;
    }
  }
}

void OldCatalogue::ShowPicsDatPicture() {
  ShowChapterPicture([this](const std::string& line) { return IsInBook(line, reader_.Book()); });
  reader_.form.Slots().CloseAll();
}

// Ignores case and shows each line and the book's name in boxes, as a way to inspect the file.
void OldCatalogue::Command38_Click() {
  const std::string book = text::Upper(reader_.Book());
  ShowChapterPicture([&](const std::string& line) {
    reader_.form.Platform().Message(line);
    reader_.form.Platform().Message(book);
    return IsInBook(text::Upper(line), book);
  });
  reader_.form.Slots().Close(kOld);
}

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
  // ODDITY(older-list-doubles): the work file still has the records from the last change of book, so each
  // picture is listed twice.
  const int highest = catalogue_.CopyBookRecords();
  ignore([&] { slots.OpenForAppending(kEmpty, empty_file, files::Lasting::kNo); });
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
