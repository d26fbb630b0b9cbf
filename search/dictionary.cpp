#include "search/dictionary.h"

namespace lectern::search {

namespace {

constexpr int kWords = 1;  // slot

struct Record {
  std::string word;
  std::string definition;
  std::string verse;  // that uses the word
  std::string place;  // of the verse
};

// Reads the next record into one that is used again and again.
void ReadRecord(files::FileSlots& slots, Record& record) {
  for (std::string* field : {&record.word, &record.definition, &record.verse, &record.place}) {
    *field = slots.ReadField(kWords);
  }
}

}  // namespace

Dictionary::Dictionary(reader::Reader& the_reader, forms::Frame& frmd, forms::PictureBox& picp,
                       reader::ToolButtons& the_tools, forms::Menu& cc2)
    : reader_(the_reader), frmd_(frmd), picp_(picp), tools_(the_tools) {
  tools_.Command17.Click = [this] { Command17_Click(); };
  cc2.Click = [this] { cc2_Click(); };
  lstd.MouseDown = [this](const forms::MouseEvent&) { lstd_MouseDown(); };
  lstd.Click = [this] { lstd_Click(); };
  dwd.Change = [this] { dwd2.Caption = dwd.Caption; };
  ddf.Change = [this] { ddf2.Caption = ddf.Caption; };
  dex.Change = [this] { dex2.Caption = dex.Caption; };
  Command19.Click = [this] { Command19_Click(); };
}

std::string Dictionary::DataFile() const { return reader_.DataFile("cdxdic.dat"); }

// ODDITY(dictionary-grows): the list is not cleared first, so that each opening adds all words once more.
bool Dictionary::LoadWords() {
  files::FileSlots& slots = reader_.form.Slots();
  Record record;
  try {
    slots.OpenForReading(kWords, DataFile());
    while (!slots.EndOfFile(kWords)) {
      ReadRecord(slots, record);
      lstd.AddItem(record.word);
    }
    slots.Close(kWords);
    return true;
  } catch (const base::RunTimeError& error) {
    slots.Close(kWords);
    reader_.ReportError(error);
    return false;
  }
}

// Whether the panel is open now: it stays closed where the words cannot be read.
bool Dictionary::Open() {
  const bool loaded = LoadWords();
  if (loaded) frmd_.Visible = true;
  tools_.Command17.MousePointer = forms::kPointerDefault;
  return loaded;
}

void Dictionary::Command17_Click() {
  picp_.Visible = false;
  if (Open()) tools_.Disable();
}

void Dictionary::cc2_Click() { Open(); }

// ODDITY(dictionary-hourglass): the pointer comes back with the click alone, so that a press that becomes
// none leaves it.
void Dictionary::lstd_MouseDown() { lstd.MousePointer = forms::kPointerHourglass; }

void Dictionary::lstd_Click() {
  for (int i = 0; i < lstd.ListCount(); ++i) {
    if (!lstd.Selected(i)) continue;
    dwd.Caption = lstd.List(i);
    break;
  }
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kWords, DataFile());
  Record record;
  bool found = false;
  while (!found && !slots.EndOfFile(kWords)) {
    ReadRecord(slots, record);
    if (dwd.Caption != record.word) continue;
    ddf.Caption = record.definition;
    dex.Caption = record.verse + " :  " + record.place;
    found = true;
  }
  slots.Close(kWords);
  lstd.MousePointer = forms::kPointerDefault;
}

void Dictionary::Command19_Click() {
  frmd_.Visible = false;
  tools_.Enable();
}

}  // namespace lectern::search
