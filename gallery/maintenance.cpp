#include "gallery/maintenance.h"

namespace lectern::gallery {

Maintenance::Maintenance(core::Panels& panels)
    : Dirpics(panels.Frame5, "Dirpics", {.name = "Folder of the pictures"}),
      File3(panels.Frame5, "File3", {.name = "Files of the pictures"}),
      Command26(panels.Frame5, "Command26", {.caption = "pictures"}),
      Command46(panels.Frame5, "Command46", {.caption = "Close"}) {
  Dirpics.Change = [this] { File3.Path = Dirpics.Path; };
  Command26.Click = [&panels] { panels.Frame5.Visible = true; };
  Command46.Click = [&panels] { panels.Frame5.Visible = false; };
}

}  // namespace lectern::gallery
