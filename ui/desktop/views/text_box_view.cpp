#include "ui/desktop/views/text_box_view.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include "forms/rich_text.h"
#include "ui/desktop/views/design_text.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

class OneLineView : public ControlView {
 public:
  OneLineView(forms::TextBox& box, WindowView& window, QWidget& parent)
      : ControlView(box, window, parent), box_(box) {}

 protected:
  QWidget* Make(QWidget* parent) override {
    edit_ = new QLineEdit(parent);
    edit_->setReadOnly(box_.ReadOnly());
    connect(edit_, &QLineEdit::textEdited, [this](const QString& text) {
      shown_ = text.toStdString();
      Act([this] { box_.PersonTypes(shown_); });
    });
    return edit_;
  }

  void Apply() override {
    if (box_.Text == shown_) return;
    shown_ = box_.Text;
    edit_->setText(IsDesignText(shown_) ? QString() : ToQString(shown_));
  }

  Ground GetGround() const override { return Ground::kField; }

 private:
  forms::TextBox& box_;
  QLineEdit* edit_ = nullptr;
  std::string shown_;
};

class SeveralLinesView : public ControlView {
 public:
  SeveralLinesView(forms::TextBox& box, WindowView& window, QWidget& parent)
      : ControlView(box, window, parent), box_(box) {}

 protected:
  QWidget* Make(QWidget* parent) override {
    edit_ = new QPlainTextEdit(parent);
    edit_->setReadOnly(box_.ReadOnly());
    edit_->setTabChangesFocus(true);
    connect(edit_, &QPlainTextEdit::textChanged, [this] {
      if (GetEvents().AtWork()) return;
      shown_ = forms::WithCrLf(edit_->toPlainText().toStdString());
      Act([this] { box_.PersonTypes(shown_); });
    });
    return edit_;
  }

  void Apply() override {
    if (box_.Text == shown_) return;
    shown_ = box_.Text;
    edit_->setPlainText(ToQString(shown_));
  }

  Ground GetGround() const override { return Ground::kField; }
  bool Needs(const QKeyEvent& key) const override {
    return KeyCode(key) == forms::kEnterKey && !box_.ReadOnly();
  }

 private:
  forms::TextBox& box_;
  QPlainTextEdit* edit_ = nullptr;
  std::string shown_;
};

}  // namespace

std::unique_ptr<ControlView> MakeTextBoxView(forms::TextBox& box, WindowView& window, QWidget& parent) {
  if (box.MultiLine()) return std::make_unique<SeveralLinesView>(box, window, parent);
  return std::make_unique<OneLineView>(box, window, parent);
}

}  // namespace lectern::desktop
