// Texts in an order, numbered from 0, that lie one behind another in one piece of memory: a list of tens of
// thousands of short texts costs no allocation for each.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace lectern::text {

class TextList {
 public:
  TextList() = default;
  TextList(std::initializer_list<std::string_view> texts) { Append(texts); }
  explicit TextList(const std::vector<std::string>& texts) { Append(texts); }

  std::size_t Count() const { return places_.size(); }
  bool IsEmpty() const { return places_.empty(); }

  // Good until the list is next changed. Requires: index < Count().
  std::string_view operator[](std::size_t index) const {
    assert(index < Count());
    return TextAt(places_[index]);
  }

  // Behind all texts that are not greater by character code, in a list that is in this order.
  std::size_t PlaceInOrder(std::string_view text) const;

  void Add(std::string_view text) {
    places_.push_back({static_cast<std::uint32_t>(bytes_.size()), static_cast<std::uint32_t>(text.size())});
    bytes_.append(text);
  }
  void Add(const TextList& others);
  void Insert(std::size_t index, std::string_view text);  // Requires: index <= Count()
  void Erase(std::size_t index);                          // Requires: index < Count()
  void Clear();                                           // keeps the room

  // Reserves memory for so many more texts of this length.
  void Reserve(std::size_t count, std::size_t length);

  bool operator==(const TextList& other) const;

 private:
  struct Place {
    std::uint32_t begin, length;
  };

  template <class Texts>
  void Append(const Texts& texts) {
    for (const std::string_view text : texts) Add(text);
  }

  std::string_view TextAt(Place place) const { return {bytes_.data() + place.begin, place.length}; }
  void DropErased();

  std::string bytes_;  // of the texts, and of some that were erased
  std::vector<Place> places_;
  std::size_t erased_ = 0;  // bytes
};

}  // namespace lectern::text
