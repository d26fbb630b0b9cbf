// Colours a term wherever it stands in a pane, inside longer words too, and leaves the selection as it found
// it.
#pragma once

#include <string_view>

#include "forms/rich_text_box.h"

namespace lectern::search {

inline constexpr forms::Colour kMarkColour = forms::kBlue;

// How many places were coloured.
int HighlightText(forms::RichTextBox& pane, std::string_view term, forms::Colour colour);

}  // namespace lectern::search
