#include "reader/start_up.h"

#include "base/error_modes.h"
#include "reader/canon.h"

namespace lectern::reader {

namespace {

constexpr double kWindowWidth = 13860;  // twips
constexpr double kWindowHeight = 10710;
constexpr int kSettings = 1;  // slot

}  // namespace

StartUp::StartUp(Reader& the_reader, Panels& the_panels, Catalogue& the_catalogue,
                 StartUpControls the_controls)
    : ReadSettings([] {}),
      reader(the_reader),
      panels(the_panels),
      catalogue(the_catalogue),
      controls(the_controls) {}

void StartUp::Form_Load() {
  PlaceWindow();
  FindFolders();
  PlaceWindow();
  const base::Ignoring ignore;
  ignore([&] { controls.Command26.Top = controls.Command26.Top + 50; });
  ignore([&] { controls.Command30.Top = controls.Command30.Top + 50; });
  LoadSettings();
  ignore([&] { controls.Dirpics.Path = reader.Dir1.Path + "/Pics"; });
  FillLists();
  PlacePanels();
  PlaceWindow();
  ShowGenesis();
}

void StartUp::PlaceWindow() {
  const base::Ignoring ignore;
  forms::Window& form = reader.form;
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
    if (reader.Dir1.Path == "C:\\a\\ide\\ID98") reader.Dir1.Path = "C:\\CODEX";
  });
  ignore([&] { controls.Dirpics.Path = reader.Dir1.Path + "\\pics"; });
  ignore([&] { reader.Dir3.Path = reader.Dir1.Path + "\\KJV"; });
  ignore([&] { controls.File1.Path = reader.Dir1.Path; });
}

// A settings file that is missing, or too short to hold anything, gets the default record: colour, colour,
// font and size, of which the reader takes the first three for font, size and style.
void StartUp::LoadSettings() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader.form.Slots();
  const std::string path = reader.Dir1.Path + "\\codex.cfg";
  ignore([&] { slots.OpenForAppending(kSettings, path); });
  ignore([&] {
    constexpr std::uint64_t kShortest = 3;
    if (reader.form.Files().Length(path) < kShortest) {
      slots.WriteRecord(kSettings, "&HFF0000", "&H80000005", "Arial", "10");
    }
  });
  ignore([&] { slots.Close(kSettings); });
  ignore([&] { ReadSettings(); });
}

void StartUp::FillLists() {
  const base::Ignoring ignore;
  for (const std::string_view book : kCanon) reader.lst.AddItem(std::string(book));
  ignore([&] { reader.form.Slots().Close(kSettings); });
  // With lblc empty the Change handlers of the other labels return at once.
  for (forms::Label* label : {&reader.lblc, &reader.lblbk, &reader.lblbook}) {
    ignore([&] { label->Caption = ""; });
  }
  ignore([&] { controls.Text2.Text = ""; });
  for (int i = 0; i < reader.LBLMRK.Count(); ++i) reader.LBLMRK(i).Caption = "";

  for (const std::string& font : reader.form.Platform().FontNames()) controls.Combo1.AddItem(font);
  for (const char* size : {"8", "10", "12", "14", "18"}) controls.Combo2.AddItem(size);
  for (const char* style : {"Regular", "Italic", "Bold", "Bold Italic"}) controls.Combo3.AddItem(style);
}

void StartUp::PlacePanels() {
  struct PanelPlace {
    forms::PlacedControl& panel;
    double left, top;
  };
  const PanelPlace places[] = {
      {panels.picp, 360, 240},      {panels.frms, 800, 1800},      {panels.frmc, 800, 1800},
      {panels.frmhelp, 800, 360},   {panels.Picture17, 100, 100},  {panels.Picture1, 800, 1800},
      {panels.Picture2, 800, 1800}, {panels.Picture23, 800, 1800}, {panels.frmd, 240, 360},
      {panels.Picture4, 800, 1800},
  };
  for (const PanelPlace& place : places) {
    place.panel.Left = place.left;
    place.panel.Top = place.top;
  }
}

void StartUp::ShowGenesis() {
  const base::Ignoring ignore;
  ignore([&] { reader.lblbk.Caption = "Genesis"; });
  ignore([&] { reader.lblbook.Caption = "Genesis"; });
  ignore([&] { reader.lblc.Caption = ""; });
  ignore([&] { reader.lblc.Caption = "1"; });
  ignore([&] { catalogue.LoadChapterRange(); });
  ignore([&] { reader.ExtractBookPictures(); });
  ignore([&] { reader.FillPictureLists(); });
}

}  // namespace lectern::reader
