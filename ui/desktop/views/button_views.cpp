#include "ui/desktop/views/button_views.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "ui/desktop/app/pictures.h"
#include "ui/desktop/text/text_fit.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

// The window looks after access keys itself, since a menu may have the same letter.
void SetCaption(QAbstractButton& widget, const std::string& caption) {
  const QString text = ToQString(caption);
  if (widget.text() == text) return;
  widget.setText(text);
  widget.setShortcut({});
}

}  // namespace

QWidget* ButtonView::Make(QWidget* parent) {
  widget_ = new QPushButton(parent);
  widget_->setAutoDefault(false);
  widget_->setDefault(button_.IsDefaultButton());
  // A sign or a number on it leaves one guessing.
  if (button_.HasNameOfItsOwn()) widget_->setToolTip(ToQString(button_.AccessibleName()));
  connect(widget_, &QPushButton::clicked, [this] {
    if (std::exchange(pressed_by_mouse_, false)) {
      Act([this] { button_.Click(); });
    } else {
      Act([this] { button_.PersonClicks(); });
    }
  });
  return widget_;
}

QFont ButtonView::WantedFont() const {
  constexpr int kMargin = 6;
  return FitLine(ToQString(button_.Caption), ControlView::WantedFont(), Place().width() - 2 * kMargin);
}

void ButtonView::Apply() {
  SetCaption(*widget_, button_.Caption);
  const auto* const with_picture = dynamic_cast<const forms::SSCommand*>(&button_);
  if (with_picture == nullptr || with_picture->Picture == picture_) return;
  picture_ = with_picture->Picture;
  widget_->setIcon(picture_ ? QIcon(QPixmap::fromImage(ImageOf(*picture_).copy())) : QIcon());
  widget_->setIconSize({picture_.Width(), picture_.Height()});
}

// Enter presses the button that has the focus, ahead of its panel's own.
bool ButtonView::HandleKey(const QKeyEvent& key) {
  if (KeyCode(key) != forms::kEnterKey) return false;
  if (!key.isAutoRepeat()) Act([this] { button_.PersonClicks(); });
  return true;
}

bool ButtonView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    if (mouse.button() == Qt::LeftButton) {
      pressed_by_mouse_ = true;
      Act([this, press = ToMouseEvent(mouse, mouse.button())] { button_.PersonPresses(press); });
    }
  }
  if (event->type() == QEvent::KeyPress) pressed_by_mouse_ = false;
  return ControlView::eventFilter(watched, event);
}

QWidget* OptionView::Make(QWidget* parent) {
  widget_ = new QRadioButton(parent);
  connect(widget_, &QRadioButton::clicked, [this] { Act([this] { option_.PersonClicks(); }); });
  return widget_;
}

QFont OptionView::WantedFont() const {
  constexpr int kIndicator = 22;
  return FitLine(ToQString(option_.Caption), ControlView::WantedFont(), Place().width() - kIndicator);
}

void OptionView::Apply() {
  SetCaption(*widget_, option_.Caption);
  // Qt would not have the last one of a panel cleared, as the control may.
  widget_->setAutoExclusive(false);
  widget_->setChecked(option_.Value);
  widget_->setAutoExclusive(true);
}

bool OptionView::HandleKey(const QKeyEvent& key) {
  const bool on = key.key() == Qt::Key_Right || key.key() == Qt::Key_Down;
  const bool back = key.key() == Qt::Key_Left || key.key() == Qt::Key_Up;
  if (on || back) MoveTo(on ? 1 : -1);
  return on || back;
}

// The arrows set the next option of the panel, and the first one behind the last.
void OptionView::MoveTo(int step) {
  std::vector<forms::Option*> options;
  for (forms::Control* sibling : option_.Parent().Children()) {
    auto* const other = dynamic_cast<forms::Option*>(sibling);
    if (other != nullptr && other->RefusesPerson() == forms::Refusal::kNone) options.push_back(other);
  }
  const auto here = static_cast<int>(std::find(options.begin(), options.end(), &option_) - options.begin());
  const auto count = static_cast<int>(options.size());
  if (here == count) return;
  forms::Option* const next = options[static_cast<std::size_t>((here + step + count) % count)];
  Act([next] {
    next->SetFocus();
    next->PersonClicks();
  });
}

}  // namespace lectern::desktop
