#include "gallery/maintenance.h"

#include <optional>

#include "base/text/characters.h"

namespace lectern::gallery {

namespace {

constexpr int kOld = 1;  // slots
constexpr int kNew = 2;
constexpr int kRemoved = 3;

}  // namespace

Maintenance::Maintenance(PictureCatalogue& the_catalogue, Browser& the_browser, forms::Frame& Frame5,
                         forms::Frame& Frame6)
    : catalogue_(the_catalogue),
      browser_(the_browser),
      Frame5_(Frame5),
      Frame6_(Frame6),
      reader_(catalogue_.reader) {
  catalogue_.Dirpics.Change = [this] { File3.Path = catalogue_.Dirpics.Path; };
  Command26.Click = [this] { Frame5_.Visible = true; };
  Command46.Click = [this] { Frame5_.Visible = false; };
  Label2.Click = [this] { HelpChangingBook(); };
  Command49.Click = [this] { Command49_Click(); };
  Command45.Click = [this] { Command45_Click(); };
  Command47.Click = [this] { Command47_Click(); };
  SSCommand1.Click = [this] { SSCommand1_Click(); };
  SSCommand2.Click = [this] { SSCommand2_Click(); };
}

Maintenance::Picked Maintenance::FindPicked() {
  int slot = 0;
  for (int i = kSlotsOnPage - 1; i >= 0; --i) {
    if (browser_.lblp(i).ForeColor == kPickedColour) slot = i;
  }
  // ODDITY(no-pick-is-the-first): if no picture is selected, the tools use the first one on the page.
  return {slot, catalogue_.PageStart() + slot};
}

// Redraws the given page of the strip from the catalogue.
void Maintenance::ShowCatalogue(const std::string& page) {
  catalogue_.ListBookPictures();
  catalogue_.lblendpic.Caption = "";
  catalogue_.lblendpic.Caption = page;
}

// Passes every record, its name trimmed at the end, to `decide`, which keeps it or not.
void Maintenance::Rewrite(const std::function<void(const PictureRecord&)>& decide) {
  files::FileSlots& slots = reader_.form.Slots();
  const std::string page = catalogue_.lblendpic.Caption;
  const std::string fresh = reader_.DataFile("pics22.dat");
  // ODDITY(leftover-of-a-failed-rewrite): records that a failed action left in the new file stay at its
  // start, so the catalogue has them twice.
  slots.OpenForAppending(kNew, fresh);
  slots.OpenForReading(kOld, catalogue_.CatalogueFile());
  while (!slots.EndOfFile(kOld)) {
    PictureRecord record = ReadPictureRecord(slots, kOld);
    record.name.resize(text::TrimEnd(record.name).size());
    decide(record);
  }
  slots.Close(kOld);
  slots.Close(kNew);
  reader_.form.Files().SetAside(catalogue_.CatalogueFile());
  reader_.form.Files().Rename(fresh, catalogue_.CatalogueFile());
  ShowCatalogue(page);
}

void Maintenance::Keep(const PictureRecord& record) {
  WritePictureRecord(reader_.form.Slots(), kNew, record);
}

void Maintenance::Command49_Click() {
  files::FileSlots& slots = reader_.form.Slots();
  const std::string page = catalogue_.lblendpic.Caption;
  slots.OpenForAppending(kOld, catalogue_.CatalogueFile());
  // ODDITY(doubled-credit): the third box is meant for a name. After a click on a picture it holds a whole
  // credit line, and the prefix is written twice.
  WritePictureRecord(
      slots, kOld,
      {catalogue_.selfile(0).Text, catalogue_.selfile(1).Text, "PICTURES BY: " + catalogue_.selfile(2).Text});
  slots.Close(kOld);
  ShowCatalogue(page);
}

void Maintenance::Command45_Click() {
  std::string sought = NameAt(FindPicked().index);
  Rewrite([&](const PictureRecord& record) {
    if (record.name != sought) {
      Keep(record);
      return;
    }
    // ODDITY(remove-first-of-the-name): removes the first record of the name, in any book and even if it is
    // the only one. A later picture that is really called "done" is removed too.
    sought = "done";
  });
  browser_.ResetPictureLabels();
}

void Maintenance::Command47_Click() {
  const std::string name = NameAt(FindPicked().index);
  const std::string kept_name = catalogue_.selfile(0).Text;
  files::FileSlots& slots = reader_.form.Slots();
  Rewrite([&](const PictureRecord& record) {
    if (record.name != name) {
      Keep(record);
      return;
    }
    slots.OpenForAppending(kRemoved, reader_.DataFile("picsremoved.dat"));
    WritePictureRecord(slots, kRemoved, record);
    slots.Close(kRemoved);
    // ODDITY(remove-all-wants-a-path): the picture to move is expected as a file "jpg" in a folder of its
    // name in the folder of the text. If it is missing, the program ends and the catalogue stays as it was.
    reader_.form.Files().Rename(reader_.Dir3.Path + "\\" + kept_name + "\\jpg",
                                reader_.Dir3.Path + "\\rem\\" + kept_name + "\\jpg");
  });
  browser_.ResetPictureLabels();
}

// Moves the record `held_name` behind the record `trigger_name`.
void Maintenance::Move(const std::string& held_name, const std::string& trigger_name) {
  std::optional<PictureRecord> held;
  const bool holds = !held_name.empty();
  Rewrite([&](const PictureRecord& record) {
    if (holds && record.name == held_name) {
      // ODDITY(move-loses-a-record): the held record is lost if the trigger is not behind it in the file, or
      // if another record of its name comes first.
      held = record;
      return;
    }
    Keep(record);
    if (!holds || record.name != trigger_name) return;
    held ? Keep(*held) : reader_.form.Slots().PrintLine(kNew, ",,");
  });
  browser_.ResetPictureLabels();
}

// ODDITY(mark-after-a-move): the mark follows the picture, except from the first slot, where it is lost, and
// from the last slot, where it goes to the number above the first slot, which stays red.
void Maintenance::SSCommand1_Click() {
  const Picked picked = FindPicked();
  Move(NameAt(picked.index - 1), NameAt(picked.index));
  if (picked.slot > 0) browser_.lblp(picked.slot - 1).ForeColor = kPickedColour;
}

void Maintenance::SSCommand2_Click() {
  const Picked picked = FindPicked();
  Move(NameAt(picked.index), NameAt(picked.index + 1));
  if (picked.slot > 0) browser_.lblp(picked.slot + 1).ForeColor = kPickedColour;
}

}  // namespace lectern::gallery
