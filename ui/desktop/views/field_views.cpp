// Fields that hold one text: boxes to type in, combo boxes, which also open a list to pick from, and the list
// of drives.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWheelEvent>

#include "forms/lists.h"
#include "forms/rich_text.h"
#include "forms/text_controls.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

class OneLineView : public ViewOf<forms::TextBox> {
 public:
  using ViewOf::ViewOf;

 protected:
  QWidget* Make(QWidget* parent) override {
    edit_ = new QLineEdit(parent);
    edit_->setReadOnly(Control().ReadOnly());
    connect(edit_, &QLineEdit::textEdited, [this](const QString& text) {
      shown_ = text.toStdString();
      Act([this] { Control().PersonTypes(shown_); });
    });
    return edit_;
  }

  void Apply() override {
    if (Control().Text == shown_) return;
    shown_ = Control().Text;
    edit_->setText(IsDesignText(shown_) ? QString() : ToQString(shown_));
  }

  Ground GetGround() const override { return Ground::kField; }

 private:
  QLineEdit* edit_ = nullptr;
  std::string shown_;
};

class SeveralLinesView : public ViewOf<forms::TextBox> {
 public:
  using ViewOf::ViewOf;

 protected:
  QWidget* Make(QWidget* parent) override {
    edit_ = new QPlainTextEdit(parent);
    edit_->setReadOnly(Control().ReadOnly());
    edit_->setTabChangesFocus(true);
    connect(edit_, &QPlainTextEdit::textChanged, [this] {
      if (GetEvents().AtWork()) return;
      shown_ = forms::WithCrLf(edit_->toPlainText().toStdString());
      Act([this] { Control().PersonTypes(shown_); });
    });
    return edit_;
  }

  void Apply() override {
    if (Control().Text == shown_) return;
    shown_ = Control().Text;
    edit_->setPlainText(ToQString(shown_));
  }

  Ground GetGround() const override { return Ground::kField; }
  bool Needs(const QKeyEvent& key) const override {
    return KeyCode(key) == forms::kEnterKey && !Control().ReadOnly();
  }

 private:
  QPlainTextEdit* edit_ = nullptr;
  std::string shown_;
};

// Turned by the wheel only while it has the focus, so that scrolling past it picks nothing.
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
 public:
  using ViewOf::ViewOf;

 protected:
  QWidget* Make(QWidget* parent) override {
    widget_ = new ChooserWidget(parent);
    widget_->setEditable(true);
    // A screen reader reads the field inside, and would take its text for the name of the box.
    widget_->lineEdit()->setAccessibleName(ToQString(Control().AccessibleName()));
    widget_->setInsertPolicy(QComboBox::NoInsert);
    widget_->setCompleter(nullptr);  // it would write more than the person did
    connect(widget_->lineEdit(), &QLineEdit::textEdited, [this](const QString& text) {
      Act([this, typed = text.toStdString()] { Control().PersonTypes(typed); });
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

  // Enter picks the entry whose text was typed.
  bool Needs(const QKeyEvent& key) const override { return KeyCode(key) == forms::kEnterKey; }

 private:
  QComboBox* widget_ = nullptr;
};

class DriveView : public ViewOf<forms::DriveListBox> {
 public:
  using ViewOf::ViewOf;

 protected:
  QWidget* Make(QWidget* parent) override {
    widget_ = new ChooserWidget(parent);
    for (const std::string& drive : Control().Drives()) widget_->addItem(ToQString(drive));
    connect(widget_, &QComboBox::activated, [this](int index) {
      Act([this, drive = widget_->itemText(index).toStdString()] { Control().PersonChooses(drive); });
    });
    return widget_;
  }

  void Apply() override { widget_->setCurrentIndex(widget_->findText(ToQString(Control().Drive))); }

 private:
  QComboBox* widget_ = nullptr;
};

}  // namespace

std::unique_ptr<ControlView> MakeTextBoxView(forms::Control& control, WindowView& window, QWidget& parent) {
  const bool has_several_lines = dynamic_cast<const forms::TextBox&>(control).MultiLine();
  const auto maker = has_several_lines ? MakeViewOf<SeveralLinesView, forms::TextBox>
                                       : MakeViewOf<OneLineView, forms::TextBox>;
  return maker(control, window, parent);
}

std::unique_ptr<ControlView> MakeComboView(forms::Control& control, WindowView& window, QWidget& parent) {
  return MakeViewOf<ComboView, forms::ComboBox>(control, window, parent);
}

std::unique_ptr<ControlView> MakeDriveView(forms::Control& control, WindowView& window, QWidget& parent) {
  return MakeViewOf<DriveView, forms::DriveListBox>(control, window, parent);
}

}  // namespace lectern::desktop
