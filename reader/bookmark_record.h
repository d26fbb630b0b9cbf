// A bookmark as its file holds it: a record of name, book and chapter.
#pragma once

#include <string>

#include "base/files/file_slots.h"

namespace lectern::reader {

struct BookmarkRecord {
  std::string name;
  std::string book;
  std::string chapter;
};

// The next three fields of the file, wherever its lines end. Error 62 where it ends before.
inline BookmarkRecord ReadBookmarkRecord(files::FileSlots& slots, int slot) {
  BookmarkRecord record;
  for (std::string* field : {&record.name, &record.book, &record.chapter}) *field = slots.ReadField(slot);
  return record;
}

inline void WriteBookmarkRecord(files::FileSlots& slots, int slot, const BookmarkRecord& record) {
  slots.WriteRecord(slot, record.name, record.book, record.chapter);
}

}  // namespace lectern::reader
