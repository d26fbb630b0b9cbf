#include "aids/page_printing.h"

namespace lectern::aids {

PagePrinting::PagePrinting(core::Panels& panels)
    : Command30(panels.Picture1, "Command30", {.caption = "Print Page"}) {}

}  // namespace lectern::aids
