#include "reader/exits.h"

#include "base/error_modes.h"
#include "base/program_end.h"

namespace lectern::reader {

namespace {

constexpr int kSettings = 1;  // slot

}  // namespace

Exits::Exits(Reader& the_reader, Menus& the_menus, ToolButtons& tools, SettingTexts the_settings)
    : reader_(the_reader), menus_(the_menus), settings_(the_settings) {
  tools.Command1.Click = [this] { Command1_Click(); };
  menus_.xx.Click = [this] { xx_Click(); };
  menus_.oo12.Click = [this] { oo12_Click(); };
}

void Exits::Command1_Click() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  if (menus_.oo12.Checked) {
    ignore([&] { reader_.form.Files().DeleteKeepingBackup(reader_.DataFile("CODEX.CFG")); });
    ignore([&] { slots.OpenForAppending(kSettings, reader_.DataFile("codex.cfg")); });
    ignore([&] {
      slots.WriteRecord(kSettings, settings_.Combo1.Text(), settings_.Combo2.Text(), settings_.Combo3.Text());
    });
    ignore([&] { slots.Close(kSettings); });
  }
  throw base::ProgramEnd{};
}

void Exits::xx_Click() {
  if (menus_.oo12.Checked) {
    reader_.form.Files().DeleteKeepingBackup(reader_.DataFile("CODEX.CFG"));
    reader_.form.Slots().OpenForAppending(kSettings, reader_.DataFile("codex.cfg"));
    // ODDITY(menu-exit-loses-settings): the first field of the record is a colour of something that does
    // not exist, so that the write fails and the settings file stays behind empty; it is meant.
    throw base::RunTimeError(base::ErrorNumber::kObjectRequired);
  }
  throw base::ProgramEnd{};
}

void Exits::oo12_Click() { menus_.oo12.Checked = !menus_.oo12.Checked; }

void Exits::Form_Unload() { throw base::ProgramEnd{}; }

}  // namespace lectern::reader
