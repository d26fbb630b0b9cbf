#include "ui/desktop/views/label_view.h"

#include <QLabel>
#include <QPainter>
#include <utility>

#include "forms/buttons.h"
#include "forms/window.h"
#include "ui/desktop/app/style.h"
#include "ui/desktop/text/text_fit.h"
#include "ui/desktop/views/spoken.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

// A QLabel for those who have it read to them, with its text fitted for those who see it.
class LabelView::Text : public QLabel, public Spoken {
 public:
  explicit Text(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

  // Whether the text has the colour of what it stands on, and is not to be seen.
  void Vanish(bool vanishes) {
    if (std::exchange(vanishes_, vanishes) != vanishes) update();
  }

  // Room at both sides, for the ring of a label that can have the focus.
  void Indent(int pixels) { indent_ = pixels; }

  void Show(const QString& text, Qt::Alignment alignment) {
    if (text != this->text()) {
      setText(text);
      fitted_ = false;
      update();
    }
    if (alignment != this->alignment()) setAlignment(alignment);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    fitted_ = false;
  }

  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) fitted_ = false;
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    if (!fitted_) {
      fit_ = Fit(text(), font(), size() - QSize(2 * indent_, 0));
      fitted_ = true;
      setToolTip(fit_.cut && !vanishes_ ? text() : QString());
    }
    QPainter painter(this);
    if (hasFocus()) DrawFocusRing(painter, rect(), palette());
    if (vanishes_) return;
    painter.setFont(fit_.font);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const auto across = static_cast<int>(alignment() & Qt::AlignHorizontal_Mask);
    const int down =
        fit_.several_lines ? Qt::AlignTop | Qt::TextWordWrap : Qt::AlignVCenter | Qt::TextSingleLine;
    painter.drawText(rect().adjusted(indent_, 0, -indent_, 0), across | down, fit_.text);
  }

 private:
  FittedText fit_;
  bool fitted_ = false;
  bool vanishes_ = false;
  int indent_ = 0;
};

QWidget* LabelView::Make(QWidget* parent) {
  constexpr int kBesideText = 6;  // pixels
  text_ = new Text(parent);
  if (IsButton()) text_->Indent(kBesideText);
  PrepareForInput(*text_);
  text_->is_echo = label_.IsEcho();
  return text_;
}

void LabelView::Apply() {
  Qt::Alignment alignment = Qt::AlignLeft;
  if (label_.Alignment == forms::kAlignRight) alignment = Qt::AlignRight;
  if (label_.Alignment == forms::kAlignCentre) alignment = Qt::AlignHCenter;
  text_->Vanish(text_->palette().color(QPalette::WindowText).rgb() == GroundColor().rgb());
  const bool is_unused = label_.Caption == design_text_;
  text_->Show(is_unused ? QString() : ToQString(label_.Caption), alignment);
}

// The option without a caption that stands at the label's left side, as close as its own text would.
forms::Control* LabelView::OptionBeside() const {
  constexpr int kNear = 8;  // pixels
  const QRect place = Place();
  for (forms::Control* sibling : label_.Parent().Children()) {
    auto* const option = dynamic_cast<forms::Option*>(sibling);
    if (option == nullptr || option->Caption != "") continue;
    const double right = (option->Left + option->Width) / forms::kTwipsPerPixel;
    const double top = option->Top / forms::kTwipsPerPixel;
    const double bottom = (option->Top + option->Height) / forms::kTwipsPerPixel;
    const int middle = place.center().y();
    if (right <= place.left() + kNear && place.left() - right <= kNear && middle >= top && middle <= bottom) {
      return option;
    }
  }
  return nullptr;
}

bool LabelView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && !GetWindow().IsAbandoned() && !label_.Click &&
      !label_.MouseDown && static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton) {
    forms::Control* const option = OptionBeside();
    if (option != nullptr && option->RefusesPerson() == forms::Refusal::kNone) {
      Act([option] { option->PersonClicks(); });
      return true;
    }
  }
  return ClickableView::eventFilter(watched, event);
}

}  // namespace lectern::desktop
