#include "gallery/maintenance.h"

namespace lectern::gallery {

Maintenance::Maintenance(PictureCatalogue& catalogue, core::Panels& panels)
    : File3(panels.Frame6, "File3", {.name = "Files of the pictures"}),
      Command26(panels.Frame5, "Command26", {.caption = "pictures"}),
      Command46(panels.Frame5, "Command46", {.caption = "Close"}) {
  catalogue.Dirpics.Change = [this, &catalogue] { File3.Path = catalogue.Dirpics.Path; };
  Command26.Click = [&panels] { panels.Frame5.Visible = true; };
  Command46.Click = [&panels] { panels.Frame5.Visible = false; };
}

}  // namespace lectern::gallery
