// The pictures of the book that is open. The catalogue, `pics2.dat`, is never held in memory: at each change
// of book the book's records go to a work file, and from there, in the order of the chapters, into three
// lists that stand side by side. All that the gallery shows comes from these lists.
//
// Here stand also the two controls through which the gallery is moved, because the lists and whoever
// shows them both write them: the bar picnm, the index of the picture in the viewer, and the label
// lblendpic, the index of the last picture on the strip's page. The lists lie in the keeper's frames and are
// no reader's sight.
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

// A record of the picture catalogue: the picture's name, the place it illustrates, and who drew it. The
// name is the picture's file without folder and ending, and in the catalogue it is all that tells one
// picture from another; the same name may stand in several records. The third field is a whole credit line.
struct PictureRecord {
  std::string name;
  std::string place;
  std::string author;
};

// The next three fields of the file, wherever its lines end; error 62 where it ends before.
PictureRecord ReadPictureRecord(files::FileSlots& slots, int slot);

void WritePictureRecord(files::FileSlots& slots, int slot, const PictureRecord& record);

// The place that a picture illustrates, as the catalogue writes it: the book's name, a blank, the chapter, a
// colon, and the verse as free text, which is shown and never read.
//
//   Genesis 2: 7
//
// A place may be anything that a hand typed. Without a colon all that follows the blank counts as the
// chapter; a chapter that does not begin with a digit is 0.
// Whether the place begins with the book's name, letter by letter. A book whose name merely begins so is
// taken along.
bool IsInBook(std::string_view place, std::string_view book);

// The chapter of a place in a book whose name has `book_length` characters. A number too large to be one
// is the largest there is.
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

  // Fills the lists with the pictures of the book that is open: to be called when the book or `pics2.dat` has
  // changed. The strip is then on its first page. Shows no failure.
  void ListBookPictures();

  // Moves the viewer to the chapter's first picture, where it has one.
  void SeekChapterPicture();

  // Appends the book's records to the work file as they stand; the highest chapter among them, or 0.
  int CopyBookRecords();

  // The records of the work file by chapter, from 1 to the highest wanted, and within a chapter in the order
  // of the file. The book's name has `book_length` characters.
  struct Entry {
    int chapter;
    PictureRecord record;
  };
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
  // The record picked last: name, place, author.
  forms::ControlArray<forms::TextBox> selfile{
      Frame5_, "selfile", {{.name = "Name"}, {.name = "Place"}, {.name = "Author"}}};
  // The folder of the pictures.
  forms::DirListBox Dirpics{Frame6_, "Dirpics", {.name = "Folder of the pictures"}};
  // Index of the last slot on the strip's page.
  forms::Label lblendpic{Frame5_, "lblendpic", {.caption = "lblendpic"}};
  // Index of the viewer's picture.
  forms::HScrollBar picnm{
      picp_, "picnm", {.name = "Picture of the book", .follows_thumb = true, .counts_from_1 = true}};

 private:
  void ExtractBookPictures();
  void FillPictureLists();
  void ClearLists();
};

}  // namespace lectern::gallery
