#include "aids/page_printing.h"

#include <utility>

#include "base/errors.h"

namespace lectern::aids {

namespace {

constexpr int kNote = 1;  // slot

}  // namespace

PagePrinting::PagePrinting(reader::Reader& the_reader, forms::PictureBox& Picture1,
                           std::function<forms::Window&()> page)
    : Picture1_(Picture1), reader_(the_reader), page_(std::move(page)) {
  Command30.Click = [this] { Command30_Click(); };
}

// ODDITY(print-page-empty): the button sees to it that there is a note of the bookmark's name, or of the name
// NAME, and reads its first field; but nothing of it comes to the page, which shows what it showed before.
void PagePrinting::Command30_Click() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  const std::string& bookmark = reader_.LBLMRK(0).Caption;
  const std::string note = reader_.DataFile((bookmark.empty() ? "NAME" : bookmark) + ".NOT");
  ignore([&] { slots.OpenForAppending(kNote, note); });
  ignore([&] { slots.Close(kNote); });
  ignore([&] { slots.OpenForReading(kNote, note); });
  ignore([&] { slots.ReadField(kNote); });
  ignore([&] { slots.Close(kNote); });
  ignore([&] { page_().Visible = true; });
  ignore([&] { page_().BringToFront(); });
}

}  // namespace lectern::aids
