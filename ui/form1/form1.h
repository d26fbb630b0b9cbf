// The main window: the sum of its panels, and what is joined between them. Members stand in the order in
// which their controls are made.
#pragma once

#include <functional>

#include "aids/bookmarks.h"
#include "aids/help.h"
#include "aids/notes_doors.h"
#include "aids/page_printing.h"
#include "gallery/book_converter.h"
#include "gallery/browser.h"
#include "gallery/maintenance.h"
#include "gallery/old_catalogue.h"
#include "gallery/older_list.h"
#include "gallery/picture_catalogue.h"
#include "gallery/viewer.h"
#include "reader/chapter_counts.h"
#include "reader/error_report.h"
#include "reader/exits.h"
#include "reader/menus.h"
#include "reader/panels.h"
#include "reader/reader.h"
#include "reader/second_pane.h"
#include "reader/settings.h"
#include "reader/start_up.h"
#include "reader/stories.h"
#include "reader/tool_buttons.h"
#include "search/concordance_builder.h"
#include "search/concordance_editing.h"
#include "search/concordance_viewer.h"
#include "search/dictionary.h"
#include "search/one_pass_builder.h"
#include "search/result_navigation.h"
#include "search/text_search.h"
#include "search/trivia.h"

namespace lectern::ui {

// How the main window's doors reach the other windows: each makes its window where there is none yet.
struct OtherWindows {
  std::function<forms::Window&()> Form2;
  std::function<aids::Notes&()> notes;
  std::function<void(const forms::Picture&)>
      OpenPaint;  // the paint window on a picture; a white page for none
};

class Form1 : public forms::Window {
 public:
  Form1(forms::Services services, const OtherWindows& others);

  void Form_Load() override { start_up_.Form_Load(); }
  void Form_Unload() override { exits_.Form_Unload(); }

  // What the paint window works with.
  gallery::PictureCatalogue& Pictures() { return pictures_; }
  gallery::Viewer& PictureViewer() { return viewer_; }

 private:
  reader::Menus menus_;
  reader::Panels panels_;
  reader::ToolButtons tools_;
  reader::Reader reader_;
  reader::SecondPane second_pane_;
  reader::Settings settings_;
  reader::ErrorReport error_report_;
  reader::ChapterCounts chapter_counts_;
  reader::Stories stories_;
  search::TextSearch text_search_;
  search::ResultNavigation result_navigation_;
  search::ConcordanceViewer concordance_viewer_;
  search::ConcordanceEditing concordance_editing_;
  search::ConcordanceBuilder concordance_builder_;
  search::OnePassBuilder one_pass_builder_;
  search::Dictionary dictionary_;
  search::Trivia trivia_;
  aids::Bookmarks bookmarks_;
  aids::PagePrinting page_printing_;
  aids::NotesDoors notes_doors_;
  aids::Help help_;
  gallery::PictureCatalogue pictures_;
  gallery::Viewer viewer_;
  gallery::Browser browser_;
  gallery::Maintenance maintenance_;
  gallery::OldCatalogue old_catalogue_;
  gallery::OlderList older_list_;
  gallery::BookConverter book_converter_;
  reader::StartUp start_up_;
  reader::Exits exits_;
};

}  // namespace lectern::ui
