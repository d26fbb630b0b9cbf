#include "reader/exits.h"

#include "base/error_modes.h"
#include "base/program_end.h"

namespace lectern::reader {

namespace {

constexpr int kSettings = 1;  // slot

}  // namespace

Exits::Exits(Reader& the_reader, Settings& the_settings, ToolButtons& tools, forms::Menu& xx,
             forms::Menu& oo12)
    : reader_(the_reader), settings_(the_settings), oo12_(oo12) {
  tools.Command1.Click = [this] { Command1_Click(); };
  xx.Click = [this] { xx_Click(); };
  oo12.Click = [this] { oo12_Click(); };
}

void Exits::Command1_Click() {
  const base::Ignoring ignore;
  if (oo12_.Checked) {
    ignore([&] { reader_.form.Files().DeleteKeepingBackup(reader_.DataFile("CODEX.CFG")); });
    ignore([&] { settings_.AppendRecord(); });
  }
  throw base::ProgramEnd{};
}

void Exits::xx_Click() {
  if (oo12_.Checked) {
    reader_.form.Files().DeleteKeepingBackup(reader_.DataFile("CODEX.CFG"));
    reader_.form.Slots().OpenForAppending(kSettings, reader_.DataFile("codex.cfg"));
    // ODDITY(menu-exit-loses-settings): the first field of the record is a colour of something that does
    // not exist, so that the write fails and the settings file stays behind empty; it is meant.
    throw base::RunTimeError(base::ErrorNumber::kObjectRequired);
  }
  throw base::ProgramEnd{};
}

void Exits::oo12_Click() { oo12_.Checked = !oo12_.Checked; }

void Exits::Form_Unload() { throw base::ProgramEnd{}; }

}  // namespace lectern::reader
