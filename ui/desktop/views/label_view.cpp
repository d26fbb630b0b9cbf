// Labels: text that fits its place, and stands in as the text of an option that has none of its own.
#include <QLabel>
#include <QPainter>
#include <utility>

#include "forms/buttons.h"
#include "forms/text_controls.h"
#include "forms/window.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/layout/places.h"
#include "ui/desktop/layout/text_fit.h"
#include "ui/desktop/views/clickable_view.h"
#include "ui/desktop/views/painted_widget.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

// A QLabel for screen readers, with its text fitted to its place on the screen.
class FittedLabel : public QLabel, public Spoken {
 public:
  explicit FittedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

  // Hides the text, or shows it. It is hidden where it has the colour of its ground.
  void SetHidden(bool hidden) {
    if (std::exchange(hidden_, hidden) != hidden) update();
  }

  // Leaves room at both sides, for the ring of a label that can have the focus.
  void Indent(int pixels) { indent_ = pixels; }

  void SetText(const QString& text, Qt::Alignment alignment) {
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
      setToolTip(fit_.cut && !hidden_ ? text() : QString());
    }
    QPainter painter(this);
    if (hasFocus()) DrawFocusRing(painter, rect(), palette());
    if (hidden_) return;
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
  bool hidden_ = false;
  int indent_ = 0;
};

class LabelView : public ViewOf<forms::Label, ClickableView> {
 public:
  LabelView(forms::Label& label, WindowView& window, QWidget& parent)
      : ViewOf(label, window, parent), design_text_(IsDesignText(label.Caption) ? label.Caption() : "") {}

 protected:
  QWidget* Make(QWidget* parent) override {
    constexpr int kBesideText = 6;  // pixels
    text_ = new FittedLabel(parent);
    if (IsButton()) text_->Indent(kBesideText);
    PrepareForInput(*text_);
    text_->is_echo = Control().IsEcho();
    return text_;
  }

  void Apply() override {
    Qt::Alignment alignment = Qt::AlignLeft;
    if (Control().Alignment == forms::kAlignRight) alignment = Qt::AlignRight;
    if (Control().Alignment == forms::kAlignCentre) alignment = Qt::AlignHCenter;
    text_->SetHidden(text_->palette().color(QPalette::WindowText).rgb() == GroundColor().rgb());
    const bool is_unused = Control().Caption == design_text_;
    text_->SetText(is_unused ? QString() : ToQString(Control().Caption), alignment);
  }

  bool SpeaksForItself() const override { return true; }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress && !Control().Click && !Control().MouseDown &&
        static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton) {
      forms::Control* const option = OptionBeside();
      if (option != nullptr && option->RefusesPerson() == forms::Refusal::kNone) {
        Act([option] { option->PersonClicks(); });
        return true;
      }
    }
    return ClickableView::eventFilter(watched, event);
  }

 private:
  // The option without a caption to the left of the label, as close as its own text would be.
  forms::Control* OptionBeside() const {
    constexpr int kNear = 8;  // pixels
    const QRect place = Place();
    for (forms::Control* sibling : Control().Parent().Children()) {
      auto* const option = dynamic_cast<forms::Option*>(sibling);
      if (option == nullptr || option->Caption != "") continue;
      const QRect beside = PlaceOf(*option);
      const int gap = place.left() - (beside.left() + beside.width());
      const int middle = place.center().y();
      if (std::abs(gap) <= kNear && middle >= beside.top() && middle <= beside.top() + beside.height()) {
        return option;
      }
    }
    return nullptr;
  }

  const std::string design_text_;  // not shown; any other caption may be a name that a person gave
  FittedLabel* text_ = nullptr;
};

}  // namespace

ViewMaker* const kMakeLabelView = MakeViewOf<LabelView, forms::Label>;

}  // namespace lectern::desktop
