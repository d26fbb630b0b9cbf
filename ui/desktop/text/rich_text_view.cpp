#include "ui/desktop/text/rich_text_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextFrame>
#include <algorithm>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/text/page_setting.h"
#include "ui/desktop/text/page_widget.h"
#include "ui/desktop/text/text_positions.h"
#include "ui/desktop/text/text_styles.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

constexpr int kPageMargin = 14;  // pixels
constexpr int kSheetMargin = 8;

// `Edit` is PageWidget for a page and QPlainTextEdit for a sheet, which agree in all that is called here.
template <class Edit>
class RichTextView : public ControlView {
  static constexpr bool kIsPage = std::is_same_v<Edit, PageWidget>;

 public:
  RichTextView(forms::RichTextBox& pane, WindowView& window, QWidget& parent)
      : ControlView(pane, window, parent), pane_(pane) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  Ground GetGround() const override { return Ground::kField; }
  QFont WantedFont() const override;
  void FontWillChange() override;
  bool HandleWindowKey(const QKeyEvent& key) override;
  bool Needs(const QKeyEvent& key) const override {
    return KeyCode(key) == forms::kEnterKey && !pane_.ReadOnly();
  }
  bool HandleKey(const QKeyEvent& key) override;
  void Commit() override;

 private:
  // What the pane was like when it was last shown.
  struct Seen {
    unsigned text = 0;
    unsigned style = 0;
    QFont font;
    QRgb ground = 0;
    std::pair<int, int> selection;
  };

  void Load();
  void PrepareToBeRead();
  void SetStyles(QTextDocument& document);
  void SetRoomAbove(int pixels);
  void ShowSelection();
  void ScrollToFirstMark();
  QRect OpenArea() const;

  bool CanQuote();
  void Quote();

  void NoteEdit(int at, int removed, int added);
  void ReportEdit();
  void SelectionMoved();

  struct Edited {
    std::size_t start;
    std::size_t removed;
    std::string inserted;
  };

  forms::RichTextBox& pane_;
  Edit* edit_ = nullptr;
  QTextDocument* document_ = nullptr;  // of `edit_`, which owns it
  std::optional<Seen> seen_;
  std::optional<PageSetting> setting_;  // of a page
  std::string text_;                    // the same, as it is shown
  PageWidget::Place place_;             // the same, ahead of a change of its font
  int room_above_ = 0;  // pixels ahead of a page, so that its first lines can be scrolled down
  TextPositions positions_;
  int length_ = 0;  // by Qt's count
  std::optional<Edited> edited_;
  bool has_styles_ = false;
  bool runs_moved_ = false;  // along with text that was edited
  bool reports_edit_ = false;
};

template <class Edit>
QWidget* RichTextView<Edit>::Make(QWidget* parent) {
  edit_ = new Edit(parent);
  if constexpr (kIsPage) {
    PrepareToBeRead();
  } else {
    const QTextDocument* const document = edit_->document();
    connect(document, &QTextDocument::contentsChange,
            [this](int at, int removed, int added) { NoteEdit(at, removed, added); });
    connect(document, &QTextDocument::contentsChanged, [this] { ReportEdit(); });
  }
  edit_->setTabChangesFocus(true);
  if (pane_.ReadOnly()) edit_->setCursorWidth(0);
  connect(edit_, &Edit::cursorPositionChanged, [this] { SelectionMoved(); });
  connect(edit_, &Edit::selectionChanged, [this] { SelectionMoved(); });
  return edit_;
}

template <class Edit>
void RichTextView<Edit>::PrepareToBeRead() {
  edit_->wants_larger = [this](int steps) { GetWindow().Enlarge(steps); };
  if (!pane_.Quote) return;
  edit_->can_quote = [this] { return CanQuote(); };
  edit_->quote = [this] { Quote(); };
}

// What is read for a long time is set larger than what is pressed, and as large as the reader wants it.
template <class Edit>
QFont RichTextView<Edit>::WantedFont() const {
  QFont font = ControlView::WantedFont();
  if (!kIsPage) return ForWriting(font);
  font.setPointSizeF((pane_.FontSize > 0 ? pane_.FontSize() : forms::kReadingSize) *
                     GetWindow().Enlargement());
  return font;
}

template <class Edit>
void RichTextView<Edit>::FontWillChange() {
  if constexpr (kIsPage) place_ = edit_->TopPlace();
}

