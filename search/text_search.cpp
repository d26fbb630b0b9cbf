#include "search/text_search.h"

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "search/text_scan.h"

namespace lectern::search {

using forms::kPointerDefault;
using forms::kPointerHourglass;

namespace {

constexpr int kBook = 1;  // slot

constexpr const char* kHowLong =
    "Tested on a: Pent2/266 - book < minute, codex < minute --- 586/75 - book = < 1 minute, codex = < 3.5 "
    "minutes  ---  486/66 - book = < 1 minute, codex = < 5 minutes  ---  386/15 - book = < 5 minute, codex "
    "= < 35 minutes --- Patience is a virtue.";

}  // namespace

TextSearch::TextSearch(reader::Reader& the_reader, forms::Frame& frms, forms::Frame& frmscale,
                       forms::Frame& Frame2, forms::PictureBox& picp, reader::ToolButtons& the_tools,
                       forms::Menu& cc3)
    : reader_(the_reader), frms_(frms), frmscale_(frmscale), Frame2_(Frame2), picp_(picp), tools_(the_tools) {
  tools_.Command16.Click = [this] {
    picp_.Visible = false;
    cc3_Click();
    txts.SetFocus();
    tools_.Disable();
  };
  cc3.Click = [this] { cc3_Click(); };
  txts.Change = [this] { txts_Change(txts); };
  txts2.Change = [this] { txts_Change(txts2); };
  Command22.Click = [this] { Command22_Click(); };
  tmrb.Tick = [this] { tmrb_Timer(); };
  Command25.Click = [this] { StopScan(); };
  Command15.Click = [this] { ShowHelpNote(kHowLong); };
  Command20.Click = [this] { Command20_Click(); };
  for (forms::CommandButton* button : {&Command25, &Command20}) {
    button->MouseDown = [this](const auto&) { Command22.MousePointer = kPointerHourglass; };
  }
}

void TextSearch::cc3_Click() {
  frms_.Visible = true;
  lsts.Clear();
  text5.Caption = "";
}

// Does not stop a running scan.
void TextSearch::txts_Change(const forms::TextBox& box) {
  if (box.Text == "") return;
  Command22.Enabled = true;
  frmscale_.Visible = false;
  lsts.Clear();
  text5.Caption = "";
}

void TextSearch::Command22_Click() {
  if (txts.Text == "" && txts2.Text == "") return;
  pbar.Value = 0;
  lsts.Clear();
  if (op1.Value) {
    frmscale_.Visible = true;
    text7.Caption = "Genesis";
    SearchBookIndex = 0;
    pbar.Max = 66;
    tmrb.Enabled = true;
    return;
  }
  Command22.MousePointer = kPointerHourglass;
  ScanOpenBook();
  frmscale_.Visible = false;
  reader_.form.Platform().Beep();
  reader_.form.Platform().Beep();
  Command22.Enabled = false;
  Command22.MousePointer = kPointerDefault;
}

void TextSearch::ScanOpenBook() {
  files::FileSlots& slots = reader_.form.Slots();
  const std::string& book = reader_.Stem();
  slots.OpenForReading(kBook, reader_.BookFile(book));
  const ScanFindings findings =
      ScanText(slots.ReadRest(kBook), Terms(txts.Text(), txts2.Text()), book, {ScanKind::kBook, 0});
  pbar.Value = pbar.Value + findings.chapter_lines;
  TakeFindings(findings);
  slots.Close(kBook);
}

void TextSearch::TakeFindings(const ScanFindings& findings) {
  if (findings.count == 0) return;
  cmdadd.Enabled = true;
  text5.Caption = text::NumberText(text::LeadingDigits(text5.Caption()) + findings.count);
  lsts.AddItems(findings.entries);
}

void TextSearch::tmrb_Timer() {
  if (tmrb.Interval != 1) return;
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  pbar.Value = pbar.Value + 1;
  text7.Caption = reader_.lst.List(SearchBookIndex + 1);
  const std::string book = reader_.lst.List(SearchBookIndex);
  // A book without a name counts as empty.
  if (!book.empty()) ignore([&] { slots.OpenForReading(kBook, reader_.BookFile(book)); });
  ignore([&] {
    const LineRules rules{ScanKind::kWholeText, text::Length(wrd.Caption())};
    TakeFindings(ScanText(slots.ReadRest(kBook), Terms(txts.Text(), txts2.Text()), book, rules));
  });
  ignore([&] { slots.Close(kBook); });
  ++SearchBookIndex;
  if (SearchBookIndex < reader_.lst.ListCount()) return;
  StopScan();
  Command22.Enabled = false;
}

void TextSearch::StopScan() {
  tmrb.Enabled = false;
  SearchBookIndex = 0;
  frmscale_.Visible = false;
  Command22.MousePointer = kPointerDefault;
}

// ODDITY(search-closes-on-chapter-1): closing opens chapter 1 of the book that the last result opened.
void TextSearch::Command20_Click() {
  tmrb.Enabled = false;
  lsts.Clear();
  reader_.ReturnToChapter1();
  frms_.Visible = false;
  frmscale_.Visible = false;
  Command22.MousePointer = kPointerDefault;
  tools_.Enable();
}

}  // namespace lectern::search
