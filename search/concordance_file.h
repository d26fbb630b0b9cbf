// Which file holds the concordance of the version that is set, and how its records are read: one after the
// other, Word and Reference, from the first byte at every use.
#pragma once

#include <string>
#include <string_view>

#include "reader/reader.h"

namespace lectern::search {

// "CONCORD.DAT" or "CONCORD2.DAT" in the data folder; the version is looked at anew at every call.
std::string ConcordanceFile(const reader::Reader& reader);

struct ConcordanceRecord {
  std::string word;
  std::string reference;
};

// Reads the next record into one that is used again and again. Error 62 where the file ends before.
void ReadConcordanceRecord(files::FileSlots& slots, int slot, ConcordanceRecord& record);
void WriteConcordanceRecord(files::FileSlots& slots, int slot, const ConcordanceRecord& record);

// Fills a list with the words of the concordance that is open on the slot, in upper case: one entry for the
// records of a word that follow one another, up to the limit, which ends the reading. Gives back the word
// that was taken last, as it stands in the file; "" where there was none.
std::string FillWordList(files::FileSlots& slots, int slot, forms::ListBox& list);

inline constexpr int kMostWords = 4000;

}  // namespace lectern::search
