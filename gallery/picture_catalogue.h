// The pictures of the open book. The catalogue, `pics2.dat`, is not kept in memory: at each change of book,
// the book's records are copied to a work file, and from there, ordered by chapter, to three parallel lists.
// The gallery shows pictures from these lists only. They are in the hidden maintenance frames.
//
// Two controls that other classes write too are here: the bar picnm, the index of the picture in the viewer,
// and the label lblendpic, the index of the last picture on the strip's page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/files/file_slots.h"
#include "forms/bars_and_timer.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "reader/reader.h"

namespace lectern::gallery {

// A record of the picture catalogue. Several records may have the same name.
struct PictureRecord {
  std::string name;    // of the picture's file, without folder and extension
  std::string place;   // that it illustrates
  std::string author;  // a whole credit line
};

// Reads the next three fields of the file, across line ends. Raises error 62 if the file ends first.
PictureRecord ReadPictureRecord(files::FileSlots& slots, int slot);
void WritePictureRecord(files::FileSlots& slots, int slot, const PictureRecord& record);

// A place in the catalogue consists of the book's name, a blank, the chapter, a colon, and the verse as free
// text: "Genesis 2: 7". As places are typed by hand, the parts may be missing.
//
// Whether the place begins with the book's name, including case.
bool IsInBook(std::string_view place, std::string_view book);

// The chapter of a place in a book whose name has `book_length` characters. Without a colon, it ends with the
// place. Returns 0 if it does not begin with a digit, and the largest int if the number does not fit.
int ChapterOf(std::string_view place, std::size_t book_length);

// The place without its book: "2: 7".
std::string_view ChapterAndVerse(std::string_view place, std::size_t book_length);

class PictureCatalogue {
  forms::Frame& Frame5_;
  forms::Frame& Frame6_;
  forms::PictureBox& picp_;

 public:
  PictureCatalogue(reader::Reader& the_reader, forms::Frame& Frame5, forms::Frame& Frame6,
                   forms::PictureBox& picp)
      : Frame5_(Frame5), Frame6_(Frame6), picp_(picp), reader(the_reader) {}

  // Fills the lists with the pictures of the open book and shows the first page of the strip. Must be called
  // after the book or `pics2.dat` has changed. Reports no failure.
  void ListBookPictures();

  // Moves the viewer to the chapter's first picture, if it has one.
  void SeekChapterPicture();

  // Appends the book's records to the work file and returns their highest chapter, or 0.
  int CopyBookRecords();

  struct Entry {
    int chapter;
    PictureRecord record;
  };
  // The records of the work file from chapter 1 to `highest`, ordered by chapter and then as in the file. The
  // book's name has `book_length` characters.
  std::vector<Entry> RecordsByChapter(std::size_t book_length, int highest);

  std::string CatalogueFile() const { return reader.DataFile("pics2.dat"); }
  std::string WorkFile() const { return reader.DataFile("tmppics2.dat"); }
  std::string PictureFile(std::string_view name) const;

  // The list index of the first picture on the strip's page.
  int PageStart() const;

  reader::Reader& reader;

  // Name, place and author, index by index.
  forms::ControlArray<forms::ListBox> lstmc{Frame6_,
                                            "lstmc",
                                            {{.name = "Names of the book's pictures"},
                                             {.name = "Places of the book's pictures"},
                                             {.name = "Authors of the book's pictures"}}};
  forms::Label lbltm{Frame6_, "lbltm"};  // the highest chapter with a picture
  // The record selected last: name, place, author.
  forms::ControlArray<forms::TextBox> selfile{
      Frame5_, "selfile", {{.name = "Name"}, {.name = "Place"}, {.name = "Author"}}};
  forms::DirListBox Dirpics{Frame6_, "Dirpics", {.name = "Folder of the pictures"}};
  forms::Label lblendpic{Frame5_, "lblendpic", {.caption = "lblendpic"}};
  forms::HScrollBar picnm{
      picp_, "picnm", {.name = "Picture of the book", .follows_thumb = true, .counts_from_1 = true}};

 private:
  void ExtractBookPictures();
  void FillPictureLists();
  void ClearLists();
};

}  // namespace lectern::gallery
