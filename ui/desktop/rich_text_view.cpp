#include "ui/desktop/rich_text_view.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextEdit>
#include <algorithm>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "ui/desktop/keys.h"
#include "ui/desktop/page_setting.h"
#include "ui/desktop/text_positions.h"
#include "ui/desktop/theme.h"
#include "ui/desktop/window_view.h"

namespace lectern::desktop {

namespace {

constexpr int kPageMargin = 14;  // pixels
constexpr int kSheetMargin = 8;

// `Edit` is QTextEdit for a page and QPlainTextEdit for a sheet, which agree in all that is called here.
template <class Edit>
class RichTextView : public ControlView {
  static constexpr bool kIsPage = std::is_same_v<Edit, QTextEdit>;

 public:
  RichTextView(forms::RichTextBox& pane, WindowView& window, QWidget& parent)
      : ControlView(pane, window, parent), pane_(pane) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  Ground GetGround() const override { return Ground::kField; }
  QFont WantedFont() const override;
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
  void SetStyles(QTextDocument& document);
  QTextCharFormat FormatOf(const forms::TextStyle& style) const;
  void ShowSelection();
  void ScrollToFirstMark();
  QRect OpenArea() const;

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
    // The width that there is for the text stays the same, whatever its length.
    edit_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  } else {
    const QTextDocument* const document = edit_->document();
    connect(document, &QTextDocument::contentsChange,
            [this](int at, int removed, int added) { NoteEdit(at, removed, added); });
    connect(document, &QTextDocument::contentsChanged, [this] { ReportEdit(); });
  }
  edit_->setTabChangesFocus(true);
  if (pane_.ReadOnly()) {
    edit_->setReadOnly(true);
    edit_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    edit_->setCursorWidth(0);
  }
  connect(edit_, &Edit::cursorPositionChanged, [this] { SelectionMoved(); });
  connect(edit_, &Edit::selectionChanged, [this] { SelectionMoved(); });
  return edit_;
}

// What is read for a long time is set larger than what is pressed.
template <class Edit>
QFont RichTextView<Edit>::WantedFont() const {
  constexpr double kReadingSize = 11;
  QFont font = ControlView::WantedFont();
  if (kIsPage && !(pane_.FontSize > 0)) font.setPointSizeF(kReadingSize);
  return font;
}

template <class Edit>
void RichTextView<Edit>::Apply() {
  const QRgb ground = edit_->palette().color(QPalette::Base).rgb();
  const unsigned text = pane_.TextGeneration();
  const unsigned style = pane_.StyleGeneration();
  const bool loads = !seen_ || seen_->text != text || (kIsPage && seen_->font != edit_->font());
  const bool is_new = !seen_ || seen_->text != text;
  const bool styled =
      !seen_ || seen_->style != style || seen_->ground != ground || std::exchange(runs_moved_, false);
  // A text that comes with styles counts one of each; what goes beyond are marks that the program set.
  const bool marked = seen_ && style - seen_->style > text - seen_->text;

  const int scrolled = edit_->verticalScrollBar()->value();
  if (loads) {
    Load();
    seen_.emplace();
  } else if (styled) {
    SetStyles(*document_);
  }
  const bool selects = is_new || seen_->selection != std::pair(pane_.SelStart(), pane_.SelLength());
  if (selects) ShowSelection();
  *seen_ = {text, style, edit_->font(), ground, {pane_.SelStart, pane_.SelLength}};

  if (loads) edit_->verticalScrollBar()->setValue(is_new ? 0 : scrolled);
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
    document->setParent(edit_);
    std::unique_ptr<QTextDocument> former(document_);
    document_ = document.release();
    edit_->setDocument(document_);
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

// Styles are laid over the paragraphs and are no part of the document: they cost no editing and cannot be
// undone.
template <class Edit>
void RichTextView<Edit>::SetStyles(QTextDocument& document) {
  const auto& runs = pane_.Runs().All();
  if (runs.empty() && !has_styles_) return;
  has_styles_ = kIsPage || !runs.empty();
  QTextCursor edit(&document);
  edit.beginEditBlock();
  auto run = runs.begin();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    QList<QTextLayout::FormatRange> formats;
    if (setting_) {
      if (QTextLayout::FormatRange gap = setting_->NumberGap(block.text()); gap.length > 0)
        formats.append(gap);
    }
    const int start = block.position();
    const int end = start + block.length();
    for (; run != runs.end(); ++run) {
      const int run_start = std::max(positions_.ToQt(run->start), start);
      const int run_end = std::min(positions_.ToQt(run->End()), end);
      if (run_start >= end) break;
      QTextLayout::FormatRange range;
      range.start = run_start - start;
      range.length = run_end - run_start;
      range.format = FormatOf(run->style);
      if (range.length > 0) formats.append(range);
      if (positions_.ToQt(run->End()) > end) break;  // goes on in the next paragraph
    }
    if (block.layout()->formats() != formats) block.layout()->setFormats(formats);
  }
  edit.endEditBlock();
}

template <class Edit>
QTextCharFormat RichTextView<Edit>::FormatOf(const forms::TextStyle& style) const {
  QTextCharFormat format;
  if (style.colour) {
    const QColor colour = ToColor(*style.colour, edit_->palette());
    format.setForeground(Legible(colour, edit_->palette().color(QPalette::Base)));
  }
  if (style.bold) format.setFontWeight(*style.bold ? QFont::Bold : QFont::Normal);
  if (style.italic) format.setFontItalic(*style.italic);
  if (style.underline) format.setFontUnderline(*style.underline);
  if (!style.font.empty()) format.setFontFamilies({ToQString(style.font)});
  if (style.size > 0) format.setFontPointSize(style.size);
  return format;
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

// A mark that is not to be seen at the top of the text comes to stand in the upper part of what is open.
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
    bar->setValue(bar->value() + place.top() - open.top() - open.height() / 3);
  } else {
    bar->setValue(at.block().firstLineNumber());
  }
}

// A page is scrolled by the keys that move a caret elsewhere; with Shift they select.
template <class Edit>
bool RichTextView<Edit>::HandleKey(const QKeyEvent& key) {
  if (!pane_.ReadOnly()) return false;
  using Action = QAbstractSlider::SliderAction;
  std::optional<Action> action;
  switch (key.key()) {
    case Qt::Key_Up:
      action = Action::SliderSingleStepSub;
      break;
    case Qt::Key_Down:
      action = Action::SliderSingleStepAdd;
      break;
    case Qt::Key_PageUp:
      action = Action::SliderPageStepSub;
      break;
    case Qt::Key_PageDown:
    case Qt::Key_Space:
      action = Action::SliderPageStepAdd;
      break;
    case Qt::Key_Home:
      action = Action::SliderToMinimum;
      break;
    case Qt::Key_End:
      action = Action::SliderToMaximum;
      break;
    default:
      break;
  }
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_Space && modifiers == Qt::ShiftModifier) {
    action = Action::SliderPageStepSub;
  } else if (modifiers != Qt::NoModifier || !action) {
    const bool moves_caret = action || key.key() == Qt::Key_Left || key.key() == Qt::Key_Right;
    if (moves_caret) edit_->setCursorWidth(1);
    return false;
  }
  edit_->verticalScrollBar()->triggerAction(*action);
  return true;
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
  if (pane.ReadOnly()) return std::make_unique<RichTextView<QTextEdit>>(pane, window, parent);
  return std::make_unique<RichTextView<QPlainTextEdit>>(pane, window, parent);
}

}  // namespace lectern::desktop
