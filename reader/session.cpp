#include "reader/session.h"

#include "base/errors.h"
#include "reader/canon.h"

namespace lectern::reader {

namespace {

constexpr double kWindowWidth = 13860;  // twips
constexpr double kWindowHeight = 10710;
constexpr int kSettings = 1;  // slot

}  // namespace

void StartUp::Form_Load() {
  PlaceWindow();
  FindFolders();
  PlaceWindow();
  settings_.PrepareFile();
  const base::Ignoring ignore;
  ignore([&] { settings_.ReadSettings(); });
  ignore([&] { controls_.Dirpics.Path = reader_.Dir1.Path + "/Pics"; });
  FillLists();
  PlaceWindow();
  reader_.ShowGenesis();
}

void StartUp::PlaceWindow() {
  forms::Window& form = reader_.form;
  const base::ScreenSize screen = form.Platform().Screen();
  form.Width = kWindowWidth;
  form.Height = kWindowHeight;
  form.Top = screen.height / 2 - form.Height / 2;
  form.Left = screen.width / 2 - form.Width / 2;
}

// The data folder is the one in which the program is started.
void StartUp::FindFolders() {
  const base::Ignoring ignore;
  ignore([&] {
    // This one folder is replaced by another.
    if (reader_.Dir1.Path == "C:\\a\\ide\\ID98") reader_.Dir1.Path = "C:\\CODEX";
  });
  ignore([&] { controls_.Dirpics.Path = reader_.DataFile("pics"); });
  ignore([&] { reader_.Dir3.Path = reader_.DataFile(kVersions[0].folder); });
  ignore([&] { controls_.File1.Path = reader_.Dir1.Path; });
}

void StartUp::FillLists() {
  const base::Ignoring ignore;
  for (const std::string_view book : kCanon) reader_.lst.AddItem(std::string(book));
  reader_.form.Slots().Close(kSettings);  // left open if the file was too short
  reader_.ClearPosition();
  controls_.Text2.Text = "";
  for (int i = 0; i < reader_.LBLMRK.Count(); ++i) reader_.LBLMRK(i).Caption = "";

  for (const std::string& font : reader_.form.Platform().FontNames()) settings_.Combo1.AddItem(font);
  for (const char* size : {"8", "10", "12", "14", "18"}) settings_.Combo2.AddItem(size);
  for (const char* style : {"Regular", "Italic", "Bold", "Bold Italic"}) settings_.Combo3.AddItem(style);
}

Exits::Exits(Reader& the_reader, Settings& the_settings, ToolButtons& tools, forms::Menu& xx,
             forms::Menu& oo12)
    : reader_(the_reader), settings_(the_settings), oo12_(oo12) {
  tools.Command1.Click = [this] { Command1_Click(); };
  xx.Click = [this] { xx_Click(); };
  oo12.Click = [this] { oo12_.Checked = !oo12_.Checked; };
}

void Exits::Command1_Click() {
  const base::Ignoring ignore;
  if (oo12_.Checked) {
    ignore([&] { reader_.form.Files().SetAside(reader_.DataFile("CODEX.CFG")); });
    ignore([&] { settings_.AppendRecord(); });
  }
  throw base::ProgramEnd{};
}

void Exits::xx_Click() {
  if (oo12_.Checked) {
    reader_.form.Files().SetAside(reader_.DataFile("CODEX.CFG"));
    reader_.form.Slots().OpenForAppending(kSettings, reader_.DataFile("codex.cfg"));
    // ODDITY(menu-exit-loses-settings): the first field of the record is the colour of an object that does
    // not exist, so the write fails and leaves the settings file empty.
    throw base::RunTimeError(base::ErrorNumber::kObjectRequired);
  }
  throw base::ProgramEnd{};
}

void Exits::Form_Unload() { throw base::ProgramEnd{}; }

}  // namespace lectern::reader
