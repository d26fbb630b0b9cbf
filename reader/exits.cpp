#include "reader/exits.h"

#include "base/error_modes.h"
#include "base/program_end.h"

namespace lectern::reader {

namespace {

constexpr int kSettings = 1;  // slot

}  // namespace

Exits::Exits(Reader& the_reader, Menus& the_menus, ToolButtons& tools, SettingTexts the_settings)
    : reader(the_reader), menus(the_menus), settings(the_settings) {
  tools.Command1.Click = [this] { Command1_Click(); };
  menus.xx.Click = [this] { xx_Click(); };
  menus.oo12.Click = [this] { oo12_Click(); };
}

void Exits::Command1_Click() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader.form.Slots();
  if (menus.oo12.Checked) {
    ignore([&] { reader.form.Files().DeleteKeepingBackup(reader.Dir1.Path + "\\CODEX.CFG"); });
    ignore([&] { slots.OpenForAppending(kSettings, reader.Dir1.Path + "\\codex.cfg"); });
    ignore([&] {
      slots.WriteRecord(kSettings, settings.Combo1.Text(), settings.Combo2.Text(), settings.Combo3.Text());
    });
    ignore([&] { slots.Close(kSettings); });
  }
  throw base::ProgramEnd{};
}

void Exits::xx_Click() {
  if (menus.oo12.Checked) {
    reader.form.Files().DeleteKeepingBackup(reader.Dir1.Path + "\\CODEX.CFG");
    reader.form.Slots().OpenForAppending(kSettings, reader.Dir1.Path + "\\codex.cfg");
    // ODDITY(menu-exit-loses-settings): the first field of the record is a colour of something that does
    // not exist, so that the write fails and the settings file stays behind empty; it is meant.
    throw base::RunTimeError(base::ErrorNumber::kObjectRequired);
  }
  throw base::ProgramEnd{};
}

void Exits::oo12_Click() { menus.oo12.Checked = !menus.oo12.Checked; }

void Exits::Form_Unload() { throw base::ProgramEnd{}; }

}  // namespace lectern::reader
