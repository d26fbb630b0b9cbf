#include "ui/form1/form1.h"

#include "ui/form1/places.h"
#include "ui/quotation.h"

namespace lectern::ui {

Form1::Form1(forms::Services services, const OtherWindows& others)
    : Window(services, "Form1", base::kProgramName),
      menus_(*this),
      panels_(*this),
      tools_(panels_),
      reader_(*this, panels_),
      second_pane_(panels_),
      settings_(reader_, panels_, second_pane_, menus_, tools_),
      error_report_(reader_),
      chapter_counts_(reader_),
      stories_(reader_, menus_),
      text_search_(reader_, panels_, tools_, menus_),
      result_navigation_(reader_, panels_, text_search_),
      concordance_viewer_(reader_, panels_, tools_, menus_, text_search_),
      concordance_editing_(reader_, panels_, error_report_, text_search_, result_navigation_,
                           concordance_viewer_),
      concordance_builder_(reader_, panels_, text_search_),
      one_pass_builder_(reader_, panels_, text_search_, concordance_builder_),
      dictionary_(reader_, panels_, tools_, menus_, error_report_),
      trivia_(reader_, panels_, tools_, menus_, error_report_),
      bookmarks_(reader_, panels_, tools_, menus_),
      page_printing_(reader_, panels_, others.Form2),
      notes_doors_(panels_, tools_, menus_, others.notes),
      help_(reader_, panels_, tools_, menus_),
      pictures_(reader_, panels_),
      viewer_(pictures_, panels_),
      browser_(pictures_, viewer_, panels_),
      maintenance_(pictures_, browser_, panels_),
      old_catalogue_(pictures_, viewer_),
      older_list_(pictures_, panels_),
      book_converter_(panels_),
      start_up_(reader_, panels_,
                {pictures_.Dirpics, bookmarks_.File1, maintenance_.Command26, page_printing_.Command30,
                 concordance_builder_.Text2, settings_.Combo1, settings_.Combo2, settings_.Combo3}),
      exits_(reader_, menus_, tools_, {settings_.Combo1, settings_.Combo2, settings_.Combo3}) {
  start_up_.ReadSettings = [this] { settings_.ReadSettings(); };
  settings_.PointAtSearchButton = [this](int pointer) { text_search_.Command22.MousePointer = pointer; };
  text_search_.ShowHelpNote = [this](const std::string& text) { help_.ShowNote(text); };
  viewer_.OpenPaint = [this, open_paint = others.OpenPaint] { open_paint(viewer_.pick.Picture); };
  maintenance_.HelpChangingBook = [this] { help_.HelpChangingBook(); };
  reader_.BookChanged = [this] { pictures_.ListBookPictures(); };
  reader_.ChapterShown = [this] { pictures_.SeekChapterPicture(); };
  reader_.rtxt.Quote = [this] { return QuotationFrom(reader_.rtxt, reader_.Shown()); };
  routines["ConvertPicsDat"] = [this](const std::string&) { old_catalogue_.ConvertPicsDat(); };
  routines["ShowPicsDatPicture"] = [this](const std::string&) { old_catalogue_.ShowPicsDatPicture(); };
  routines["ListChapterPictures"] = [this](const std::string&) { older_list_.ListChapterPictures(); };

  for (const std::span<const Place> table : kForm1Places) Apply(table, *this);
}

}  // namespace lectern::ui
