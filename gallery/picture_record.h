// A record of the picture catalogue: the picture's name, the place it illustrates, and who drew it. The
// name is the picture's file without folder and ending, and in the catalogue it is all that tells one
// picture from another; the same name may stand in several records. The third field is a whole credit line.
#pragma once

#include <string>

#include "base/files/file_slots.h"

namespace lectern::gallery {

struct PictureRecord {
  std::string name;
  std::string place;
  std::string author;
};

// The next three fields of the file, wherever its lines end; error 62 where it ends before.
PictureRecord ReadPictureRecord(files::FileSlots& slots, int slot);

void WritePictureRecord(files::FileSlots& slots, int slot, const PictureRecord& record);

}  // namespace lectern::gallery
