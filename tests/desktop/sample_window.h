// A window with every kind of control on it, for trying the desktop layer without the program.
#pragma once

#include <string>
#include <vector>

#include "forms/bars_and_timer.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/figures.h"
#include "forms/lists.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"

namespace lectern::desktop {

// Every handler writes down what happened.
class SampleWindow : public forms::Window {
 public:
  explicit SampleWindow(forms::Services services) : Window(services, "Sample", "Every kind of control") {
    constexpr double kPixel = forms::kTwipsPerPixel;
    Width = 790 * kPixel + forms::kFrameWidth;
    Height = 600 * kPixel + forms::kFrameHeight + forms::kMenuBarHeight;
    const struct {
      forms::PlacedControl* control;
      double left, top, width, height;
    } kPlaces[] = {{&label, 10, 10, 90, 20},
                   {&line_box, 110, 8, 150, 24},
                   {&page_box, 10, 40, 250, 70},
                   {&command, 10, 120, 110, 28},
                   {&search, 130, 120, 130, 28},
                   {&option, 10, 158, 110, 22},
                   {&bare_option, 130, 158, 20, 22},
                   {&option_text, 152, 160, 108, 20},
                   {&combo, 10, 185, 250, 26},
                   {&bar, 10, 220, 250, 22},
                   {&progress, 10, 250, 250, 16},
                   {&list, 280, 10, 145, 180},
                   {&files, 280, 200, 145, 66},
                   {&folders, 435, 10, 145, 180},
                   {&drives, 435, 200, 145, 26},
                   {&image, 600, 10, 80, 60},
                   {&clickable_image, 690, 10, 80, 60},
                   {&shape, 600, 80, 40, 40},
                   {&swatch_label, 610, 90, 30, 20},
                   {&line, 650, 100, 120, 0},
                   {&frame, 600, 130, 180, 136},
                   {&in_frame, 10, 30, 160, 20},
                   {&ss_option, 10, 56, 100, 22},
                   {&ss_option2, 10, 80, 100, 22},
                   {&ss_command, 10, 104, 100, 26},
                   {&canvas, 10, 280, 250, 200},
                   {&follower, 10, 490, 250, 22},
                   {&page, 280, 280, 245, 200},
                   {&sheet, 535, 280, 245, 200},
                   {&panel, 300, 250, 300, 160},
                   {&cancel, 180, 120, 100, 28},
                   {&in_panel, 10, 10, 200, 24},
                   {&far_away, 1200, 10, 100, 20}};
    for (const auto& [control, left, top, width, height] : kPlaces) {
      control->Left = left * kPixel;
      control->Top = top * kPixel;
      control->Width = width * kPixel;
      control->Height = height * kPixel;
    }
    far_away.AnchorTo(forms::Anchor::kStorage);
    JoinHandlers();
    for (const char* book : {"Genesis", "Exodus", "Leviticus", "Job", "Joel", "John"}) list.AddItem(book);
    for (const char* size : {"8", "10", "12"}) combo.AddItem(size);
    option.Value = true;
  }

  std::vector<std::string> log;

  forms::Menu file{*this, "file", {.caption = "&File"}};
  forms::Menu open{file, "open", {.caption = "&Open", .shortcut = "Ctrl+O"}};
  forms::Menu gap{file, "gap", {.caption = "-"}};
  forms::Menu mark{file, "mark", {.caption = "&Mark", .checked = true}};
  forms::Menu stories{*this, "stories", {.caption = "Codex &Stories"}};
  forms::Menu flood{stories, "flood", {.caption = "Flood"}};
  forms::Menu fall{stories, "fall", {.caption = "Fall"}};

  // Stands ahead of all others, so that only being shown later puts it on top of them.
  forms::Frame panel{*this, "panel", {.visible = false, .name = "Panel"}};
  forms::TextBox in_panel{panel, "in_panel", {.name = "For"}};
  forms::CommandButton cancel{panel, "cancel", {.caption = "Close", .is_cancel = true}};

