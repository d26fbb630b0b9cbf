// Buttons and options.
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <utility>
#include <vector>

#include "forms/buttons.h"
#include "ui/desktop/app/pictures.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/layout/text_fit.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

// Sets no shortcut: the window handles access keys itself, because a menu may have the same letter.
void SetCaption(QAbstractButton& widget, const std::string& caption) {
  const QString text = ToQString(caption);
  if (widget.text() == text) return;
  widget.setText(text);
  widget.setShortcut({});
}

class ButtonView : public ViewOf<forms::Button> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    widget_ = new QPushButton(parent);
    widget_->setAutoDefault(false);
    widget_->setDefault(Control().IsDefaultButton());
    widget_->setProperty(kQuietProperty, IsSign());
    // A caption such as a sign or a number needs an explanation.
    if (Control().HasNameOfItsOwn()) widget_->setToolTip(ToQString(Control().AccessibleName()));
    connect(widget_, &QPushButton::clicked, [this] {
      const bool by_mouse = std::exchange(pressed_by_mouse_, false);
      Act([&] { by_mouse ? Control().Click() : Control().PersonClicks(); });
    });
    return widget_;
  }

  void Apply() override {
    SetCaption(*widget_, Control().Caption);
    const auto* const with_picture = dynamic_cast<const forms::SSCommand*>(&Control());
    if (with_picture == nullptr || with_picture->Picture == picture_) return;
    picture_ = with_picture->Picture;
    widget_->setIcon(picture_ ? QIcon(QPixmap::fromImage(ImageOf(*picture_).copy())) : QIcon());
    widget_->setIconSize({picture_.Width(), picture_.Height()});
  }

  Ground GetGround() const override { return Ground::kButton; }
  QFont WantedFont() const override {
    constexpr int kMargin = 6;
    constexpr int kSignPixels = 24;
    if (IsSign()) return InPixels(OwnFont(), kSignPixels);
    return FitLine(ToQString(Control().Caption), ControlView::WantedFont(), Place().width() - 2 * kMargin);
  }
  bool ShowsReadableText() const override { return !Control().Caption->empty(); }

  // An arrow beside pictures.
  bool IsSign() const {
    return Control().GetKind() == forms::Kind::kSSCommand && ToQString(Control().Caption).size() == 1;
  }

  // Enter presses the button that has the focus, not the one of its panel.
  bool HandleKey(const QKeyEvent& key) override {
    if (KeyCode(key) != forms::kEnterKey) return false;
    if (!key.isAutoRepeat()) Act([this] { Control().PersonClicks(); });
    return true;
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      if (mouse.button() == Qt::LeftButton) {
        pressed_by_mouse_ = true;
        Act([this, press = ToMouseEvent(mouse, mouse.button())] { Control().PersonPresses(press); });
      }
    }
    if (event->type() == QEvent::KeyPress) pressed_by_mouse_ = false;
    return ControlView::eventFilter(watched, event);
  }

  QPushButton* widget_ = nullptr;
  bool pressed_by_mouse_ = false;
  forms::Picture picture_;  // as shown
};

class OptionView : public ViewOf<forms::Option> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    widget_ = new QRadioButton(parent);
    connect(widget_, &QRadioButton::clicked, [this] { Act([this] { Control().PersonClicks(); }); });
    connect(widget_, &QRadioButton::pressed, [this] { being_clicked_ = true; });
    connect(widget_, &QRadioButton::released, [this] { being_clicked_ = false; });
    // Assistive technology sets the option without a click.
    connect(widget_, &QRadioButton::toggled, [this](bool on) {
      if (on && !being_clicked_ && !GetEvents().AtWork()) Act([this] { Control().PersonClicks(); });
    });
    return widget_;
  }

  void Apply() override {
    SetCaption(*widget_, Control().Caption);
    // Qt would keep one option of a panel set; the control allows none.
    widget_->setAutoExclusive(false);
    widget_->setChecked(Control().Value);
    widget_->setAutoExclusive(true);
  }

  QFont WantedFont() const override {
    constexpr int kIndicator = 22;
    return FitLine(ToQString(Control().Caption), ControlView::WantedFont(), Place().width() - kIndicator);
  }
  bool ShowsReadableText() const override { return !Control().Caption->empty(); }

  bool HandleKey(const QKeyEvent& key) override {
    const QPoint direction = DirectionOf(key.key());
    if (!direction.isNull()) MoveBy(direction.x() + direction.y());
    return !direction.isNull();
  }

  // Sets the next option of the panel; the first follows the last.
  void MoveBy(int step) {
    std::vector<forms::Option*> options;
    for (forms::Control* sibling : Control().Parent().Children()) {
      auto* const other = dynamic_cast<forms::Option*>(sibling);
      if (other != nullptr && other->RefusesPerson() == forms::Refusal::kNone) options.push_back(other);
    }
    const auto here =
        static_cast<int>(std::find(options.begin(), options.end(), &Control()) - options.begin());
    const auto count = static_cast<int>(options.size());
    if (here == count) return;
    forms::Option* const next = options[static_cast<std::size_t>((here + step + count) % count)];
    Act([next] {
      next->SetFocus();
      next->PersonClicks();
    });
  }

  QRadioButton* widget_ = nullptr;
  bool being_clicked_ = false;
};

}  // namespace

ViewMaker* const kMakeButtonView = MakeViewOf<ButtonView, forms::Button>;
ViewMaker* const kMakeOptionView = MakeViewOf<OptionView, forms::Option>;

}  // namespace lectern::desktop
