// A list of texts of which a person picks one. Items count from 0; reading one that does not exist gives
// the empty text. A list that is sorted by design keeps its items in the order of their character codes
// whatever the order they come in; any other keeps the order they came in.
#pragma once

#include <string>
#include <vector>

#include "base/text/text_list.h"
#include "forms/control.h"

namespace lectern::forms {

// The items and the selection: what list boxes and file lists have in common.
class ItemList : public TextControl {
 public:
  ItemList(Container& parent, Kind kind, std::string name, const CommonDesign& design);

  int ListCount() const { return static_cast<int>(items_.Count()); }
  std::string List(int index) const;
  bool Selected(int index) const { return index >= 0 && index == selected_; }
  void Select(int index);  // from code: runs nothing; -1 for none
  int SelectedIndex() const { return selected_; }

  // Grows with every change but an item added at the end: who shows the list can tell an addition from the
  // rest.
  unsigned Generation() const { return generation_; }

  bool ReadIndexed(std::string_view property, const std::vector<int>& arguments, Value& value) const override;

  // The person picks an item, or clicks where none is (-1), which leaves the selection.
  void PersonPicks(int index);
  void PersonMovesSelection(int index);  // by a key: the selection and the click, without a press

 protected:
  void SetItems(const std::vector<std::string>& items);  // clears the selection
  void Insert(std::size_t at, std::string_view item);
  void Append(const text::TextList& items);
  void Erase(std::size_t at);
  const text::TextList& Items() const { return items_; }

 private:
  text::TextList items_;
  int selected_ = -1;
  unsigned generation_ = 0;
};

struct ListBoxDesign {
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool sorted = false;  // keeps itself in order
};

class ListBox : public ItemList {
 public:
  using Design = ListBoxDesign;

  ListBox(Container& parent, std::string name, const Design& design = {});

  void AddItem(std::string_view item);
  void AddItems(const text::TextList& items);
  void RemoveItem(int index);  // error 5 where there is none
  void Clear();                // and the selection with it
  bool ReadIndexed(std::string_view property, const std::vector<int>& arguments, Value& value) const override;

 private:
  bool sorted_;
};

}  // namespace lectern::forms
