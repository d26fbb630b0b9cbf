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
  // ODDITY(no-pick-is-the-first): with no picture picked the tools take the first of the page.
  return {slot, catalogue_.PageStart() + slot};
}

// Draws the strip from the catalogue as it is now, on the page it was on.
void Maintenance::ShowCatalogue(const std::string& page) {
  catalogue_.ListBookPictures();
  catalogue_.lblendpic.Caption = "";
  catalogue_.lblendpic.Caption = page;
}

// Takes every record of the catalogue in the order of the file, its name without the blanks at its end, to
// `decide`, which keeps it or not.
void Maintenance::Rewrite(const std::function<void(const PictureRecord&)>& decide) {
  files::FileSlots& slots = reader_.form.Slots();
  const std::string page = catalogue_.lblendpic.Caption;
  const std::string fresh = reader_.DataFile("pics22.dat");
  // ODDITY(leftover-of-a-failed-rewrite): what an action that failed left in the new file stays at its top,
  // so that those records stand twice in the catalogue.
  slots.OpenForAppending(kNew, fresh);
  slots.OpenForReading(kOld, catalogue_.CatalogueFile());
  while (!slots.EndOfFile(kOld)) {
    PictureRecord record = ReadPictureRecord(slots, kOld);
    record.name.resize(text::TrimEnd(record.name).size());
    decide(record);
  }
  slots.Close(kOld);
  slots.Close(kNew);
  reader_.form.Files().DeleteKeepingBackup(catalogue_.CatalogueFile());
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
  // ODDITY(doubled-credit): the third box is meant for a bare name; after a click on a picture it holds a
  // whole credit line, and the prefix stands twice.
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
    // ODDITY(remove-first-of-the-name): the first record of the name goes, in whichever book it stands and
    // also where it is the only one; and a later picture that is really called "done" goes with it.
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
    // ODDITY(remove-all-wants-a-path): the picture that is moved away lies in the folder of the text, in a
    // folder of its name, and is called "jpg"; where there is none, the action fails, the catalogue staying
    // as it was, and ends the program.
    reader_.form.Files().Rename(reader_.Dir3.Path + "\\" + kept_name + "\\jpg",
                                reader_.Dir3.Path + "\\rem\\" + kept_name + "\\jpg");
  });
  browser_.ResetPictureLabels();
}

// Takes the record of the held name out and puts it back behind that of the trigger name. Both stand in one
// chapter and in this order, or something is lost.
void Maintenance::Move(const std::string& held_name, const std::string& trigger_name) {
  std::optional<PictureRecord> held;
  const bool holds = !held_name.empty();
  Rewrite([&](const PictureRecord& record) {
    if (holds && record.name == held_name) {
      // ODDITY(move-loses-a-record): what is held is written behind the trigger alone. Where that came
      // first in the file, or never comes, or where the name stands again before it, the record is lost.
      held = record;
      return;
    }
    Keep(record);
    if (!holds || record.name != trigger_name) return;
    if (held) {
      Keep(*held);
    } else {
      reader_.form.Slots().PrintLine(kNew, ",,");
    }
  });
  browser_.ResetPictureLabels();
}

// ODDITY(mark-after-a-move): the mark goes with the picture but from the first slot, where it is lost; from
// the last slot it goes to the number above the first one, which stays red.
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
