#include "base/text/text_list.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace lectern::text {

std::size_t TextList::PlaceInOrder(std::string_view text) const {
  const auto place = std::upper_bound(places_.begin(), places_.end(), text,
                                      [this](std::string_view t, Place p) { return t < TextAt(p); });
  return static_cast<std::size_t>(place - places_.begin());
}

void TextList::Add(const TextList& others) {
  const auto shift = static_cast<std::uint32_t>(bytes_.size());
  bytes_.append(others.bytes_);
  erased_ += others.erased_;
  const std::size_t old_count = places_.size();
  places_.resize(old_count + others.places_.size());
  const auto shifted = [shift](Place place) { return Place{place.begin + shift, place.length}; };
  std::transform(others.places_.begin(), others.places_.end(),
                 places_.begin() + static_cast<std::ptrdiff_t>(old_count), shifted);
}

void TextList::Insert(std::size_t index, std::string_view text) {
  assert(index <= Count());
  Add(text);
  const auto last = places_.end() - 1;
  std::rotate(places_.begin() + static_cast<std::ptrdiff_t>(index), last, places_.end());
}

void TextList::Erase(std::size_t index) {
  assert(index < Count());
  erased_ += places_[index].length;
  places_.erase(places_.begin() + static_cast<std::ptrdiff_t>(index));
  // A list that is added to and erased from for ever does not grow for ever.
  constexpr std::size_t kTolerated = 4096;
  if (erased_ > kTolerated && erased_ > bytes_.size() / 2) DropErased();
}

void TextList::DropErased() {
  const TextList all = std::exchange(*this, {});
  for (const Place place : all.places_) Add(all.TextAt(place));
}

void TextList::Clear() {
  bytes_.clear();
  places_.clear();
  erased_ = 0;
}

void TextList::Reserve(std::size_t count, std::size_t length) {
  places_.reserve(places_.size() + count);
  bytes_.reserve(bytes_.size() + count * length);
}

bool TextList::operator==(const TextList& other) const {
  return std::equal(places_.begin(), places_.end(), other.places_.begin(), other.places_.end(),
                    [&](Place a, Place b) { return TextAt(a) == other.TextAt(b); });
}

}  // namespace lectern::text
