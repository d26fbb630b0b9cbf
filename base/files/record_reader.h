// Takes a text apart the way the program's data files are made: into plain lines, or into the fields of
// quoted records.
//
// Fields are read one by one and do not care for lines: the reader skips blanks, takes a quoted text to
// its closing quote, and an unquoted one to the next comma or line end. So a comma inside quotes is text,
// a record with too few fields runs on into the next line, and what a reader leaves of a record is read
// as the next fields. A quote that is never closed takes the rest of the text.
//
// The reader holds a view of the text and hands out views of it; the text has to outlive them.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstring>
#include <string_view>

namespace lectern::files {

class RecordReader {
 public:
  RecordReader() = default;
  explicit RecordReader(std::string_view text) : text_(text) {}

  bool AtEnd() const { return at_ >= text_.size(); }

  // The next line without its end, which is LF or CR LF. Requires: !AtEnd().
  std::string_view Line() {
    assert(!AtEnd());
    const char* const start = text_.data() + at_;
    const std::size_t left = text_.size() - at_;
    const void* const end = std::memchr(start, '\n', left);
    if (end == nullptr) {
      at_ = text_.size();
      return {start, left};
    }
    auto length = static_cast<std::size_t>(static_cast<const char*>(end) - start);
    at_ += length + 1;
    if (length > 0 && start[length - 1] == '\r') --length;
    return {start, length};
  }

  // The next line that begins with `start`, or the last line if no further line does. The same as reading
  // line by line, but faster. Requires: !AtEnd(), and `start` is not empty.
  std::string_view LineStarting(std::string_view start);

  // All that is left.
  std::string_view Rest() {
    const std::string_view rest = text_.substr(std::min(at_, text_.size()));
    at_ = text_.size();
    return rest;
  }

  // The next field. Requires: !AtEnd().
  std::string_view Field();

  // The line or lines that a part of the text lies in. Requires: the part is a view into the text.
  std::string_view LinesAround(std::string_view part) const;

 private:
  void SkipBlanks();
  void SkipFieldEnd();

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace lectern::files
