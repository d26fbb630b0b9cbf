// The editor of rich text. Reports each edit by itself, so that the cost does not depend on the text's size.
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <string>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/text/page_setting.h"
#include "ui/desktop/text/rich_text_view.h"

namespace lectern::desktop {

namespace {

constexpr double kSheetMargin = 10;  // pixels

class Editor : public RichTextView {
  using RichTextView::RichTextView;

  QWidget* Make(QWidget* parent) override {
    editor_ = new QPlainTextEdit(parent);
    editor_->setTabChangesFocus(true);
    document_ = editor_->document();
    document_->setDocumentMargin(kSheetMargin);
    connect(document_, &QTextDocument::contentsChange,
            [this](int at, int removed, int added) { NoteEdit(at, removed, added); });
    connect(document_, &QTextDocument::contentsChanged, [this] { ReportEdit(); });
    connect(editor_, &QPlainTextEdit::cursorPositionChanged, [this] { SelectionMoved(); });
    connect(editor_, &QPlainTextEdit::selectionChanged, [this] { SelectionMoved(); });
    return editor_;
  }

  QFont WantedFont() const override { return ForWriting(ControlView::WantedFont()); }

  void Apply() override {
    const Changes changes = TakeChanges(editor_->palette().color(QPalette::Base));
    const bool runs_moved = std::exchange(runs_moved_, false);
    if (changes.text) {
      Load();
    } else if (runs_moved || changes.styles) {
      ShowStyles();
    }
    if (changes.selection) editor_->setTextCursor(Selection(*document_));
    if (changes.text) editor_->verticalScrollBar()->setValue(0);
    if (!changes.marks) return;
    BringMarkIntoSight(*editor_, [this](const QTextCursor& at, const QRect&, const QRect&) {
      editor_->verticalScrollBar()->setValue(at.block().firstLineNumber());
    });
  }

  void Commit() override {
    // During an edit the selection already refers to the text after it.
    if (!reports_edit_) CommitSelection(editor_->textCursor());
  }

  struct Edit {
    std::size_t start;
    std::size_t removed;
    std::string inserted;
  };

  void Load() {
    constexpr int kMargin = 8;  // pixels
    const std::string& text = Control().Text;
    positions_.Read(text);
    has_styles_ = false;
    document_->setUndoRedoEnabled(false);
    document_->setDocumentMargin(kMargin);
    editor_->setPlainText(ToDocument(text));
    ShowStyles();
    document_->setUndoRedoEnabled(true);
    length_ = Length();
  }

  void ShowStyles() {
    const bool has_runs = !Control().Runs().All().empty();
    if (!has_runs && !has_styles_) return;
    has_styles_ = has_runs;
    LayStyles(*document_, Control().Runs(), positions_, nullptr, editor_->palette(), 1);
  }

  // The text that a note begins with is selected, so that typing replaces it.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == editor_ && event->type() == QEvent::FocusIn) {
      const std::string_view text = Control().Text();
      if (IsDesignText(std::string(text.substr(0, text.find('\r'))))) editor_->selectAll();
    }
    return RichTextView::eventFilter(watched, event);
  }

  int Length() const { return document_->characterCount() - 1; }

  void NoteEdit(int at, int removed, int added) {
    if (GetEvents().AtWork()) return;
    // Qt also counts the end of the document if an edit reaches it.
    const int length = Length();
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
    edit_ = {start, end - start, std::move(inserted)};
  }

  void ReportEdit() {
    const auto edit = std::exchange(edit_, std::nullopt);
    if (!edit) return;
    runs_moved_ = has_styles_;
    reports_edit_ = true;
    Act([&] { Control().PersonEdits(edit->start, edit->removed, edit->inserted); });
    reports_edit_ = false;
    SelectionMoved();
  }

  QPlainTextEdit* editor_ = nullptr;
  QTextDocument* document_ = nullptr;  // owned by editor_
  int length_ = 0;                     // of the text, in positions of Qt
  std::optional<Edit> edit_;           // noted and not yet reported
  bool has_styles_ = false;
  bool runs_moved_ = false;  // by an edit
  bool reports_edit_ = false;
};

}  // namespace

ViewMaker* const kMakeEditor = MakeViewOf<Editor, forms::RichTextBox>;

}  // namespace lectern::desktop
