#include "ui/desktop/text/text_positions.h"

#include <algorithm>

namespace lectern::desktop {

TextPositions::Measured TextPositions::Measure(std::string_view text,
                                               const std::vector<std::size_t>& hidden) {
  Measured measured;
  auto next_hidden = hidden.begin();
  Mark& end = measured.end;
  for (std::size_t byte = 0; byte < text.size(); ++byte) {
    const auto lead = static_cast<unsigned char>(text[byte]);
    if ((lead & 0xC0) == 0x80) continue;  // inside a character
    ++end.forms;
    if (next_hidden != hidden.end() && *next_hidden == byte) {
      ++next_hidden;
      measured.marks.push_back(end);
      continue;
    }
    ++end.qt;
    if (lead == '\n' && byte > 0 && text[byte - 1] == '\r') {
      --end.qt;
      measured.marks.push_back(end);
    } else if (lead >= 0xF0) {
      ++end.qt;
      measured.marks.push_back(end);
    }
  }
  return measured;
}

void TextPositions::Read(std::string_view text, const std::vector<std::size_t>& hidden) {
  marks_ = Measure(text, hidden).marks;
}

template <class Position, class Count>
TextPositions::Mark TextPositions::LastMark(Position position, Count count) const {
  const auto behind = std::upper_bound(marks_.begin(), marks_.end(), position,
                                       [count](Position at, const Mark& mark) { return at < mark.*count; });
  return behind == marks_.begin() ? Mark() : *std::prev(behind);
}

int TextPositions::ToQt(std::size_t position) const {
  const Mark mark = LastMark(position, &Mark::forms);
  return mark.qt + static_cast<int>(position - mark.forms);
}

std::size_t TextPositions::ToForms(int position) const {
  const Mark mark = LastMark(position, &Mark::qt);
  return mark.forms + static_cast<std::size_t>(position - mark.qt);
}

void TextPositions::Edited(int at, int removed, std::string_view inserted) {
  const std::size_t start = ToForms(at);
  const std::size_t removed_forms = ToForms(at + removed) - start;
  const auto behind = [](int place, const Mark& mark) { return place < mark.qt; };
  const auto first = std::upper_bound(marks_.begin(), marks_.end(), at, behind);
  const auto last = std::upper_bound(first, marks_.end(), at + removed, behind);

  Measured measured = Measure(inserted);
  for (auto mark = last; mark != marks_.end(); ++mark) {
    mark->forms = mark->forms - removed_forms + measured.end.forms;
    mark->qt += measured.end.qt - removed;
  }
  for (Mark& mark : measured.marks) {
    mark.forms += start;
    mark.qt += at;
  }
  marks_.insert(marks_.erase(first, last), measured.marks.begin(), measured.marks.end());
}

QString ToDocument(std::string_view text) {
  QString document = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  document.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return document;
}

}  // namespace lectern::desktop
