// A page of rich text that can be selected and copied, but not edited.
#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTextFrame>
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "reader/word_blanks.h"
#include "ui/desktop/text/page_setting.h"
#include "ui/desktop/text/page_widget.h"
#include "ui/desktop/text/rich_text_view.h"
#include "ui/desktop/text/verse_page.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

class ReadingPage : public RichTextView, public VersePage {
 public:
  using RichTextView::RichTextView;

  void ShowVerse(int verse) override {
    wanted_verse_ = verse;
    Changed();
  }

  void MarkVerse(int verse) override {
    if (document_ == nullptr) return;
    marked_verse_ = verse;
    page_->Mark(BlockOf(verse));
  }

  int MarkedVerse() const override { return marked_verse_; }

  double VerseAtTop() const override {
    const std::vector<Stretch> stretches = Stretches();
    if (stretches.empty() || stretches.front().top >= 0) return 0;
    for (const Stretch& stretch : stretches) {
      if (stretch.bottom <= 0) continue;
      return stretch.verse - std::min(0.0, static_cast<double>(stretch.top) / (stretch.bottom - stretch.top));
    }
    return 0;
  }

  void ScrollToVerse(double verse) override {
    const int whole = static_cast<int>(verse);
    const std::vector<Stretch> stretches = Stretches();
    QScrollBar* const bar = page_->verticalScrollBar();
    if (verse <= 0 || stretches.empty()) return bar->setValue(0);
    for (const Stretch& stretch : stretches) {
      if (stretch.verse < whole) continue;
      const double above = stretch.verse == whole ? (verse - whole) * (stretch.bottom - stretch.top) : 0;
      return bar->setValue(bar->value() + stretch.top + static_cast<int>(std::lround(above)));
    }
    bar->setValue(bar->maximum());
  }

  void KeepInSight() override {
    if (document_ == nullptr) return;
    wanted_place_ = page_->TopPlace();
    Changed();
  }

 private:
  QWidget* Make(QWidget* parent) override {
    page_ = new PageWidget(parent);
    connect(page_->verticalScrollBar(), &QScrollBar::valueChanged, [this] { on_scroll(); });
    if (Control().Heading) page_->BecomeThePage();
    page_->add_to_menu = [this](QMenu& menu, const QString& words) { add_to_menu(menu, words); };
    page_->wants_larger = [this](int steps) { GetWindow().Enlarge(steps); };
    if (Control().Quote) {
      page_->can_quote = [this] { return CanQuote(); };
      page_->quote = [this] { Quote(); };
    }
    connect(page_, &QTextEdit::cursorPositionChanged, [this] { SelectionMoved(); });
    connect(page_, &QTextEdit::selectionChanged, [this] { SelectionMoved(); });
    return page_;
  }

  // Text for reading is larger than captions, and the user can enlarge it.
  QFont WantedFont() const override {
    const double size = Control().FontSize > 0 ? Control().FontSize() : forms::kReadingSize;
    QFont font = ControlView::WantedFont();
    font.setPointSizeF(size * GetWindow().Enlargement());
    return font;
  }

  void FontWillChange() override { place_ = page_->TopPlace(); }

  void EventEnded() override {
    if (!Control().Heading) return;
    const forms::Heading heading = Control().Heading();
    page_->SetHeading(ToQString(heading.title), ToQString(heading.detail));
  }

  void Apply() override {
    const Changes changes = TakeChanges(page_->palette().color(QPalette::Base));
    const bool is_new = changes.text && !(document_ != nullptr && text_ == Control().Text);
    const bool font_changed = !is_new && font_ != page_->font();
    if (changes.text) SetSpaceAbove(0);
    QScrollBar* const bar = page_->verticalScrollBar();
    const int scrolled = bar->value();
    if (is_new || font_changed) {
      Load();
    } else if (changes.styles) {
      LayStyles(*document_);
    }
    if (changes.selection || font_changed) page_->setTextCursor(Selection(*document_));
    // Undo Qt's scrolling to the selection: the reader's place matters more.
    if (changes.text) bar->setValue(is_new ? 0 : scrolled);
    if (font_changed) page_->ScrollTo(place_);
    if (changes.marks) ScrollToFirstMark();
    if (const auto place = std::exchange(wanted_place_, {})) page_->ScrollTo(*place);
    if (const int verse = std::exchange(wanted_verse_, 0); verse > 0) BringVerseIntoSight(verse);
  }

  // The keys that move a caret in other texts scroll a page. With Shift they select, and show the caret.
  bool HandleKey(const QKeyEvent& key) override {
    if (const auto action = ScrollActionOf(key)) {
      page_->verticalScrollBar()->triggerAction(*action);
      return true;
    }
    if (MovesCaret(key)) page_->setCursorWidth(1);
    return false;
  }

  bool HandleWindowKey(const QKeyEvent& key) override {
    if (const auto steps = ZoomOf(key)) {
      GetWindow().Enlarge(*steps);
      return true;
    }
    if (!Control().Quote || !IsKey(key, QuoteKey())) return false;
    Quote();
    return true;
  }

  void Commit() override { CommitSelection(page_->textCursor()); }

