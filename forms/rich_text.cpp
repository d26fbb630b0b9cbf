#include "forms/rich_text.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace lectern::forms {

void TextRuns::Append(TextRun run) {
  if (run.length == 0 || run.style == TextStyle{}) return;
  assert(runs_.empty() || runs_.back().End() <= run.start);
  if (!runs_.empty() && runs_.back().End() == run.start && runs_.back().style == run.style) {
    runs_.back().length += run.length;
  } else {
    runs_.push_back(std::move(run));
  }
}

TextStyle TextRuns::At(std::size_t position) const {
  const auto behind = std::upper_bound(runs_.begin(), runs_.end(), position,
                                       [](std::size_t at, const TextRun& run) { return at < run.start; });
  if (behind == runs_.begin()) return {};
  const TextRun& run = *std::prev(behind);
  return position < run.End() ? run.style : TextStyle{};
}

// Makes a border at the position, and says which run begins there or behind it.
std::size_t TextRuns::SplitAt(std::size_t position) {
  const auto found = std::partition_point(runs_.begin(), runs_.end(),
                                          [position](const TextRun& run) { return run.End() <= position; });
  const auto index = static_cast<std::size_t>(found - runs_.begin());
  if (found == runs_.end() || found->start >= position) return index;
  TextRun rest = *found;
  rest.start = position;
  rest.length = found->End() - position;
  found->length = position - found->start;
  runs_.insert(found + 1, std::move(rest));
  return index + 1;
}

// Goes over the old runs and the stretches once, however many there are.
void TextRuns::SetColour(const std::vector<std::size_t>& starts, std::size_t length, Colour colour) {
  if (length == 0) return;
  std::vector<TextRun> old = std::exchange(runs_, {});
  runs_.reserve(old.size() + starts.size());
  auto run = old.begin();
  const auto take_until = [&](std::size_t end) {
    TextRun taken = *run;
    taken.length = std::min(end, run->End()) - run->start;
    run->length -= taken.length;
    run->start += taken.length;
    if (run->length == 0) ++run;
    return taken;
  };
  const auto keep_until = [&](std::size_t end) {
    while (run != old.end() && run->start < end) Append(take_until(end));
  };
  assert(std::adjacent_find(starts.begin(), starts.end(),
                            [&](std::size_t a, std::size_t b) { return b < a + length; }) == starts.end());
  for (const std::size_t start : starts) {
    keep_until(start);
    const std::size_t end = start + length;
    for (std::size_t at = start; at < end;) {
      TextRun piece{at, end - at, {}};
      if (run != old.end() && run->start < end) {
        if (run->start == at) {
          piece = take_until(end);
        } else {
          piece.length = run->start - at;  // the gap before it
        }
      }
      piece.style.colour = colour;
      at = piece.End();
      Append(std::move(piece));
    }
  }
  keep_until(std::string::npos);
}

void TextRuns::Edited(std::size_t start, std::size_t removed, std::size_t inserted) {
  const std::size_t first = SplitAt(start);
  const std::size_t behind = SplitAt(start + removed);
  runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(first),
              runs_.begin() + static_cast<std::ptrdiff_t>(behind));
  for (std::size_t i = first; i < runs_.size(); ++i) runs_[i].start = runs_[i].start - removed + inserted;
}

std::string WithCrLf(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 32);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r') {
      result.append("\r\n");
      if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else if (text[i] == '\n') {
      result.append("\r\n");
    } else {
      const std::size_t end = std::min(text.find_first_of("\r\n", i), text.size());
      result.append(text.substr(i, end - i));
      i = end - 1;
    }
  }
  return result;
}

}  // namespace lectern::forms
