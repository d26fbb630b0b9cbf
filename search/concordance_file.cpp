#include "search/concordance_file.h"

#include "base/text/letter_case.h"

namespace lectern::search {

std::string ConcordanceFile(const reader::Reader& reader) {
  return reader.DataFile(reader.CurrentVersion().concordance);
}

// ODDITY(concordance-limit): the words behind the limit are not shown, without a word about it; being counted
// in the order of the file, they are the ones that a person added. It is meant.
std::string FillWordList(files::FileSlots& slots, int slot, forms::ListBox& list) {
  std::string last;
  std::string word;
  for (int count = 0; count < kMostWords && !slots.EndOfFile(slot);) {
    word = slots.ReadField(slot);
    slots.ReadField(slot);
    if (word == last) continue;
    list.AddItem(text::Upper(word));
    ++count;
    last = word;
  }
  return last;
}

}  // namespace lectern::search
