#include "base/files/file_slots.h"

#include <utility>

#include "base/errors.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"

namespace lectern::files {

using base::ErrorNumber;
using base::RunTimeError;

std::string FieldText(std::string_view text) {
  std::string held;
  for (const char c : text) c == '"' ? held.append("''") : held.append(1, c);
  return held;
}

void Field::AppendTo(std::string& record) const {
  if (quoted_) {
    record.append(1, '"').append(FieldText(text_)).append(1, '"');
  } else {
    record.append(text_);
  }
}

void FileSlots::RequireFree(int slot) const {
  constexpr int kHighest = 255;
  if (slot < 1 || slot > kHighest) throw RunTimeError(ErrorNumber::kBadFileName);
  if (IsOpen(slot)) throw RunTimeError(ErrorNumber::kFileAlreadyOpen);
}

FileSlots::Reading* FileSlots::Find(int slot) const {
  const auto index = static_cast<std::size_t>(slot);
  return slot >= 0 && index < reading_.size() ? reading_[index].get() : nullptr;
}

bool FileSlots::IsOpen(int slot) const {
  const Reading* const reading = Find(slot);
  return (reading != nullptr && reading->open) || appending_.contains(slot);
}

void FileSlots::OpenForReading(int slot, std::string_view name) {
  RequireFree(slot);
  const auto index = static_cast<std::size_t>(slot);
  if (index >= reading_.size()) reading_.resize(index + 1);
  if (!reading_[index]) reading_[index] = std::make_unique<Reading>();
  Reading& reading = *reading_[index];
  files_.Read(name, reading.contents);
  reading.reader = RecordReader(reading.contents.Bytes());
  reading.open = true;
}

void FileSlots::OpenForAppending(int slot, std::string_view name, Lasting lasting) {
  RequireFree(slot);
  appending_.emplace(slot, files_.OpenForAppending(name, lasting));
}

FileSlots::Reading& FileSlots::ReadingAt(int slot) {
  Reading* const reading = Find(slot);
  if (reading == nullptr || !reading->open) throw RunTimeError(ErrorNumber::kBadFileName);
  return *reading;
}

// A file that is written to is always at its end.
bool FileSlots::EndOfFile(int slot) {
  const Reading* const reading = Find(slot);
  const bool is_read = reading != nullptr && reading->open;
  if (!is_read && appending_.contains(slot)) return true;
  return ReadingAt(slot).reader.AtEnd();
}

FileSlots::Reading& FileSlots::BeforeEnd(int slot) {
  Reading& reading = ReadingAt(slot);
  if (reading.reader.AtEnd()) throw RunTimeError(ErrorNumber::kPastEndOfFile);
  return reading;
}

// The text of a part of the file. The encoding is decided by the whole line that contains it.
std::string_view FileSlots::Decoded(Reading& reading, std::string_view part, std::string_view whole) {
  if (text::IsAscii(part) || text::IsUtf8(whole)) return part;
  reading.decoded = DecodeCodePage(part);
  return reading.decoded;
}

std::string_view FileSlots::ReadLine(int slot) {
  Reading& reading = BeforeEnd(slot);
  const std::string_view line = reading.reader.Line();
  return Decoded(reading, line, line);
}

std::string_view FileSlots::ReadLineStarting(int slot, std::string_view start) {
  Reading& reading = BeforeEnd(slot);
  const std::string_view line = reading.reader.LineStarting(start);
  return Decoded(reading, line, line);
}

std::string_view FileSlots::ReadField(int slot) {
  Reading& reading = BeforeEnd(slot);
  const std::string_view field = reading.reader.Field();
  if (text::IsAscii(field)) return field;
  return Decoded(reading, field, reading.reader.LinesAround(field));
}

std::string_view FileSlots::ReadRest(int slot) { return ReadingAt(slot).reader.Rest(); }

std::int32_t FileSlots::ReadNumber(int slot) {
  return text::RoundToLong(text::LeadingDigits(ReadField(slot)));
}

template <class Work>
void FileSlots::OnAppending(int slot, Work work) {
  const auto found = appending_.find(slot);
  if (found == appending_.end()) throw RunTimeError(ErrorNumber::kBadFileName);
  try {
    work(found->second);
  } catch (const RunTimeError&) {
    appending_.erase(found);  // what could not be written has let the file go
    throw;
  }
}

void FileSlots::Write(int slot, std::string_view text) {
  OnAppending(slot, [text](Appending& file) {
    file.Write(text::IsAscii(text) ? text : std::string_view(Encode(text)));
  });
}

void FileSlots::PrintLine(int slot, std::string_view line) { Write(slot, std::string(line).append("\r\n")); }

void FileSlots::WriteFields(int slot, std::span<const Field> fields) {
  std::string record;
  for (const Field& field : fields) {
    if (!record.empty()) record.push_back(',');
    field.AppendTo(record);
  }
  Write(slot, record.append("\r\n"));
}

void FileSlots::Close(int slot) {
  if (Reading* const reading = Find(slot)) reading->open = false;
  if (auto appended = appending_.extract(slot)) appended.mapped().Close();
}

void FileSlots::CloseAll() {
  for (const auto& reading : reading_) {
    if (reading) reading->open = false;
  }
  while (!appending_.empty()) Close(appending_.begin()->first);
}

}  // namespace lectern::files
