// The lists that look into the file system: folders, drives and files. A directory list starts on the
// start folder; off the window they serve the program as variables that hold a path.
#pragma once

#include <string>
#include <vector>

#include "forms/list_box.h"

namespace lectern::forms {

// Writing a Path that is no folder is refused (error 76).
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
