// The main window: its features, and the connections between them. The order of the members is the order in
// which their controls are created.
#pragma once

#include <functional>

#include "aids/bookmarks.h"
#include "aids/help.h"
#include "aids/notes.h"
#include "aids/printing.h"
#include "gallery/book_converter.h"
#include "gallery/maintenance.h"
#include "gallery/old_catalogue.h"
#include "reader/session.h"
#include "reader/stories.h"
#include "search/concordance.h"
#include "search/concordance_builder.h"
#include "search/dictionary.h"
#include "search/results.h"
#include "search/text_search.h"
#include "search/trivia.h"
#include "ui/menus.h"
#include "ui/panels.h"
#include "ui/reading_desk.h"

namespace lectern::ui {

// How the main window reaches the other windows. Each call creates the window if needed.
struct OtherWindows {
  std::function<forms::Window&()> Form2;
  std::function<aids::Notes&()> notes;
  std::function<void(const forms::Picture&)> OpenPaint;  // with a white page for an empty picture
};

class Form1 : public forms::Window {
  OtherWindows others_;

 public:
  Form1(forms::Services services, const OtherWindows& others);

  void Form_Load() override { start_up_.Form_Load(); }
  void Form_Unload() override { exits_.Form_Unload(); }
  forms::Resizing GetResizing() const override { return forms::Resizing::kFree; }

  // For the paint window.
  gallery::PictureCatalogue& Pictures() { return pictures_; }
  gallery::Viewer& PictureViewer() { return viewer_; }

  // For the desktop.
  ReadingDesk& Desk() { return desk_; }

 private:
  Menus menus_{*this};
  Panels panels_{*this};
  reader::ToolButtons tools_{panels_.Picture6};
  reader::Reader reader_{*this, panels_.frms, panels_.Picture1, panels_.Frame1};
  reader::SecondPane second_pane_{panels_.Picture4};
  reader::Settings settings_{reader_,      panels_.Picture23, panels_.Coloured(),
                             second_pane_, menus_.oo11,       tools_};
  reader::ChapterCounts chapter_counts_{*this, reader_};
  reader::Stories stories_{reader_, menus_.dd1};
  search::TextSearch text_search_{reader_,      panels_.frms, panels_.frmscale, panels_.Frame2,
                                  panels_.picp, tools_,       menus_.cc3};
  search::ResultNavigation result_navigation_{reader_, panels_.frmc, text_search_};
  search::ConcordanceViewer concordance_viewer_{reader_, panels_.frmc, panels_.picp,
                                                tools_,  menus_.cc1,   text_search_};
  search::ConcordanceEditing concordance_editing_{reader_,      panels_.frmc,       panels_.Frame2,
                                                  text_search_, result_navigation_, concordance_viewer_};
  search::ConcordanceBuilder concordance_builder_{reader_, panels_.frms, panels_.frmscale, panels_.Frame2,
                                                  text_search_};
  search::OnePassBuilder one_pass_builder_{reader_, panels_.Frame2, text_search_, concordance_builder_};
  search::Dictionary dictionary_{reader_, panels_.frmd, panels_.picp, tools_, menus_.cc2};
  search::Trivia trivia_{reader_, panels_.Picture17, panels_.picp, tools_, menus_.cc4};
  aids::Bookmarks bookmarks_{reader_, panels_.Picture1, panels_.Picture2, panels_.picp, tools_, menus_.xb};
  aids::PagePrinting page_printing_{reader_, panels_.Picture1, others_.Form2};
  aids::NotesOpening notes_opening_{panels_.picp, tools_, menus_.cc0, others_.notes};
  aids::Help help_{reader_, panels_.frmhelp, tools_, menus_.xh2, menus_.aboutlt, menus_.webb1, menus_.webb2};
  gallery::PictureCatalogue pictures_{reader_, panels_.Frame5, panels_.Frame6, panels_.picp};
  gallery::Viewer viewer_{pictures_, panels_.picp};
  gallery::Browser browser_{pictures_, viewer_, panels_.Picture5, panels_.picp};
  gallery::Maintenance maintenance_{pictures_, browser_, panels_.Frame5, panels_.Frame6};
  gallery::OldCatalogue old_catalogue_{pictures_, viewer_};
  gallery::OlderList older_list_{pictures_, panels_.Frame5, panels_.Frame6};
  gallery::BookConverter book_converter_{panels_.Frame5};
  reader::StartUp start_up_{
      reader_, settings_, {pictures_.Dirpics, bookmarks_.File1, concordance_builder_.Text2}};
  ReadingDesk desk_{reader_, panels_, second_pane_};
  reader::Exits exits_{reader_, settings_, tools_, menus_.xx, menus_.oo12};
};

}  // namespace lectern::ui
