#include "ui/desktop/views/combo_views.h"

#include <QLineEdit>
#include <QWheelEvent>

#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

// The wheel turns what has the focus only: nobody means to pick something by scrolling over it.
class Box : public QComboBox {
 public:
  explicit Box(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

}  // namespace

QWidget* ComboView::Make(QWidget* parent) {
  widget_ = new Box(parent);
  widget_->setEditable(true);
  // A screen reader is told of the field inside, and takes the text in it for the name of the box.
  widget_->lineEdit()->setAccessibleName(ToQString(combo_.AccessibleName()));
  widget_->setInsertPolicy(QComboBox::NoInsert);
  widget_->setCompleter(nullptr);  // it would write more than the person did
  connect(widget_->lineEdit(), &QLineEdit::textEdited, [this](const QString& text) {
    Act([this, typed = text.toStdString()] { combo_.PersonTypes(typed); });
  });
  connect(widget_, &QComboBox::activated, [this](int index) {
    Act([this, item = widget_->itemText(index).toStdString()] { combo_.PersonChooses(item); });
  });
  return widget_;
}

void ComboView::Apply() {
  const auto& items = combo_.Items();
  for (auto i = static_cast<std::size_t>(widget_->count()); i < items.size(); ++i) {
    widget_->addItem(ToQString(items[i]));
  }
  const QString text = ToQString(combo_.Text);
  widget_->setCurrentIndex(widget_->findText(text));
  if (widget_->currentText() != text) widget_->setEditText(text);
}

// Enter picks the entry whose text was typed.
bool ComboView::Needs(const QKeyEvent& key) const { return KeyCode(key) == forms::kEnterKey; }

QWidget* DriveView::Make(QWidget* parent) {
  widget_ = new Box(parent);
  for (const std::string& drive : drives_.Drives()) widget_->addItem(ToQString(drive));
  connect(widget_, &QComboBox::activated, [this](int index) {
    Act([this, drive = widget_->itemText(index).toStdString()] { drives_.PersonChooses(drive); });
  });
  return widget_;
}

void DriveView::Apply() { widget_->setCurrentIndex(widget_->findText(ToQString(drives_.Drive))); }

}  // namespace lectern::desktop
