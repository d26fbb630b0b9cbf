// The numbered files of one window. A handler opens a file on a number that it chooses (1 to 255), reads
// or appends, and closes it; all handlers of the window share the numbers.
//
// A file is read whole at its opening and handed out piece by piece; a piece stays valid until the next read
// from the number or its next opening, even after it was closed. Failures are RunTimeErrors: 52 for a number
// that is not open, 55 for one that is already, 62 for a read behind the end, and those of the file system.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/files/file_system.h"
#include "base/files/record_reader.h"

namespace lectern::files {

// A text as a record holds it: with two apostrophes for a double quote, which no record can hold.
std::string FieldText(std::string_view text);

// One field of a record to be written: texts go in double quotes, numbers bare.
class Field {
 public:
  Field(std::string_view text) : text_(text), quoted_(true) {}  // NOLINT: a field is its value
  Field(const std::string& text) : Field(std::string_view(text)) {}
  Field(const char* text) : Field(std::string_view(text)) {}
  Field(std::int32_t number) : text_(std::to_string(number)), quoted_(false) {}

  void AppendTo(std::string& record) const;

 private:
  std::string text_;
  bool quoted_;
};

class FileSlots {
 public:
  explicit FileSlots(FileSystem& files) : files_(files) {}
  FileSlots(const FileSlots&) = delete;
  FileSlots& operator=(const FileSlots&) = delete;

  void OpenForReading(int slot, std::string_view name);  // the file must exist
  // Makes the file where it is missing.
  void OpenForAppending(int slot, std::string_view name, Lasting lasting = Lasting::kYes);

  bool EndOfFile(int slot);
  std::string_view ReadLine(int slot);
  std::string_view ReadLineStarting(int slot, std::string_view start);  // RecordReader::LineStarting
  std::string_view ReadField(int slot);
  std::string_view ReadRest(int slot);  // all that is left, as the bytes stand in the file
  std::int32_t ReadNumber(int slot);    // a field's leading digits; 0 for none

  void PrintLine(int slot, std::string_view line);
  template <class... Values>
  void WriteRecord(int slot, const Values&... values) {
    const Field fields[] = {Field(values)...};
    WriteFields(slot, fields);
  }

  void Close(int slot);  // a number that is not open is closed already
  void CloseAll();
  bool IsOpen(int slot) const;

 private:
  struct Reading {
    Contents contents;
    RecordReader reader;
    std::string decoded;  // the last piece, where it held more than plain ASCII
    bool open = false;
  };

  void RequireFree(int slot) const;
  Reading* Find(int slot) const;
  Reading& ReadingAt(int slot);
  Reading& BeforeEnd(int slot);
  static std::string_view Decoded(Reading& reading, std::string_view part, std::string_view whole);
  void WriteFields(int slot, std::span<const Field> fields);
  void Write(int slot, std::string_view text);
  template <class Work>
  void OnAppending(int slot, Work work);

  FileSystem& files_;
  // One for each number that was ever read from; kept after closing, for the room that the contents take.
  std::vector<std::unique_ptr<Reading>> reading_;
  std::map<int, Appending> appending_;
};

}  // namespace lectern::files
