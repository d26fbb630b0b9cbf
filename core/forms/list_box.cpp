#include "core/forms/list_box.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/run_time_error.h"
#include "core/text/letter_case.h"

namespace lectern::forms {

ItemList::ItemList(Container& parent, Kind kind, std::string name, const Design& design)
    : TextControl(parent, kind, std::move(name), design) {
  BackColor = kWindowBackground;
  ForeColor = kWindowText;
}

const std::string& ItemList::List(int index) const {
  static const std::string kNone;
  return index >= 0 && index < ListCount() ? items_[static_cast<std::size_t>(index)] : kNone;
}

void ItemList::Select(int index) {
  if (index >= ListCount()) throw core::RunTimeError(core::ErrorNumber::kInvalidProperty);
  selected_ = std::max(index, -1);
  TellView();
}

bool ItemList::ReadIndexed(std::string_view property, const std::vector<int>& arguments, Value& value) const {
  if (text::EqualFolded(property, "ListCount") && arguments.empty()) {
    value = ListCount();
    return true;
  }
  if (arguments.size() != 1) return false;
  if (text::EqualFolded(property, "List")) {
    value = List(arguments[0]);
    return true;
  }
  if (text::EqualFolded(property, "Selected")) {
    value = Selected(arguments[0]);
    return true;
  }
  return false;
}

void ItemList::PersonPicks(int index) {
  PersonPresses({});
  PersonMovesSelection(index);
}

void ItemList::PersonMovesSelection(int index) {
  if (index >= 0) Select(index);
  Click();
}

void ItemList::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  selected_ = -1;
  ++generation_;
  TellView();
}

void ItemList::Insert(std::size_t at, std::string item) {
  if (at != items_.size()) {
    ++generation_;
    if (selected_ >= static_cast<int>(at)) ++selected_;
  }
  items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(at), std::move(item));
  TellView();
}

void ItemList::Append(std::vector<std::string> items) {
  if (items.empty()) return;
  if (items_.empty()) {
    items_ = std::move(items);
  } else {
    items_.insert(items_.end(), std::make_move_iterator(items.begin()), std::make_move_iterator(items.end()));
  }
  TellView();
}

void ItemList::Erase(std::size_t at) {
  ++generation_;
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(at));
  const int index = static_cast<int>(at);
  if (selected_ == index) {
    selected_ = -1;
  } else if (selected_ > index) {
    --selected_;
  }
  TellView();
}

ListBox::ListBox(Container& parent, std::string name, const Design& design)
    : ItemList(parent, Kind::kListBox, std::move(name), design), sorted_(design.sorted) {}

void ListBox::AddItem(std::string item) {
  const std::vector<std::string>& items = Items();
  const auto at = sorted_ ? std::upper_bound(items.begin(), items.end(), item) : items.end();
  Insert(static_cast<std::size_t>(at - items.begin()), std::move(item));
}

void ListBox::AddItems(std::vector<std::string> items) {
  if (!sorted_) {
    Append(std::move(items));
    return;
  }
  for (std::string& item : items) AddItem(std::move(item));
}

void ListBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) throw core::RunTimeError(core::ErrorNumber::kInvalidCall);
  Erase(static_cast<std::size_t>(index));
}

void ListBox::Clear() { SetItems({}); }

}  // namespace lectern::forms
