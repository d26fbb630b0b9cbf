#include "reader/reader.h"

namespace lectern::reader {

Reader::Reader(forms::Window& window, Panels& panels)
    : form(window),
      Dir1(panels.Frame1, "Dir1"),
      Dir3(panels.Frame1, "Dir3"),
      lblbook(form, "lblbook", {.visible = false}),
      lblbk(form, "lblbk"),
      lblc(form, "lblc", {.caption = "00"}),
      LBLVR(form, "LBLVR", {.caption = "King James Version"}),
      Label30(form, "Label30", {.caption = "Book of"}),
      Label21(form, "Label21", {.caption = "Chapter"}),
      optk(form, "optk", {.value = 1, .name = "King James Version"}),
      optn(form, "optn", {.name = "Revised Standard Version"}),
      Label34(form, "Label34", {.caption = "KJV"}),
      Label35(form, "Label35", {.caption = "NEW"}),
      lst(form, "lst", {.name = "Books"}),
      scr(form, "scr",
          {.value = 1,
           .min = 1,
           .max = 32767,
           .key_back = "Ctrl+PgUp",
           .key_on = "Ctrl+PgDown",
           .name = "Chapter"}),
      rtxt(form, "rtxt", {.read_only = true, .name = "Text of the chapter"}),
      List1(form, "List1"),
      LBLMRK(panels.Picture1, "LBLMRK", {{.caption = "NAME"}, {.caption = "BOOK"}, {.caption = "CHAPTER"}}),
      tmrpic(form, "tmrpic", {.enabled = false, .interval = 5000}),
      ExtractBookPictures([] {}),
      FillPictureLists([] {}),
      SeekChapterPicture([] {}) {}

std::string Reader::BookFile(std::string_view stem) const {
  return Dir3.Path + (optk.Value ? "\\" : "\\N") + std::string(stem) + ".txt";
}

void Reader::Show(const std::string& stem, const std::string& name, const std::string& chapter) {
  lblc.Caption = "";
  lblbook.Caption = stem;
  lblbk.Caption = name;
  lblc.Caption = chapter;
}

}  // namespace lectern::reader
