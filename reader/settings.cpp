#include "reader/settings.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/errors.h"
#include "base/text/numbers.h"
#include "forms/window.h"

namespace lectern::reader {

namespace {

constexpr int kSettings = 1;  // slot

struct Style {
  std::string_view name;
  bool italic, bold;
};

constexpr Style kStyles[] = {
    {"Regular", false, false},
    {"Italic", true, false},
    {"Bold", false, true},
    {"Bold Italic", true, true},
};

struct Swatch {
  const char* control;
  forms::Colour colour;
  const char* name;
};

constexpr Swatch kSwatches[] = {
    {"Picture25", 0x00C0C0C0, "Light grey"},
    {"Picture26", 0x00FF00FF, "Magenta"},
    {"Picture27", 0x00FF0000, "Blue"},
    {"Picture28", 0x00FFFF00, "Cyan"},
    {"Picture29", 0x0000FF00, "Green"},
    {"Picture30", 0x0000FFFF, "Yellow"},
    {"Picture31", 0x000080FF, "Orange"},
    {"Picture32", 0x000000FF, "Red"},
    {"Picture33", 0x00000000, "Black"},
    {"Picture34", 0x00808080, "Grey"},
    {"Picture35", forms::kWindowBackground, "Window colour"},
};

// An unknown style changes nothing.
void SetStyle(forms::TextControl& control, std::string_view style) {
  for (const Style& known : kStyles) {
    if (known.name != style) continue;
    control.FontItalic = known.italic;
    control.FontBold = known.bold;
  }
}

}  // namespace

Settings::Settings(Reader& the_reader, forms::PictureBox& Picture23,
                   std::vector<forms::PlacedControl*> coloured, SecondPane& second_pane, forms::Menu& oo11,
                   ToolButtons& the_tools)
    : reader_(the_reader),
      Picture23_(Picture23),
      coloured_(std::move(coloured)),
      tools_(the_tools),
      RTXT2(second_pane.RTXT2) {
  oo11.Click = [this] { Picture23_.Visible = true; };
  Combo1.Click = [this] { Combo1_Click(); };
  Combo2.Click = [this] { Combo_Click(); };
  Combo3.Click = [this] { Combo_Click(); };
  Command36.Click = [this] { Command36_Click(); };
  // ODDITY(close-unlocks): closing the panel enables the tool buttons although opening it does not disable
  // them, even if another panel keeps them disabled.
  Command24.Click = [this] {
    Picture23_.Visible = false;
    tools_.Enable();
  };
}

void Settings::PrepareFile() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  const std::string path = reader_.DataFile("codex.cfg");
  ignore([&] { slots.OpenForAppending(kSettings, path); });
  ignore([&] {
    constexpr std::uint64_t kShortest = 3;
    if (reader_.form.Files().Length(path) >= kShortest) return;
    // ODDITY(default-settings-misread): the default record has an older layout (colour, colour, font, size),
    // but is read as font, size and style.
    slots.WriteRecord(kSettings, "&HFF0000", "&H80000005", "Arial", "10");
  });
  ignore([&] { slots.Close(kSettings); });
}

void Settings::AppendRecord() {
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForAppending(kSettings, reader_.DataFile("codex.cfg"));
  slots.WriteRecord(kSettings, Combo1.Text(), Combo2.Text(), Combo3.Text());
  slots.Close(kSettings);
}

void Settings::ReadSettings() {
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kSettings, reader_.DataFile("codex.cfg"));
  const std::string font(slots.ReadField(kSettings));
  const std::string size(slots.ReadField(kSettings));
  const std::string style(slots.ReadField(kSettings));
  slots.Close(kSettings);
  Combo1.Text = font;
  Combo2.Text = size;
  Combo3.Text = style;
  size_read_ = size;
  style_read_ = style;
  ApplyFontSamples();
  // Both panes get the name before an invalid size raises an error.
  reader_.rtxt.FontName = font;
  RTXT2.FontName = font;
  reader_.rtxt.FontSize = text::ToNumber(size);
  RTXT2.FontSize = text::ToNumber(size);
  SetStyle(reader_.rtxt, style);
  SetStyle(RTXT2, style);
}

void Settings::ApplyFontSamples() {
  const base::Ignoring trap{[&] { PointAtSearchButton(forms::kPointerDefault); }};
  PointAtSearchButton(forms::kPointerHourglass);
  lblf.ForEach([&](int, forms::Label& sample) {
    sample.FontName = Combo1.Text;
    trap([&] { sample.FontSize = text::ToNumber(Combo2.Text()); });
    SetStyle(sample, Combo3.Text());
  });
  PointAtSearchButton(forms::kPointerDefault);
}

// An invalid size is ignored, so that the other two boxes still take effect.
void Settings::ApplyFontToPanes() {
  const base::Ignoring ignore;
  for (forms::RichTextBox* pane : {&reader_.rtxt, &RTXT2}) {
    pane->FontName = Combo1.Text;
    ignore([&] { pane->FontSize = text::ToNumber(Combo2.Text()); });
    SetStyle(*pane, Combo3.Text());
  }
}

// After a start without settings, the boxes hold an invalid size and an unknown style. Choosing a font
// replaces them with those of the pane, so that Save writes a valid record. Text that a person typed stays.
void Settings::Combo1_Click() {
  const base::Ignoring ignore;
  const forms::RichTextBox& pane = reader_.rtxt;
  const bool has_size = ignore([&] { lblf(0).FontSize = text::ToNumber(Combo2.Text()); });
  if (!has_size && Combo2.Text == size_read_) {
    Combo2.Text = text::NumberText(pane.FontSize > 0 ? pane.FontSize() : forms::kReadingSize);
  }
  const auto has_name = [&](const Style& style) { return style.name == Combo3.Text(); };
  if (Combo3.Text == style_read_ && std::none_of(std::begin(kStyles), std::end(kStyles), has_name)) {
    for (const Style& style : kStyles) {
      if (style.italic != pane.FontItalic || style.bold != pane.FontBold) continue;
      Combo3.Text = std::string(style.name);
    }
  }
  Combo_Click();
}

void Settings::Combo_Click() {
  ApplyFontSamples();
  ApplyFontToPanes();
}

void Settings::Command36_Click() {
  reader_.form.Files().SetAside(reader_.DataFile("codex.cfg"));
  AppendRecord();
  ReadSettings();
}

DesktopColour::DesktopColour(forms::PictureBox& Picture23, std::vector<forms::PlacedControl*> coloured)
    : Picture23_(Picture23), coloured_(std::move(coloured)) {
  for (const Swatch& swatch : kSwatches) {
    forms::PictureBox& box = swatches_.emplace_back(
        Picture24, swatch.control, forms::PictureBoxDesign{.name = swatch.name, .back_color = swatch.colour});
    box.Click = [this, &box] { Swatch_Click(box); };
  }
}

void DesktopColour::Swatch_Click(forms::PictureBox& swatch) {
  ChosenColour = std::to_string(swatch.BackColor);
  if (Option3.Value) {
    Picture23_.HostWindow().BackColor = text::ToLong(ChosenColour);
  } else {
    ApplyDesktopColour();
  }
}

// ODDITY(front-colour): the "front" colour is the background of the panels.
void DesktopColour::ApplyDesktopColour() {
  for (forms::PlacedControl* panel : coloured_) panel->BackColor = text::ToLong(ChosenColour);
}

}  // namespace lectern::reader
