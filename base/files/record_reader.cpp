#include "base/files/record_reader.h"

#include <algorithm>
#include <cassert>

namespace lectern::files {

std::string_view RecordReader::LineStarting(std::string_view start) {
  assert(!AtEnd() && !start.empty());
  for (std::size_t at = at_; at < text_.size(); ++at) {
    const void* const first = std::memchr(text_.data() + at, start[0], text_.size() - at);
    if (first == nullptr) break;
    at = static_cast<std::size_t>(static_cast<const char*>(first) - text_.data());
    if ((at == at_ || text_[at - 1] == '\n') && text_.substr(at).starts_with(start)) {
      at_ = at;
      return Line();
    }
  }
  const std::size_t before_last = text_.substr(0, text_.size() - 1).rfind('\n');
  if (before_last != std::string_view::npos) at_ = std::max(at_, before_last + 1);
  return Line();
}

std::string_view RecordReader::LinesAround(std::string_view part) const {
  assert(part.data() >= text_.data() && part.data() + part.size() <= text_.data() + text_.size());
  const auto start = static_cast<std::size_t>(part.data() - text_.data());
  const std::size_t line_start = start == 0 ? 0 : text_.rfind('\n', start - 1) + 1;
  const std::size_t line_end = std::min(text_.find('\n', start + part.size()), text_.size());
  return text_.substr(line_start, line_end - line_start);
}

void RecordReader::SkipBlanks() {
  while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t')) ++at_;
}

// A comma or a line end after a field belongs to it; anything else begins the next field.
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
  assert(!AtEnd());
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
