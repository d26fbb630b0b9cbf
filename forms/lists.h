// Lists that a person picks from: plain ones, and those that look into the file system.
#pragma once

#include <string>
#include <vector>

#include "base/text/text_list.h"
#include "forms/control.h"

namespace lectern::forms {

// The items and the selection: what list boxes and file lists have in common. Items count from 0; reading one
// that does not exist gives the empty text.
class ItemList : public TextControl {
 public:
  ItemList(Container& parent, Kind kind, std::string name, const CommonDesign& design);

  int ListCount() const { return static_cast<int>(items_.Count()); }
  std::string List(int index) const;
  bool Selected(int index) const { return index >= 0 && index == selected_; }
  void Select(int index);  // from code: runs nothing; -1 for none
  int SelectedIndex() const { return selected_; }

  // Grows with every change except an item added at the end, so that a view can tell additions from other
  // changes.
  unsigned Generation() const { return generation_; }

  bool ReadIndexed(std::string_view property, const std::vector<int>& arguments, Value& value) const override;

  // The person picks an item, or clicks on the empty part (-1), which keeps the selection.
  void PersonPicks(int index);
  void PersonMovesSelection(int index);  // by a key: the selection and the click, without a press

 protected:
  void SetItems(const std::vector<std::string>& items);  // clears the selection
  void Insert(std::size_t at, std::string_view item);    // Requires: at <= ListCount()
  void Append(const text::TextList& items);
  void Erase(std::size_t at);  // Requires: at < ListCount()
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

// A list that is sorted by design keeps its items in the order of their character codes; any other keeps them
// in the order in which they were added.
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

// The folders on the way to a folder, and those inside it. It starts on the start folder; as storage it
// serves the program as a variable that holds a path. Writing a Path that is no folder is refused (error 76).
class DirListBox : public TextControl {
 public:
  using Design = PlainDesign;

  DirListBox(Container& parent, std::string name, const Design& design = {});

  // What the list shows: the folders from the root down to Path, then those inside it.
  struct Entry {
    std::string name;
    std::string path;
    int depth = 0;
  };
  std::vector<Entry> Entries() const;

  // The person opens a folder of the list.
  void PersonOpens(const std::string& path) { Path = path; }

  RuledProperty<std::string> Path;
  Event<> Change;
};

// Lists one drive, the root of the file system, on systems without drive letters.
class DriveListBox : public TextControl {
 public:
  using Design = PlainDesign;

  DriveListBox(Container& parent, std::string name, const Design& design = {});

  std::vector<std::string> Drives() const { return {"/"}; }
  void PersonChooses(const std::string& drive) { Drive = drive; }

  RuledProperty<std::string> Drive;
  Event<> Change;
};

struct FileListBoxDesign {
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  std::string_view pattern = "*";
};

// The files of a folder whose names fit the pattern, in order of name. Writing Path or Pattern reads the
// folder anew, as Refresh does; the selection goes with the old list.
class FileListBox : public ItemList {
 public:
  using Design = FileListBoxDesign;

  FileListBox(Container& parent, std::string name, const Design& design = {});

  void Refresh();

  RuledProperty<std::string> Path;
  RuledProperty<std::string> Pattern;
};

}  // namespace lectern::forms
