#include "reader/catalogue.h"

#include "base/error_modes.h"
#include "base/text/characters.h"
#include "base/text/letter_case.h"
#include "base/text/numbers.h"

namespace lectern::reader {

namespace {

constexpr int kRead = 1;  // slots
constexpr int kWrite = 2;

}  // namespace

Catalogue::Catalogue(Reader& the_reader)
    : reader_(the_reader), Command12(reader_.form, "Command12", {.caption = "make baokschap.txt"}) {
  Command12.Click = [this] { Command12_Click(); };
}

void Catalogue::LoadChapterRange() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  const std::string book = text::Lower(reader_.lblbk.Caption());
  ignore([&] { slots.OpenForReading(kRead, reader_.Dir1.Path + "\\bookschap.txt"); });
  while (slots.IsOpen(kRead) && !slots.EndOfFile(kRead)) {
    std::string name;
    std::string count;
    const bool whole = ignore([&] {
      name = slots.ReadField(kRead);
      count = slots.ReadField(kRead);
    });
    // The last record of a name wins: the whole file is read.
    if (whole && text::Lower(name) == book) ignore([&] { reader_.scr.Max = text::IntegerValue(count); });
  }
  ignore([&] { slots.Close(kRead); });
  ignore([&] { reader_.scr.Value = text::IntegerValue(reader_.lblc.Caption()); });
}

// Reads from the data folder itself and by names cut to eight characters, unlike every other reader.
void Catalogue::Command12_Click() {
  files::FileSlots& slots = reader_.form.Slots();
  for (int i = 0; i < reader_.lst.ListCount(); ++i) {
    const std::string& name = reader_.lst.List(i);
    constexpr std::size_t kShortName = 8;
    const std::string stem(text::Left(name, kShortName));
    int count = 0;
    slots.OpenForReading(kRead, reader_.Dir1.Path + "\\" + stem + ".txt");
    while (!slots.EndOfFile(kRead)) {
      if (slots.ReadLine(kRead).starts_with("Chap")) ++count;
    }
    slots.Close(kRead);
    slots.OpenForAppending(kWrite, reader_.Dir1.Path + "\\bookschap.txt");
    slots.WriteRecord(kWrite, name, count);
    slots.Close(kWrite);
  }
}

}  // namespace lectern::reader
