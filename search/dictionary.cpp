#include "search/dictionary.h"

namespace lectern::search {

namespace {

constexpr int kWords = 1;  // slot
constexpr std::string_view kFile = "cdxdic.dat";

struct Record {
  std::string word;
  std::string definition;
  std::string verse;
  std::string place;  // reference of the verse
};

// Reads into a record that the caller uses again for the next one.
void ReadRecord(files::FileSlots& slots, Record& record) {
  for (std::string* field : {&record.word, &record.definition, &record.verse, &record.place}) {
    *field = slots.ReadField(kWords);
  }
}

}  // namespace

Dictionary::Dictionary(reader::Reader& the_reader, forms::Frame& frmd, forms::PictureBox& picp,
                       reader::ToolButtons& the_tools, forms::Menu& cc2)
    : reader_(the_reader), frmd_(frmd), picp_(picp), tools_(the_tools) {
  tools_.Command17.Click = [this] {
    picp_.Visible = false;
    if (Open()) tools_.Disable();
  };
  cc2.Click = [this] { Open(); };
  // ODDITY(dictionary-hourglass): only the click resets the pointer, so a press without a click leaves it
  // changed.
  lstd.MouseDown = [this](const auto&) { lstd.MousePointer = forms::kPointerHourglass; };
  lstd.Click = [this] { lstd_Click(); };
  dwd.Change = [this] { dwd2.Caption = dwd.Caption; };
  ddf.Change = [this] { ddf2.Caption = ddf.Caption; };
  dex.Change = [this] { dex2.Caption = dex.Caption; };
  Command19.Click = [this] {
    frmd_.Visible = false;
    tools_.Enable();
  };
}

// ODDITY(dictionary-grows): the list is not cleared first, so each opening adds all words again.
bool Dictionary::Open() {
  files::FileSlots& slots = reader_.form.Slots();
  Record record;
  bool loaded = false;
  try {
    slots.OpenForReading(kWords, reader_.DataFile(kFile));
    while (!slots.EndOfFile(kWords)) {
      ReadRecord(slots, record);
      lstd.AddItem(record.word);
    }
    slots.Close(kWords);
    loaded = true;
    frmd_.Visible = true;
  } catch (const base::RunTimeError& error) {
    slots.Close(kWords);
    reader_.ReportError(error);
  }
  tools_.Command17.MousePointer = forms::kPointerDefault;
  return loaded;
}

void Dictionary::lstd_Click() {
  if (const int selected = lstd.SelectedIndex(); selected >= 0) dwd.Caption = lstd.List(selected);
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kWords, reader_.DataFile(kFile));
  Record record;
  while (!slots.EndOfFile(kWords)) {
    ReadRecord(slots, record);
    if (dwd.Caption != record.word) continue;
    ddf.Caption = record.definition;
    dex.Caption = record.verse + " :  " + record.place;
    break;
  }
  slots.Close(kWords);
  lstd.MousePointer = forms::kPointerDefault;
}

}  // namespace lectern::search
