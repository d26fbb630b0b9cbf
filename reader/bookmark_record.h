// A record of a bookmark file.
#pragma once

#include <string>

#include "base/files/file_slots.h"

namespace lectern::reader {

struct BookmarkRecord {
  std::string name;
  std::string book;
  std::string chapter;
};

// Reads the next three fields, across line ends. Raises error 62 if the file ends first.
inline BookmarkRecord ReadBookmarkRecord(files::FileSlots& slots, int slot) {
  BookmarkRecord record;
  for (std::string* field : {&record.name, &record.book, &record.chapter}) *field = slots.ReadField(slot);
  return record;
}

inline void WriteBookmarkRecord(files::FileSlots& slots, int slot, const BookmarkRecord& record) {
  slots.WriteRecord(slot, record.name, record.book, record.chapter);
}

}  // namespace lectern::reader