template <class Edit>
void RichTextView<Edit>::Apply() {
  const QRgb ground = edit_->palette().color(QPalette::Base).rgb();
  const unsigned text = pane_.TextGeneration();
  const unsigned style = pane_.StyleGeneration();
  const bool written = !seen_ || seen_->text != text;
  const bool is_new = written && !(kIsPage && seen_ && text_ == pane_.Text);
  const bool is_set_anew = kIsPage && !is_new && seen_->font != edit_->font();
  const bool styled = written || seen_->style != style || seen_->ground != ground;
  // A text that comes with styles counts one of each; what goes beyond are marks that the program set.
  const bool marked = seen_ && style - seen_->style > text - seen_->text;

  if (written) SetRoomAbove(0);
  const int scrolled = edit_->verticalScrollBar()->value();
  if (is_new || is_set_anew) {
    Load();
  } else if (std::exchange(runs_moved_, false) || styled) {
    SetStyles(*document_);
  }
  const std::pair<int, int> selection{pane_.SelStart, pane_.SelLength};
  if (written || is_set_anew || seen_->selection != selection) ShowSelection();
  seen_ = {text, style, edit_->font(), ground, selection};

  // The selection brings itself into sight; the reader's place is the one that counts.
  if (written) edit_->verticalScrollBar()->setValue(is_new ? 0 : scrolled);
  if constexpr (kIsPage) {
    if (is_set_anew) edit_->ScrollTo(place_);
  }
  if (marked) ScrollToFirstMark();
}

template <class Edit>
void RichTextView<Edit>::Load() {
  const std::string& text = pane_.Text;
  const QString shown = ToDocument(text);
  positions_.Read(text);
  has_styles_ = kIsPage;  // the gaps behind the numbers
  if constexpr (kIsPage) {
    setting_.emplace(edit_->font(), shown);
    std::unique_ptr<QTextDocument> document = setting_->Document(shown, edit_->viewport()->width());
    document->setDocumentMargin(kPageMargin);
    SetStyles(*document);
    text_ = text;
    document->setParent(edit_);
    std::unique_ptr<QTextDocument> former(document_);
    document_ = document.release();
    edit_->setDocument(document_);
    SetRoomAbove(std::exchange(room_above_, 0));
  } else {
    document_ = edit_->document();
    document_->setUndoRedoEnabled(false);
    document_->setDocumentMargin(kSheetMargin);
    edit_->setPlainText(shown);
    SetStyles(*document_);
    document_->setUndoRedoEnabled(true);
  }
  length_ = document_->characterCount() - 1;
  if (pane_.ReadOnly()) edit_->setCursorWidth(0);
}

template <class Edit>
void RichTextView<Edit>::SetStyles(QTextDocument& document) {
  const bool has_runs = !pane_.Runs().All().empty();
  if (!has_runs && !has_styles_) return;
  has_styles_ = kIsPage || has_runs;
  LayStyles(document, pane_.Runs(), positions_, setting_ ? &*setting_ : nullptr, edit_->palette(),
            kIsPage ? GetWindow().Enlargement() : 1);
}

// The text stays where it is seen, as far as it can.
template <class Edit>
void RichTextView<Edit>::SetRoomAbove(int pixels) {
  if constexpr (kIsPage) {
    const int more = pixels - std::exchange(room_above_, pixels);
    if (more == 0) return;
    QTextFrameFormat format = document_->rootFrame()->frameFormat();
    format.setTopMargin(kPageMargin + pixels);
    document_->rootFrame()->setFrameFormat(format);
    QScrollBar* const bar = edit_->verticalScrollBar();
    bar->setValue(bar->value() + more);
  }
}

template <class Edit>
void RichTextView<Edit>::ShowSelection() {
  QTextCursor cursor(document_);
  const int last = document_->characterCount() - 1;
  const auto start = static_cast<std::size_t>(pane_.SelStart());
  const auto length = static_cast<std::size_t>(pane_.SelLength());
  cursor.setPosition(std::min(positions_.ToQt(start), last));
  cursor.setPosition(std::min(positions_.ToQt(start + length), last), QTextCursor::KeepAnchor);
  edit_->setTextCursor(cursor);
}

// The lines of the viewport that no panel lies over: those above it or those below, whichever are more.
template <class Edit>
QRect RichTextView<Edit>::OpenArea() const {
  QRect open = edit_->viewport()->rect();
  for (const QObject* sibling : edit_->parentWidget()->children()) {
    const auto* const over = qobject_cast<const QWidget*>(sibling);
    if (over == nullptr || over == edit_ || over->isHidden()) continue;
    const QRect covered =
        QRect(edit_->viewport()->mapFrom(edit_->parentWidget(), over->pos()), over->size()).intersected(open);
    if (covered.isEmpty()) continue;
    if (covered.top() - open.top() > open.bottom() - covered.bottom()) {
      open.setBottom(covered.top() - 1);
    } else {
      open.setTop(covered.bottom() + 1);
    }
  }
  return open;
}

