#include "gallery/picture_record.h"

namespace lectern::gallery {

PictureRecord ReadPictureRecord(files::FileSlots& slots, int slot) {
  PictureRecord record;
  record.name = slots.ReadField(slot);
  record.place = slots.ReadField(slot);
  record.author = slots.ReadField(slot);
  return record;
}

void WritePictureRecord(files::FileSlots& slots, int slot, const PictureRecord& record) {
  slots.WriteRecord(slot, record.name, record.place, record.author);
}

}  // namespace lectern::gallery
