#include "forms/lists.h"

#include <algorithm>
#include <utility>

#include "base/errors.h"
#include "base/files/path_names.h"
#include "base/text/characters.h"
#include "forms/window.h"

namespace lectern::forms {

ItemList::ItemList(Container& parent, Kind kind, std::string name, const CommonDesign& design)
    : TextControl(parent, kind, std::move(name), design) {
  BackColor = kWindowBackground;
  ForeColor = kWindowText;
}

std::string ItemList::List(int index) const {
  if (index < 0 || index >= ListCount()) return {};
  return std::string(items_[static_cast<std::size_t>(index)]);
}

void ItemList::Select(int index) {
  if (index >= ListCount()) throw base::RunTimeError(base::ErrorNumber::kInvalidProperty);
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

void ItemList::SetItems(const std::vector<std::string>& items) {
  items_.Clear();
  for (const std::string& item : items) items_.Add(item);
  selected_ = -1;
  ++generation_;
  TellView();
}

void ItemList::Insert(std::size_t at, std::string_view item) {
  if (at != items_.Count()) {
    ++generation_;
    if (selected_ >= static_cast<int>(at)) ++selected_;
  }
  items_.Insert(at, item);
  TellView();
}

void ItemList::Append(const text::TextList& items) {
  if (items.IsEmpty()) return;
  items_.Add(items);
  TellView();
}

void ItemList::Erase(std::size_t at) {
  ++generation_;
  items_.Erase(at);
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

void ListBox::AddItem(std::string_view item) {
  Insert(sorted_ ? Items().PlaceInOrder(item) : Items().Count(), item);
}

void ListBox::AddItems(const text::TextList& items) {
  if (!sorted_) {
    Append(items);
    return;
  }
  for (std::size_t i = 0; i < items.Count(); ++i) AddItem(items[i]);
}

void ListBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) throw base::RunTimeError(base::ErrorNumber::kInvalidCall);
  Erase(static_cast<std::size_t>(index));
}

void ListBox::Clear() { SetItems({}); }

bool ListBox::ReadIndexed(std::string_view property, const std::vector<int>& arguments, Value& value) const {
  if (!text::EqualFolded(property, "Sorted") || !arguments.empty()) {
    return ItemList::ReadIndexed(property, arguments, value);
  }
  value = sorted_;
  return true;
}

namespace {

void RequireFolder(const Control& list, const std::string& path) {
  if (!list.HostWindow().Files().FolderExists(path)) {
    throw base::RunTimeError(base::ErrorNumber::kPathNotFound);
  }
}

}  // namespace

DirListBox::DirListBox(Container& parent, std::string name, const Design& design)
    : TextControl(parent, Kind::kDirListBox, std::move(name), design),
      Path(*this, "Path", parent.HostWindow().Files().StartFolder(),
           {.refuse = [this](const std::string& path) { RequireFolder(*this, path); },
            .change = [this] { Change(); }}) {
  BackColor = kWindowBackground;
  ForeColor = kWindowText;
}

std::vector<DirListBox::Entry> DirListBox::Entries() const {
  const files::FileSystem& files = HostWindow().Files();
  const std::string folder = files.FolderExists(Path()) ? files.HostPath(Path()) : Path();
  std::vector<Entry> entries{{"/", "/", 0}};
  std::string path;
  for (const std::string_view element : files::Elements(folder)) {
    path.append(1, '/').append(element);
    entries.push_back({std::string(element), path, entries.back().depth + 1});
  }
  const int depth = entries.back().depth + 1;
  for (std::string& name : files.Folders(Path())) {
    std::string inside = path + "/" + name;
    entries.push_back({std::move(name), std::move(inside), depth});
  }
  return entries;
}

DriveListBox::DriveListBox(Container& parent, std::string name, const Design& design)
    : TextControl(parent, Kind::kDriveListBox, std::move(name), design),
      Drive(*this, "Drive", "/", {.change = [this] { Change(); }}) {}

FileListBox::FileListBox(Container& parent, std::string name, const Design& design)
    : ItemList(parent, Kind::kFileListBox, std::move(name), design),
      Path(*this, "Path", parent.HostWindow().Files().StartFolder(),
           {.refuse = [this](const std::string& path) { RequireFolder(*this, path); },
            .change = [this] { Refresh(); }}),
      Pattern(*this, "Pattern", std::string(design.pattern), {.change = [this] { Refresh(); }}) {
  Refresh();
}

void FileListBox::Refresh() { SetItems(HostWindow().Files().Files(Path(), Pattern())); }

}  // namespace lectern::forms
