// Text boxes, combo boxes and the list of drives.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWheelEvent>
#include <string>
#include <type_traits>

#include "forms/lists.h"
#include "forms/rich_text.h"
#include "forms/text_controls.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

// `Edit` is QLineEdit or QPlainTextEdit.
template <class Edit>
class TextBoxView : public ViewOf<forms::TextBox> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    edit_ = new Edit(parent);
    if constexpr (kHasSeveralLines) {
      edit_->setTabChangesFocus(true);
      connect(edit_, &QPlainTextEdit::textChanged, [this] {
        if (GetEvents().AtWork()) return;  // Apply has set the text
        Typed(forms::WithCrLf(edit_->toPlainText().toStdString()));
      });
    } else {
      connect(edit_, &QLineEdit::textChanged, [this](const QString& text) {
        if (!GetEvents().AtWork()) Typed(text.toStdString());
      });
    }
    return edit_;
  }

  void Apply() override {
    if (Control().Text == shown_) return;
    shown_ = Control().Text;
    const QString text = IsDesignText(shown_) ? QString() : ToQString(shown_);
    if constexpr (kHasSeveralLines) {
      edit_->setPlainText(text);
    } else {
      edit_->setText(text);
    }
  }

  Ground GetGround() const override { return Ground::kField; }
  bool Needs(const QKeyEvent& key) const override {
    return kHasSeveralLines && KeyCode(key) == forms::kEnterKey;
  }

  static constexpr bool kHasSeveralLines = std::is_same_v<Edit, QPlainTextEdit>;

  void Typed(const std::string& text) {
    shown_ = text;
    Act([this] { Control().PersonTypes(shown_); });
  }

  Edit* edit_ = nullptr;
  std::string shown_;
};

// Follows the wheel only while it has the focus, so that scrolling past it changes nothing.
class ChooserWidget : public QComboBox {
 public:
  explicit ChooserWidget(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

class ComboView : public ViewOf<forms::ComboBox> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    widget_ = new ChooserWidget(parent);
    widget_->setEditable(true);
    // A screen reader reads the inner field, and would use its text as the name of the box.
    widget_->lineEdit()->setAccessibleName(ToQString(Control().AccessibleName()));
    widget_->setInsertPolicy(QComboBox::NoInsert);
    widget_->setCompleter(nullptr);  // it would add text that the user has not typed
    connect(widget_->lineEdit(), &QLineEdit::textEdited, [this](const QString& text) { Typed(text); });
    // Assistive technology sets the text without an edit; choosing an entry sets it as well.
    connect(widget_->lineEdit(), &QLineEdit::textChanged, [this](const QString& text) {
      if (text != widget_->itemText(widget_->currentIndex())) Typed(text);
    });
    connect(widget_, &QComboBox::activated, [this](int index) {
      Act([this, item = widget_->itemText(index).toStdString()] { Control().PersonChooses(item); });
    });
    return widget_;
  }

  void Apply() override {
    const auto& items = Control().Items();
    for (auto i = static_cast<std::size_t>(widget_->count()); i < items.size(); ++i) {
      widget_->addItem(ToQString(items[i]));
    }
    const QString text = ToQString(Control().Text);
    widget_->setCurrentIndex(widget_->findText(text));
    if (widget_->currentText() != text) widget_->setEditText(text);
  }

  Ground GetGround() const override { return Ground::kField; }

  void Typed(const QString& text) {
    if (GetEvents().AtWork() || text == ToQString(Control().Text)) return;
    Act([this, typed = text.toStdString()] { Control().PersonTypes(typed); });
  }

  // Enter chooses the entry with the typed text.
  bool Needs(const QKeyEvent& key) const override { return KeyCode(key) == forms::kEnterKey; }

  QComboBox* widget_ = nullptr;
};

class DriveView : public ViewOf<forms::DriveListBox> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    widget_ = new ChooserWidget(parent);
    for (const std::string& drive : Control().Drives()) widget_->addItem(ToQString(drive));
    connect(widget_, &QComboBox::activated, [this](int index) {
      Act([this, drive = widget_->itemText(index).toStdString()] { Control().PersonChooses(drive); });
    });
    return widget_;
  }

  void Apply() override { widget_->setCurrentIndex(widget_->findText(ToQString(Control().Drive))); }

  QComboBox* widget_ = nullptr;
};

}  // namespace

ViewMaker* const kMakeOneLineView = MakeViewOf<TextBoxView<QLineEdit>, forms::TextBox>;
ViewMaker* const kMakeSeveralLinesView = MakeViewOf<TextBoxView<QPlainTextEdit>, forms::TextBox>;
ViewMaker* const kMakeComboView = MakeViewOf<ComboView, forms::ComboBox>;
ViewMaker* const kMakeDriveView = MakeViewOf<DriveView, forms::DriveListBox>;

}  // namespace lectern::desktop
