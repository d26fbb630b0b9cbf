#include "ui/form1/form1.h"

#include "ui/form1/places.h"
#include "ui/quotation.h"

namespace lectern::ui {

Form1::Form1(forms::Services services, const OtherWindows& others)
    : Window(services, "Form1", base::kProgramName),
      menus(*this),
      panels(*this),
      tools(panels),
      reader(*this, panels),
      second_pane(panels),
      settings(reader, panels, second_pane, menus, tools),
      error_report(reader),
      chapter_store(reader),
      catalogue(reader),
      navigation(reader, panels, catalogue),
      stories(reader, menus),
      text_search(reader, panels, tools, menus),
      result_navigation(reader, panels, text_search),
      concordance_viewer(reader, panels, tools, menus, text_search),
      concordance_editing(reader, panels, error_report, text_search, result_navigation, concordance_viewer),
      concordance_builder(reader, panels, text_search),
      one_pass_builder(reader, panels, text_search, concordance_builder),
      dictionary(reader, panels, tools, menus, error_report),
      trivia(reader, panels, tools, menus, error_report),
      bookmarks(reader, panels, tools, menus),
      page_printing(reader, panels, others.Form2),
      notes_doors(panels, tools, menus, others.notes),
      help(reader, panels, tools, menus),
      pictures(reader, panels),
      viewer(pictures, panels),
      browser(pictures, viewer, panels),
      maintenance(pictures, browser, panels),
      old_catalogue(pictures, viewer),
      older_list(pictures, panels),
      book_converter(panels),
      start_up(reader, panels, catalogue,
               {pictures.Dirpics, bookmarks.File1, maintenance.Command26, page_printing.Command30,
                concordance_builder.Text2, settings.Combo1, settings.Combo2, settings.Combo3}),
      exits(reader, menus, tools, {settings.Combo1, settings.Combo2, settings.Combo3}) {
  start_up.ReadSettings = [this] { settings.ReadSettings(); };
  settings.PointAtSearchButton = [this](int pointer) { text_search.Command22.MousePointer = pointer; };
  text_search.ShowHelpNote = [this](const std::string& text) { help.ShowNote(text); };
  viewer.OpenPaint = [this, open_paint = others.OpenPaint] { open_paint(viewer.pick.Picture); };
  maintenance.HelpChangingBook = [this] { help.HelpChangingBook(); };
  reader.ExtractBookPictures = [this] { pictures.ExtractBookPictures(); };
  reader.FillPictureLists = [this] { pictures.FillPictureLists(); };
  reader.SeekChapterPicture = [this] { pictures.SeekChapterPicture(); };
  reader.rtxt.Quote = [this] { return QuotationFrom(reader.rtxt, chapter_store.Shown()); };
  routines["ConvertPicsDat"] = [this](const std::string&) { old_catalogue.ConvertPicsDat(); };
  routines["ShowPicsDatPicture"] = [this](const std::string&) { old_catalogue.ShowPicsDatPicture(); };
  routines["ListChapterPictures"] = [this](const std::string&) { older_list.ListChapterPictures(); };

  for (const std::span<const Place> table : kForm1Places) Apply(table, *this);
}

}  // namespace lectern::ui
