#include "search/concordance_file.h"

#include "base/text/characters.h"

namespace lectern::search {

std::string ConcordanceFile(const reader::Reader& reader) {
  return reader.DataFile(reader.CurrentVersion().concordance);
}

void ReadConcordanceRecord(files::FileSlots& slots, int slot, ConcordanceRecord& record) {
  record.word = slots.ReadField(slot);
  record.reference = slots.ReadField(slot);
}

void WriteConcordanceRecord(files::FileSlots& slots, int slot, const ConcordanceRecord& record) {
  slots.WriteRecord(slot, record.word, record.reference);
}

// ODDITY(concordance-limit): the words behind the limit are not shown, without a word about it; being counted
// in the order of the file, they are the ones that a person added.
std::string FillWordList(files::FileSlots& slots, int slot, forms::ListBox& list) {
  std::string last;
  ConcordanceRecord record;
  for (int count = 0; count < kMostWords && !slots.EndOfFile(slot);) {
    ReadConcordanceRecord(slots, slot, record);
    if (record.word == last) continue;
    list.AddItem(text::Upper(record.word));
    ++count;
    last = record.word;
  }
  return last;
}

}  // namespace lectern::search
