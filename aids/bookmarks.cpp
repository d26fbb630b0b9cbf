#include "aids/bookmarks.h"

namespace lectern::aids {

Bookmarks::Bookmarks(core::Panels& panels)
    : File1(panels.Picture1, "File1", {.pattern = "*.bkm", .name = "Bookmarks"}) {}

}  // namespace lectern::aids