  // Making a new document is faster than filling the one that is shown.
  void Load() {
    const int marked = text_ == Control().Text ? marked_verse_ : 0;
    text_ = Control().Text;
    font_ = page_->font();
    positions_.Read(text_, reader::WordBlanks(text_));
    const QString shown = ToDocument(reader::WithoutWordBlanks(text_));
    setting_.emplace(font_, shown);
    page_->SetColumn(ColumnWidth(), setting_->Gutter());
    std::unique_ptr<QTextDocument> document = setting_->Document(shown, page_->viewport()->width());
    document->setDocumentMargin(page_->TextMargin());
    LayStyles(*document);
    document->setParent(page_);
    const std::unique_ptr<QTextDocument> former(document_);
    document_ = document.release();
    page_->setDocument(document_);
    SetSpaceAbove(std::exchange(space_above_, 0));
    page_->setCursorWidth(0);
    MarkVerse(marked);
  }

  // A line of some 75 characters, as wide as they usually are.
  int ColumnWidth() const {
    static const QString kUsual = QStringLiteral("the words of a page as they usually are, and some more");
    constexpr double kCharacters = 75;
    constexpr double kWidest = 640;  // pixels, at the standard size
    const QFont font = page_->font();
    const double words = QFontMetricsF(font).horizontalAdvance(kUsual) / static_cast<double>(kUsual.size());
    const double widest = kWidest * font.pointSizeF() / forms::kReadingSize;
    return static_cast<int>(std::lround(std::min(words * kCharacters + setting_->Gutter(), widest)));
  }

  void LayStyles(QTextDocument& document) {
    desktop::LayStyles(document, Control().Runs(), positions_, &*setting_, page_->palette(),
                       GetWindow().Enlargement());
  }

  // Leaves space above the text, so that its first lines can be scrolled down. Keeps the visible text in its
  // place if possible.
  void SetSpaceAbove(int pixels) {
    const int more = pixels - std::exchange(space_above_, pixels);
    if (more == 0) return;
    QTextFrameFormat format = document_->rootFrame()->frameFormat();
    format.setTopMargin(page_->TextMargin() + pixels);
    document_->rootFrame()->setFrameFormat(format);
    QScrollBar* const bar = page_->verticalScrollBar();
    bar->setValue(bar->value() + more);
  }

  void ScrollToFirstMark() {
    BringMarkIntoSight(*page_, [this](const QTextCursor&, const QRect& place, const QRect& open) {
      ScrollInto(open, place);
    });
  }

  // Scrolls a place into the upper third of the part that no panel covers, or to where it ends within that
  // part. A place in the first lines may need space above it for that.
  void ScrollInto(const QRect& open, const QRect& place) {
    QScrollBar* const bar = page_->verticalScrollBar();
    const int top = bar->value() + place.top();  // in the whole text
    const int wanted = top - open.top() - std::clamp(open.height() - place.height(), 0, open.height() / 3);
    if (top < open.top()) SetSpaceAbove(space_above_ - wanted);
    bar->setValue(std::max(wanted, 0));
  }

  void BringVerseIntoSight(int verse) {
    const QTextBlock block = BlockOf(verse);
    if (!block.isValid()) return;
    MarkVerse(verse);
    const QRect place = page_->PlaceOf(block);
    const QRect open = OpenPart(*page_);
    if (place.top() < open.top() || place.bottom() > open.bottom()) ScrollInto(open, place);
  }

  QTextBlock BlockOf(int verse) const {
    QTextBlock block = document_->begin();
    while (block.isValid() && (verse == 0 || VerseOf(block.text()) != verse)) block = block.next();
    return block;
  }

  // A verse and what follows it without a number; 0 for what is ahead of the first one. In pixels of the
  // viewport.
  struct Stretch {
    int verse;
    int top;
    int bottom;
  };
  std::vector<Stretch> Stretches() const {
    std::vector<Stretch> stretches;
    if (document_ == nullptr) return stretches;
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
      const QRect place = page_->PlaceOf(block);
      const int verse = VerseOf(block.text());
      if (stretches.empty() || verse > stretches.back().verse) stretches.push_back({verse, place.top(), 0});
      stretches.back().bottom = std::max(place.bottom(), place.top()) + 1;
    }
    return stretches;
  }

  bool CanQuote() {
    Commit();
    return !Control().Quote().empty();
  }

  void Quote() {
    if (CanQuote()) QGuiApplication::clipboard()->setText(ToQString(Control().Quote()));
  }

  PageWidget* page_ = nullptr;
  QTextDocument* document_ = nullptr;  // owned by page_
  std::optional<PageSetting> setting_;
  std::string text_;                               // as loaded
  QFont font_;                                     // as loaded
  PageWidget::Place place_;                        // before a change of the font
  std::optional<PageWidget::Place> wanted_place_;  // at the next update
  int wanted_verse_ = 0;                           // the same; 0 for none
  int marked_verse_ = 0;
  int space_above_ = 0;  // pixels
};

}  // namespace

ViewMaker* const kMakeReadingPage = MakeViewOf<ReadingPage, forms::RichTextBox>;

}  // namespace lectern::desktop