  forms::Label label{*this, "label", {.caption = "A label"}};
  forms::TextBox line_box{*this, "line_box", {.text = "one line", .name = "Line"}};
  forms::TextBox page_box{*this, "page_box", {.text = "two\r\nlines", .name = "Page", .multi_line = true}};
  forms::CommandButton command{*this, "command", {.caption = "&Press", .is_default = true}};
  forms::CommandButton search{*this, "search", {.caption = "&Search with a long text"}};
  forms::OptionButton option{*this, "option", {.caption = "Option"}};
  forms::OptionButton bare_option{*this, "bare_option", {.name = "Bare"}};
  forms::Label option_text{*this, "option_text", {.caption = "its text"}};
  forms::ComboBox combo{*this, "combo", {.name = "Size"}};
  forms::HScrollBar bar{
      *this,
      "bar",
      {.value = 1, .min = 1, .max = 50, .name = "Chapter", .key_back = "Ctrl+PgUp", .key_on = "Ctrl+PgDown"}};
  forms::HScrollBar follower{
      *this, "follower", {.max = 9, .name = "Picture", .follows_thumb = true, .counts_from_1 = true}};
  forms::ProgressBar progress{*this, "progress", {.name = "Progress"}};
  forms::ListBox list{*this, "list", {.name = "Books"}};
  forms::FileListBox files{*this, "files", {.name = "Files", .pattern = "*.txt"}};
  forms::DirListBox folders{*this, "folders", {.name = "Folders"}};
  forms::DriveListBox drives{*this, "drives", {.name = "Drives"}};
  forms::Image image{*this, "image", {.stretch = true}};
  forms::Image clickable_image{*this, "clickable_image", {.name = "Picture to press", .stretch = true}};
  forms::Shape shape{*this, "shape"};
  forms::Label swatch_label{*this, "swatch_label", {.caption = "x", .name = "Orange"}};
  forms::Line line{*this, "line"};
  forms::Frame frame{*this, "frame", {.caption = "Frame"}};
  forms::Label in_frame{frame, "in_frame", {.caption = "a text that is longer than its place allows"}};
  forms::SSOption ss_option{frame, "ss_option", {.caption = "Book", .checked = true}};
  forms::SSOption ss_option2{frame, "ss_option2", {.caption = "Codex"}};
  forms::SSCommand ss_command{frame, "ss_command", {.caption = ">", .name = "Go deeper"}};
  forms::PictureBox canvas{*this, "canvas", {.name = "Canvas"}};
  forms::RichTextBox page{*this, "page", {.name = "Text", .read_only = true}};
  forms::RichTextBox sheet{*this, "sheet", {.text = "Note", .name = "Note"}};
  forms::Label far_away{*this, "far_away", {.caption = "storage"}};
  forms::Timer timer{*this, "timer", {.enabled = false, .interval = 1}};

 private:
  void JoinHandlers() {
    for (forms::Control* control : Controls()) {
      if (control == &label || control == &option_text || control == &image || control == &page ||
          control == &in_frame)
        continue;
      if (control->GetKind() == forms::Kind::kFrame || control->GetKind() == forms::Kind::kShape) continue;
      control->Click = [this, control] { log.push_back(control->Name() + " click"); };
    }
    list.MouseDown = [this](const forms::MouseEvent&) { log.push_back("list press"); };
    list.DblClick = [this] { log.push_back("list dblclick"); };
    list.KeyDown = [this](int code) { log.push_back("list key " + std::to_string(code)); };
    line_box.LostFocus = [this] { log.push_back("line_box left"); };
    bar.Change = [this] { log.push_back("bar " + std::to_string(bar.Value)); };
    follower.Change = [this] { log.push_back("follower " + std::to_string(follower.Value)); };
    sheet.Change = [this] { log.push_back("sheet change"); };
    combo.Text = "10";
    progress.Value = 40;
    shape.FigureKind = forms::kShapeCircle;
    shape.BackColor = forms::Rgb(255, 128, 0);
    canvas.Click = nullptr;
    canvas.ForeColor = forms::kBlack;
    canvas.ScaleMode = forms::kScalePixels;
    canvas.DrawWidth = 9;
    canvas.MouseDown = [this](const forms::MouseEvent& mouse) { canvas.PSet(mouse.x, mouse.y); };
    canvas.MouseMove = [this](const forms::MouseEvent& mouse) {
      if (mouse.button != 0) canvas.PSet(mouse.x, mouse.y);
    };
    page.Quote = [this] { return page.SelLength > 0 ? "quoted: " + page.SelText() : std::string(); };
    timer.Tick = [this] { log.push_back("tick"); };
  }
};

}  // namespace lectern::desktop