// A mark that is not to be seen at the top of the text comes to stand in the upper part of what is open; one
// in the first lines, which lie under a panel however the text is scrolled, gets the room to do so.
template <class Edit>
void RichTextView<Edit>::ScrollToFirstMark() {
  const auto& runs = pane_.Runs().All();
  const auto mark = std::find_if(runs.begin(), runs.end(),
                                 [](const forms::TextRun& run) { return run.style.colour.has_value(); });
  if (mark == runs.end()) return;
  QTextCursor at(document_);
  at.setPosition(positions_.ToQt(mark->start));
  const QRect place = edit_->cursorRect(at);
  const QRect open = OpenArea();
  if (place.top() >= open.top() && place.bottom() <= open.bottom()) return;
  QScrollBar* const bar = edit_->verticalScrollBar();
  if constexpr (kIsPage) {
    const int top = bar->value() + place.top();  // of the mark, in the whole text
    const int wanted = top - open.top() - open.height() / 3;
    if (top < open.top()) SetRoomAbove(room_above_ - wanted);
    bar->setValue(std::max(wanted, 0));
  } else {
    bar->setValue(at.block().firstLineNumber());
  }
}

// A page is scrolled by the keys that move a caret elsewhere. With Shift they select; the caret is shown from
// then on.
template <class Edit>
bool RichTextView<Edit>::HandleKey(const QKeyEvent& key) {
  if (!pane_.ReadOnly()) return false;
  if (const auto action = ScrollActionOf(key)) {
    edit_->verticalScrollBar()->triggerAction(*action);
    return true;
  }
  if (MovesCaret(key)) edit_->setCursorWidth(1);
  return false;
}

template <class Edit>
bool RichTextView<Edit>::HandleWindowKey(const QKeyEvent& key) {
  if (!kIsPage) return false;
  if (const auto steps = ZoomOf(key)) {
    GetWindow().Enlarge(*steps);
    return true;
  }
  if (!pane_.Quote || !IsKey(key, QuoteKey())) return false;
  Quote();
  return true;
}

template <class Edit>
bool RichTextView<Edit>::CanQuote() {
  if (GetWindow().IsAbandoned()) return false;
  Commit();
  return !pane_.Quote().empty();
}

template <class Edit>
void RichTextView<Edit>::Quote() {
  if (CanQuote()) QGuiApplication::clipboard()->setText(ToQString(pane_.Quote()));
}

// Qt counts the end of the document along where an edit reaches it.
template <class Edit>
void RichTextView<Edit>::NoteEdit(int at, int removed, int added) {
  if (GetEvents().AtWork()) return;
  const int length = document_->characterCount() - 1;
  const int beyond = std::max({at + added - length, at + removed - length_, 0});
  removed -= beyond;
  added -= beyond;
  if (removed < 0 || added < 0 || length != length_ - removed + added) {
    at = 0;
    removed = length_;
    added = length;
  }
  if (removed == 0 && added == 0) return;
  QTextCursor cursor(document_);
  cursor.setPosition(at);
  cursor.setPosition(at + added, QTextCursor::KeepAnchor);
  QString text = cursor.selectedText();
  text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
  std::string inserted = forms::WithCrLf(text.toStdString());
  const std::size_t start = positions_.ToForms(at);
  const std::size_t end = positions_.ToForms(at + removed);
  positions_.Edited(at, removed, inserted);
  length_ = length;
  edited_ = {start, end - start, std::move(inserted)};
}

template <class Edit>
void RichTextView<Edit>::ReportEdit() {
  const auto edited = std::exchange(edited_, std::nullopt);
  if (!edited) return;
  runs_moved_ = has_styles_;
  reports_edit_ = true;
  Act([&] { pane_.PersonEdits(edited->start, edited->removed, edited->inserted); });
  reports_edit_ = false;
  SelectionMoved();
}

template <class Edit>
void RichTextView<Edit>::SelectionMoved() {
  if (!GetEvents().AtWork()) GetWindow().WantsToCommit(*this);
}

template <class Edit>
void RichTextView<Edit>::Commit() {
  if (reports_edit_) return;  // the selection belongs to the text behind the edit
  const QTextCursor cursor = edit_->textCursor();
  const auto start = static_cast<int>(positions_.ToForms(cursor.selectionStart()));
  const int length = static_cast<int>(positions_.ToForms(cursor.selectionEnd())) - start;
  pane_.PersonSelects(start, length);
  seen_->selection = {pane_.SelStart, pane_.SelLength};
}

}  // namespace

std::unique_ptr<ControlView> MakeRichTextView(forms::RichTextBox& pane, WindowView& window, QWidget& parent) {
  if (pane.ReadOnly()) return std::make_unique<RichTextView<PageWidget>>(pane, window, parent);
  return std::make_unique<RichTextView<QPlainTextEdit>>(pane, window, parent);
}

}  // namespace lectern::desktop
