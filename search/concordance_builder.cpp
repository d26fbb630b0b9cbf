#include "search/concordance_builder.h"

namespace lectern::search {

ConcordanceBuilder::ConcordanceBuilder(core::Panels& panels)
    : Text2(panels.Frame2, "Text2", {.name = "Hits"}) {}

}  // namespace lectern::search
