#include "core/files/record_reader.h"

#include <algorithm>

namespace lectern::files {

void RecordReader::SkipBlanks() {
  while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t')) ++at_;
}

// Behind a field stands a comma or a line end, which goes with it; anything else begins the next field.
void RecordReader::SkipFieldEnd() {
  SkipBlanks();
  if (AtEnd()) return;
  if (text_[at_] == ',') {
    ++at_;
    return;
  }
  if (text_[at_] == '\r') ++at_;
  if (at_ < text_.size() && text_[at_] == '\n') ++at_;
}

std::string_view RecordReader::Field() {
  SkipBlanks();
  if (AtEnd()) return {};
  if (text_[at_] == '"') {
    const std::size_t start = ++at_;
    const std::size_t close = std::min(text_.find('"', start), text_.size());
    at_ = std::min(close + 1, text_.size());
    SkipFieldEnd();
    return text_.substr(start, close - start);
  }
  const std::size_t start = at_;
  at_ = std::min(text_.find_first_of(",\r\n", start), text_.size());
  const std::size_t end = at_;
  SkipFieldEnd();
  return text_.substr(start, end - start);
}

}  // namespace lectern::files
