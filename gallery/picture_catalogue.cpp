#include "gallery/picture_catalogue.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"

namespace lectern::gallery {

namespace {

constexpr int kWork = 1;  // slots
constexpr int kCatalogue = 2;

// Calls `take` with each remaining whole record of a file, ignoring failures. The file need not be open.
template <class Take>
void ForEachRecord(files::FileSlots& slots, int slot, Take take) {
  const base::Ignoring ignore;
  while (slots.IsOpen(slot) && !slots.EndOfFile(slot)) {
    ignore([&] { take(ReadPictureRecord(slots, slot)); });
  }
}

}  // namespace

std::string PictureCatalogue::PictureFile(std::string_view name) const {
  return (Dirpics.Path + "\\").append(name).append(".jpg");
}

int PictureCatalogue::PageStart() const {
  constexpr int kSlotsBeforeLast = 4;
  return text::RoundToLong(text::LeadingDigits(lblendpic.Caption())) - kSlotsBeforeLast;
}

void PictureCatalogue::ListBookPictures() {
  ExtractBookPictures();
  FillPictureLists();
}

void PictureCatalogue::ClearLists() {
  lstmc.ForEach([](int, forms::ListBox& list) { list.Clear(); });
}

int PictureCatalogue::CopyBookRecords() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader.form.Slots();
  const std::string& book = reader.Book();
  const std::size_t book_length = text::Length(book);
  int highest = 0;
  ignore([&] { slots.OpenForReading(kCatalogue, CatalogueFile()); });
  ignore([&] { slots.OpenForAppending(kWork, WorkFile(), files::Lasting::kNo); });
  ForEachRecord(slots, kCatalogue, [&](const PictureRecord& record) {
    if (!IsInBook(record.place, book)) return;
    ignore([&] { WritePictureRecord(slots, kWork, record); });
    highest = std::max(highest, ChapterOf(record.place, book_length));
  });
  ignore([&] { slots.Close(kWork); });
  ignore([&] { slots.Close(kCatalogue); });
  return highest;
}

void PictureCatalogue::ExtractBookPictures() {
  const base::Ignoring ignore;
  ClearLists();
  ignore([&] { reader.form.Files().Delete(WorkFile()); });
  lbltm.Caption = std::to_string(CopyBookRecords());
  // ODDITY(blank-labels-on-book-change): unless the viewer was at picture 0, it looks up picture 0 in the
  // still empty lists: its labels become blank, and the old picture stays.
  ignore([&] { picnm.Value = 0; });
}

// Sorting, instead of a pass over the file for each chapter, keeps a mistyped huge chapter from taking long.
std::vector<PictureCatalogue::Entry> PictureCatalogue::RecordsByChapter(std::size_t book_length,
                                                                        int highest) {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader.form.Slots();
  std::vector<Entry> entries;
  ignore([&] { slots.OpenForReading(kWork, WorkFile()); });
  ForEachRecord(slots, kWork, [&](PictureRecord record) {
    // ODDITY(chapter-nought): a place without a chapter is in the work file, but in no list.
    const int chapter = ChapterOf(record.place, book_length);
    if (chapter >= 1 && chapter <= highest) entries.push_back({chapter, std::move(record)});
  });
  ignore([&] { slots.Close(kWork); });
  std::stable_sort(entries.begin(), entries.end(),
                   [](const Entry& a, const Entry& b) { return a.chapter < b.chapter; });
  return entries;
}

void PictureCatalogue::FillPictureLists() {
  const base::Ignoring ignore;
  ClearLists();
  const int highest = text::RoundToLong(text::LeadingDigits(lbltm.Caption()));
  for (Entry& entry : RecordsByChapter(text::Length(reader.Book()), highest)) {
    lstmc(0).AddItem(std::string(text::TrimEnd(entry.record.name)));
    lstmc(1).AddItem(std::move(entry.record.place));
    lstmc(2).AddItem(std::move(entry.record.author));
  }
  picnm.Max = lstmc(0).ListCount() - 1;
  ignore([&] { lblendpic.Caption = ""; });
  ignore([&] { lblendpic.Caption = "4"; });
}

void PictureCatalogue::SeekChapterPicture() {
  const base::Ignoring ignore;
  const std::size_t book_length = text::Length(reader.Stem());
  const double chapter = text::LeadingDigits(reader.Chapter());
  for (int i = 0; i < lstmc(1).ListCount(); ++i) {
    if (ChapterOf(lstmc(1).List(i), book_length) != chapter) continue;
    ignore([&] { picnm.Value = i; });
    return;
  }
}

PictureRecord ReadPictureRecord(files::FileSlots& slots, int slot) {
  PictureRecord record;
  for (std::string* field : {&record.name, &record.place, &record.author}) *field = slots.ReadField(slot);
  return record;
}

void WritePictureRecord(files::FileSlots& slots, int slot, const PictureRecord& record) {
  slots.WriteRecord(slot, record.name, record.place, record.author);
}

bool IsInBook(std::string_view place, std::string_view book) {
  // ODDITY(book-by-prefix): the pictures of a book whose name begins with this one's are included.
  return place.starts_with(book);
}

int ChapterOf(std::string_view place, std::size_t book_length) {
  std::string_view tail = text::Mid(place, book_length + 1);
  tail = tail.substr(0, tail.find(':'));
  const std::string_view chapter = text::Mid(tail, 2);
  int number = 0;
  const bool digits = text::StartsWithDigit(chapter);
  const auto [end, failure] = std::from_chars(chapter.data(), chapter.data() + chapter.size(), number);
  if (failure == std::errc::result_out_of_range && digits) return std::numeric_limits<int>::max();
  return digits ? number : 0;
}

std::string_view ChapterAndVerse(std::string_view place, std::size_t book_length) {
  return text::Mid(place, book_length + 2);
}

}  // namespace lectern::gallery
