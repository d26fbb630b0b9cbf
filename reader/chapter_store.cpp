#include "reader/chapter_store.h"

#include "base/error_modes.h"
#include "base/text/numbers.h"

namespace lectern::reader {

namespace {

constexpr int kBook = 1;  // slots
constexpr int kScratch = 2;

constexpr std::string_view kChapterMark = "Chap";

bool IsChapterLine(std::string_view line) { return line.starts_with(kChapterMark); }

}  // namespace

ChapterStore::ChapterStore(Reader& the_reader) : reader_(the_reader) {
  reader_.lblc.Change = [this] { lblc_Change(); };
  reader_.optk.Click = [this] { optk_Click(); };
  reader_.optn.Click = [this] { optn_Click(); };
}

void ChapterStore::lblc_Change() {
  reader_.tmrpic.Enabled = false;  // on the early return too
  if (reader_.lblc.Caption == "" || reader_.lblbook.Caption == "") return;

  files::FileSlots& slots = reader_.form.Slots();
  const base::Trapping trap{[&] { slots.Close(kBook); }};
  const std::string scratch = reader_.Dir3.Path + "\\temp.txt";
  const bool opened = trap([&] { slots.OpenForReading(kBook, reader_.BookFile(reader_.lblbook.Caption())); });
  if (opened) {
    // Opened for appending, so that lines a broken run left there come first.
    bool written = trap([&] { slots.OpenForAppending(kScratch, scratch); });
    std::string held;
    const bool found = CopyChapter(trap, held);
    trap([&] { slots.Close(kBook); });
    // ODDITY(next-heading): the line in hand is written once more, whatever it is. It is the last line of
    // the book, or the heading of the next chapter, with which every other chapter ends; it is meant.
    written = trap([&] { slots.PrintLine(kScratch, held); }) && written;
    written = trap([&] { slots.Close(kScratch); }) && written;
    // What a full disk cut off is no chapter: the pane keeps its text.
    if (written && trap([&] { reader_.rtxt.LoadFile(scratch); })) {
      const forms::Label& version = reader_.optk.Value ? reader_.Label34 : reader_.Label35;
      shown_ = {reader_.lblbk.Caption(), found ? reader_.lblc.Caption() : "", version.Caption()};
    }
    trap([&] { reader_.form.Files().Delete(scratch); });
  }
  trap([&] { reader_.LBLMRK(2).Caption = reader_.lblc.Caption; });
  trap([&] { reader_.scr.Value = text::IntegerValue(reader_.lblc.Caption()); });
  trap([&] { reader_.SeekChapterPicture(); });
}

// Copies the chapter from the book to the scratch file, all but its last line, and leaves the line in hand;
// whether the book has it. A failure closes the book, and with it ends the loop.
bool ChapterStore::CopyChapter(const base::Trapping& trap, std::string& held) {
  files::FileSlots& slots = reader_.form.Slots();
  int counter = 0;  // 16 bits
  bool done = false;
  std::string_view line;
  const auto more = [&] { return slots.IsOpen(kBook) && !slots.EndOfFile(kBook); };
  while (!done && more()) {
    line = slots.ReadLineStarting(kBook, kChapterMark);
    if (!IsChapterLine(line)) continue;  // the book's last line
    trap([&] { counter = text::RoundToInteger(counter + 1); });
    // The line behind a chapter line belongs to the chapter, whatever it looks like: a chapter line that
    // follows another one at once is not counted.
    trap([&] { line = slots.ReadLine(kBook); });
    bool wanted = false;
    trap([&] { wanted = text::ToNumber(reader_.lblc.Caption()) == counter; });
    if (!wanted) continue;
    while (!IsChapterLine(line) && more()) {
      trap([&] { slots.PrintLine(kScratch, line); });
      trap([&] { line = slots.ReadLine(kBook); });
    }
    done = true;
  }
  held = line;
  return done;
}

void ChapterStore::optk_Click() { ChangeVersion("King James Version", "\\KJV"); }
void ChapterStore::optn_Click() { ChangeVersion("Revised Standard Version", "\\NEW"); }

// The book stays, the chapter falls back to 1.
void ChapterStore::ChangeVersion(const std::string& name, const std::string& folder) {
  reader_.LBLVR.Caption = name;
  reader_.Dir3.Path = reader_.Dir1.Path + folder;
  reader_.lblc.Caption = "";
  reader_.lblc.Caption = "1";
}

}  // namespace lectern::reader
