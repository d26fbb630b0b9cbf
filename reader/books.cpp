#include "reader/books.h"

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "reader/canon.h"
#include "reader/reader.h"

namespace lectern::reader {

VersionOptions::VersionOptions(forms::Window& form) {
  for (const Version& version : kVersions) {
    options.emplace_back(form, version.option,
                         forms::OptionDesign{.name = version.name, .checked = options.empty()});
  }
  for (const Version& version : kVersions) {
    labels_.emplace_back(form, version.option_label, forms::LabelDesign{.caption = version.label});
  }
}

const Version& VersionOptions::Current() const {
  for (std::size_t i = 0; i + 1 < kVersions.size(); ++i) {
    if (options[i].Value) return kVersions[i];
  }
  return kVersions.back();
}

const Version& VersionOptions::Other() const {
  return &Current() == kVersions.data() ? kVersions[1] : kVersions[0];
}

namespace {

constexpr int kRead = 1;  // slots
constexpr int kWrite = 2;

}  // namespace

std::optional<int> ChapterCount(forms::Window& form, std::string_view path, std::string_view book) {
  const base::Ignoring ignore;
  files::FileSlots& slots = form.Slots();
  std::optional<int> found;
  ignore([&] { slots.OpenForReading(kRead, path); });
  while (slots.IsOpen(kRead) && !slots.EndOfFile(kRead)) {
    ignore([&] {
      const std::string name(slots.ReadField(kRead));
      const std::string_view count = slots.ReadField(kRead);
      if (text::EqualFolded(name, book)) found = text::IntegerValue(count);
    });
  }
  ignore([&] { slots.Close(kRead); });
  return found;
}

ChapterCounts::ChapterCounts(forms::Window& form, Reader& the_reader) : form_(form), reader_(the_reader) {
  Command12.Click = [this] { Command12_Click(); };
}

// Unlike all other code, it reads from the data folder itself and by short stems.
void ChapterCounts::Command12_Click() {
  files::FileSlots& slots = form_.Slots();
  for (int i = 0; i < reader_.lst.ListCount(); ++i) {
    const std::string& name = reader_.lst.List(i);
    int count = 0;
    slots.OpenForReading(kRead, reader_.DataFile(ShortStem(name) + ".txt"));
    while (!slots.EndOfFile(kRead)) {
      if (slots.ReadLine(kRead).starts_with("Chap")) ++count;
    }
    slots.Close(kRead);
    slots.OpenForAppending(kWrite, reader_.DataFile("bookschap.txt"));
    slots.WriteRecord(kWrite, name, count);
    slots.Close(kWrite);
  }
}

}  // namespace lectern::reader
