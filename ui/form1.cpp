#include "ui/form1.h"

#include "ui/places.h"
#include "ui/quotation.h"

namespace lectern::ui {

Form1::Form1(forms::Services services, const OtherWindows& others)
    : Window(services, "Form1", base::kProgramName), others_(others) {
  settings_.PointAtSearchButton = [this](int pointer) { text_search_.Command22.MousePointer = pointer; };
  text_search_.ShowHelpNote = [this](const std::string& text) { help_.ShowNote(text); };
  viewer_.OpenPaint = [this, open_paint = others.OpenPaint] { open_paint(viewer_.pick.Picture); };
  maintenance_.HelpChangingBook = [this] { help_.HelpChangingBook(); };
  reader_.BookChanged = [this] { pictures_.ListBookPictures(); };
  reader_.ChapterShown = [this] { pictures_.SeekChapterPicture(); };
  reader_.rtxt.Quote = [this] { return QuotationFrom(reader_.rtxt, reader_.Shown()); };
  const auto place = [this] { return reader_.Book() + " " + reader_.Chapter(); };
  reader_.rtxt.Heading = [this, place] { return forms::Heading{place(), reader_.VersionName()}; };
  second_pane_.RTXT2.Heading = [this, place] {
    return forms::Heading{place(), second_pane_.Label36.Caption};
  };
  routines["ConvertPicsDat"] = [this](const std::string&) { old_catalogue_.ConvertPicsDat(); };
  routines["ShowPicsDatPicture"] = [this](const std::string&) { old_catalogue_.ShowPicsDatPicture(); };
  routines["ListChapterPictures"] = [this](const std::string&) { older_list_.ListChapterPictures(); };
  Apply(kForm1Places, *this);
  Apply(kForm1Arrangement, *this);
}

}  // namespace lectern::ui
