// Labels with text fitted to their place. A click on one sets an option without a caption on its left.
#include <QLabel>
#include <QPainter>
#include <utility>

#include "forms/buttons.h"
#include "forms/text_controls.h"
#include "forms/window.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/layout/text_fit.h"
#include "ui/desktop/views/clickable_view.h"
#include "ui/desktop/views/painted_widget.h"
#include "ui/desktop/views/view_factory.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

// A QLabel, for screen readers, that paints its text fitted to its place.
class FittedLabel : public QLabel, public Spoken {
 public:
  explicit FittedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

  // Hides a text that has the colour of its background.
  void SetHidden(bool hidden) {
    if (std::exchange(hidden_, hidden) != hidden) update();
  }

  // Leaves space at both sides for the focus ring.
  void Indent(int pixels) { indent_ = pixels; }

  void SetMuted(bool muted) {
    if (std::exchange(muted_, muted) != muted) update();
  }

  void SetText(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    fitted_ = false;
    update();
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
    const QColor ink =
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    painter.setPen(muted_ ? MutedColor(ink, palette().color(QPalette::Window)) : ink);
    const auto across = static_cast<int>(alignment() & Qt::AlignHorizontal_Mask);
    const int down =
        fit_.several_lines ? Qt::AlignTop | Qt::TextWordWrap : Qt::AlignVCenter | Qt::TextSingleLine;
    painter.drawText(rect().adjusted(indent_, 0, -indent_, 0), across | down, fit_.text);
  }

 private:
  FittedText fit_;
  bool fitted_ = false;
  bool hidden_ = false;
  bool muted_ = false;
  int indent_ = 0;
};

class LabelView : public ViewOf<forms::Label, ClickableView> {
 public:
  LabelView(forms::Label& label, WindowView& window, QWidget& parent)
      : ViewOf(label, window, parent), design_text_(IsDesignText(label.Caption) ? label.Caption() : "") {}

 protected:
  QWidget* Make(QWidget* parent) override {
    constexpr int kTextMargin = 6;  // pixels
    text_ = new FittedLabel(parent);
    if (IsButton()) text_->Indent(kTextMargin);
    PrepareForInput(*text_);
    text_->is_echo = Control().IsEcho();
    return text_;
  }

  void Apply() override {
    Qt::Alignment alignment = Qt::AlignLeft;
    const forms::TextRole role = Control().GetTextRole();
    const bool right = role == forms::TextRole::kSecondaryRight || role == forms::TextRole::kTitleRight;
    if (Control().Alignment == forms::kAlignRight || right) alignment = Qt::AlignRight;
    if (Control().Alignment == forms::kAlignCentre) alignment = Qt::AlignHCenter;
    text_->SetHidden(text_->palette().color(QPalette::WindowText).rgb() == GroundColor().rgb());
    text_->SetMuted(IsSecondary() && forms::IsSystemColour(Control().ForeColor));
    const bool is_unused = Control().Caption == design_text_;
    text_->SetText(is_unused ? QString() : ToQString(Control().Caption));
    if (text_->alignment() != alignment) text_->setAlignment(alignment);
  }

  bool ShowsReadableText() const override { return true; }

  // A swatch of a palette is a label on a coloured figure.
  QString SpokenName() const override {
    const QString name = ClickableView::SpokenName();
    return IsButton() && !Control().Click ? NameOf(GroundColor()) + ", " + name : name;
  }

  QFont WantedFont() const override {
    if (Control().GetTextRole() == forms::TextRole::kAsSet) return ClickableView::WantedFont();
    if (IsSecondary()) return InPixels(OwnFont(), kSecondaryPixels);
    return InPixels(OwnFont(), kTitlePixels, QFont::DemiBold);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress && !Control().Click && !Control().MouseDown &&
        static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton) {
      forms::Control* const option = OptionAtLeft();
      if (option != nullptr && option->RefusesPerson() == forms::Refusal::kNone) {
        Act([option] { option->PersonClicks(); });
        return true;
      }
    }
    return ClickableView::eventFilter(watched, event);
  }

 private:
  bool IsSecondary() const {
    const forms::TextRole role = Control().GetTextRole();
    return role == forms::TextRole::kSecondary || role == forms::TextRole::kSecondaryRight;
  }

  // The option without a caption that is close to the left edge of the label.
  forms::Control* OptionAtLeft() const {
    constexpr int kNear = 8;  // pixels
    const QRect place = Place();
    for (forms::Control* sibling : Control().Parent().Children()) {
      auto* const option = dynamic_cast<forms::Option*>(sibling);
      if (option == nullptr || option->Caption != "") continue;
      const QRect at = GetWindow().Layout().PlaceOf(*option).adjusted(0, 0, 1, 1);
      const int middle = place.center().y();
      if (std::abs(place.left() - at.right()) <= kNear && middle >= at.top() && middle <= at.bottom())
        return option;
    }
    return nullptr;
  }

  const std::string design_text_;  // not shown; a similar caption set later may be a name chosen by the user
  FittedLabel* text_ = nullptr;
};

}  // namespace

ViewMaker* const kMakeLabelView = MakeViewOf<LabelView, forms::Label>;

}  // namespace lectern::desktop
