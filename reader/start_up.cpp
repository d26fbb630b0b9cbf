#include "reader/start_up.h"

#include "base/error_modes.h"
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
  const base::Ignoring ignore;
  forms::Window& form = reader_.form;
  const base::ScreenSize screen = form.Platform().Screen();
  ignore([&] { form.Width = kWindowWidth; });
  ignore([&] { form.Height = kWindowHeight; });
  ignore([&] { form.Top = screen.height / 2 - form.Height / 2; });
  ignore([&] { form.Left = screen.width / 2 - form.Width / 2; });
}

// The data folder is the one the program is started in, wherever the program itself lies.
void StartUp::FindFolders() {
  const base::Ignoring ignore;
  ignore([&] {
    // A start in the folder of the data's first keeper, and there alone, reads the data from another.
    if (reader_.Dir1.Path == "C:\\a\\ide\\ID98") reader_.Dir1.Path = "C:\\CODEX";
  });
  ignore([&] { controls_.Dirpics.Path = reader_.DataFile("pics"); });
  ignore([&] { reader_.Dir3.Path = reader_.DataFile(kVersions[0].folder); });
  ignore([&] { controls_.File1.Path = reader_.Dir1.Path; });
}

void StartUp::FillLists() {
  const base::Ignoring ignore;
  for (const std::string_view book : kCanon) reader_.lst.AddItem(std::string(book));
  reader_.form.Slots().Close(kSettings);  // a settings file that was too short was left open
  reader_.ClearPosition();
  ignore([&] { controls_.Text2.Text = ""; });
  for (int i = 0; i < reader_.LBLMRK.Count(); ++i) reader_.LBLMRK(i).Caption = "";

  for (const std::string& font : reader_.form.Platform().FontNames()) settings_.Combo1.AddItem(font);
  for (const char* size : {"8", "10", "12", "14", "18"}) settings_.Combo2.AddItem(size);
  for (const char* style : {"Regular", "Italic", "Bold", "Bold Italic"}) settings_.Combo3.AddItem(style);
}

}  // namespace lectern::reader
