#include "forms/folder_lists.h"

#include <utility>

#include "base/files/path_names.h"
#include "base/run_time_error.h"
#include "forms/window.h"

namespace lectern::forms {

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
