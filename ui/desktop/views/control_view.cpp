#include "ui/desktop/views/control_view.h"

#include <QApplication>
#include <cassert>
#include <cmath>

#include "forms/figures.h"
#include "forms/picture_box.h"
#include "forms/window.h"
#include "ui/desktop/app/pictures.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/layout/places.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

// Buttons and boxes of 28 pixels, as the model has them, are shown 30 high.
constexpr int kLowControl = 28;

bool IsLow(forms::Kind kind) {
  return kind == forms::Kind::kCommandButton || kind == forms::Kind::kTextBox ||
         kind == forms::Kind::kComboBox || kind == forms::Kind::kDriveListBox;
}

}  // namespace

QString ToQString(const std::string& text) { return QString::fromStdString(text); }

bool IsDesignText(const std::string& text) {
  for (const std::string_view kind : {"Label", "Text", "RichTextBox"}) {
    if (!text.starts_with(kind) || text.size() == kind.size()) continue;
    return text.find_first_not_of("0123456789", kind.size()) == std::string::npos;
  }
  return false;
}

forms::MouseEvent ToMouseEvent(const QMouseEvent& event, Qt::MouseButtons buttons) {
  forms::MouseEvent mouse;
  mouse.button = 0;
  if ((buttons & Qt::MiddleButton) != 0) mouse.button = 4;
  if ((buttons & Qt::RightButton) != 0) mouse.button = 2;
  if ((buttons & Qt::LeftButton) != 0) mouse.button = 1;
  mouse.shift = ((event.modifiers() & Qt::ShiftModifier) != 0 ? 1 : 0) +
                ((event.modifiers() & Qt::ControlModifier) != 0 ? 2 : 0) +
                ((event.modifiers() & Qt::AltModifier) != 0 ? 4 : 0);
  mouse.x = std::floor(event.position().x()) * forms::kTwipsPerPixel;
  mouse.y = std::floor(event.position().y()) * forms::kTwipsPerPixel;
  return mouse;
}

ControlView::ControlView(forms::PlacedControl& control, WindowView& window, QWidget& parent)
    : LayerView(window.GetEvents()), control_(control), window_(window), parent_(parent) {
  control_.Attach(this);
}

ControlView::~ControlView() { control_.Attach(nullptr); }

// The pointer changes at once, because it shows that the current handler is busy.
void ControlView::Changed() {
  LayerView::Changed();
  if (widget_ != nullptr) ApplyPointer();
}

void ControlView::TakeFocus() { window_.FocusIsWanted(); }

QRect ControlView::Place() const {
  QRect place = window_.Layout().PlaceOf(control_);
  if (IsLow(control_.GetKind()) && place.height() == kLowControl) place.adjust(0, -1, 0, 1);
  if (control_.GetKind() == forms::Kind::kLine) place.setSize(place.size().expandedTo({1, 1}));
  if (in_corner_) place.moveTo(0, 0);
  return place;
}

void ControlView::Refresh() {
  // Controls that only store data are shown on the bench alone.
  const bool seen = control_.Visible && (in_corner_ || !control_.IsStorage());
  if (widget_ == nullptr) {
    if (!seen) return;
    MakeWidget();
  }
  if (const QRect place = Place(); widget_->geometry() != place) {
    const bool resized = widget_->size() != place.size();
    widget_->setGeometry(place);
    window_.NeedsArranging();
    if (resized) Resized();
  }
  if (widget_->isHidden() == seen) {
    widget_->setVisible(seen);
    window_.NeedsArranging();
  }
  if (!seen) return;
  widget_->setEnabled(control_.Enabled);
  if (const QFont font = WantedFont(); widget_->font() != font) {
    FontWillChange();
    widget_->setFont(font);
  }
  ApplyColours();
  ApplyPointer();
  Apply();
  if (!control_.HasNameOfItsOwn() && ShowsReadableText()) return;
  if (const QString name = SpokenName(); widget_->accessibleName() != name) widget_->setAccessibleName(name);
}

// With the colour, where that is what the control is for.
QString ControlView::SpokenName() const {
  const QString name = ToQString(control_.AccessibleName());
  const bool is_colour = GetGround() == Ground::kPanel && control_.HasNameOfItsOwn() &&
                         !forms::IsSystemColour(control_.BackColor) && !PictureColor();
  return is_colour ? name + ": " + NameOf(ToColor(control_.BackColor, QApplication::palette())) : name;
}

void ControlView::MakeWidget() {
  widget_ = Make(&parent_);
  assert(widget_ != nullptr);
  widget_->setObjectName(ToQString(control_.FullName()));
  widget_->installEventFilter(this);
  widget_->setGeometry(Place());
}

void ControlView::ApplyPointer() {
  if (pointer_ == control_.MousePointer) return;
  pointer_ = control_.MousePointer;
  if (pointer_ == forms::kPointerDefault) {
    widget_->unsetCursor();
  } else {
    widget_->setCursor(Pointer());
  }
}

QCursor ControlView::Pointer() const { return PointerOf(control_.MousePointer()); }

QFont ControlView::WantedFont() const {
  const auto* const text = dynamic_cast<const forms::TextControl*>(&control_);
  return text == nullptr ? OwnFont() : FontOf(*text);
}

// The background of the control: a filled figure under its centre, or the panel.
QColor ControlView::GroundColor() const {
  for (const forms::Control* sibling : control_.Parent().Children()) {
    if (sibling->GetKind() != forms::Kind::kShape || !sibling->Visible) continue;
    const auto& figure = static_cast<const forms::Shape&>(*sibling);
    if (!forms::IsSystemColour(figure.BackColor) &&
        window_.Layout().PlaceOf(figure).contains(Place().center())) {
      return ToColor(figure.BackColor, parent_.palette());
    }
  }
  return PictureColor().value_or(parent_.palette().color(QPalette::Window));
}

// The average colour of the picture behind the control, which is not shown on a dark page.
std::optional<QColor> ControlView::PictureColor() const {
  const auto* const box = dynamic_cast<const forms::PictureBox*>(&control_.Parent());
  if (box == nullptr || !box->Picture() || IsDark(QApplication::palette().color(QPalette::Base))) {
    return std::nullopt;
  }
  const QImage behind = ImageOf(*box->Picture());
  return behind.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

void ControlView::ApplyColours() {
  const Ground kind = GetGround();
  if (kind == Ground::kNone) return;
  // The fore colour of a panel is for drawing on it, not for text.
  const forms::Colour fore = kind == Ground::kPanel ? forms::kButtonText : control_.ForeColor();
  const forms::Colour back = control_.BackColor;
  if (colours_ == std::pair(back, fore)) return;
  colours_ = std::pair(back, fore);

  // The palette roles of the colours, and the back colour that means "not set".
  struct Roles {
    QPalette::ColorRole back = QPalette::Window;
    QPalette::ColorRole text = QPalette::WindowText;
    forms::Colour design = forms::kButtonFace;
  } roles;
  if (kind == Ground::kField) roles = {QPalette::Base, QPalette::Text, forms::kWindowBackground};
  if (kind == Ground::kButton) roles = {QPalette::Button, QPalette::ButtonText, forms::kButtonFace};
  const QPalette theme = QApplication::palette();
  const bool transparent = kind == Ground::kTransparent && back == roles.design;
  const QColor ground = transparent ? GroundColor() : ToColor(back, theme);

  QPalette palette;
  const auto set_text = [&](const QColor& text) {
    palette.setColor(roles.text, text);
    palette.setColor(QPalette::Disabled, roles.text, Mixed(text, ground, 0.5));
  };
  // A panel does not inherit the colours of its window.
  if (back != roles.design || kind == Ground::kPanel) {
    palette.setColor(roles.back, ground);
    if (!forms::IsSystemColour(back)) {
      set_text(TextOn(ground));
    } else if (kind == Ground::kPanel) {
      set_text(theme.color(QPalette::WindowText));
    }
  }
  if (transparent && forms::IsSystemColour(fore)) {
    if (const auto picture = PictureColor()) set_text(TextOn(*picture));
  }
  if (!forms::IsSystemColour(fore)) set_text(Legible(ToColor(fore, theme), ground));
  if (fore == forms::kButtonShadow) set_text(ShadowOn(ground));
  if (kind == Ground::kTransparent) widget_->setAutoFillBackground(!transparent);
  widget_->setPalette(palette);
}

void ControlView::Recolour() {
  colours_.reset();
  Changed();
}

void ControlView::Act(const std::function<void()>& act) {
  if (control_.RefusesPerson() != forms::Refusal::kNone) return;
  Changed();
  GetEvents().Deliver(control_.HostWindow(), act);
}

bool ControlView::KeyPressed(const QKeyEvent& key) {
  if (window_.HandleKey(key)) return true;
  if (const int letter = AccessKey(key); letter != 0) return window_.PressAccessKey(letter);
  const int code = KeyCode(key);
  const bool presses_buttons = code == forms::kEnterKey || code == forms::kEscapeKey;
  if (HandleKey(key)) return true;
  if (presses_buttons && !Needs(key)) {
    const auto press = [this, code] { control_.PersonKeys(code); };
    if (key.isAutoRepeat()) return true;
    if (code == forms::kEscapeKey) {
      Act([this, press] { window_.escaping(press); });
    } else {
      Act(press);
    }
    return true;
  }
  if (code != 0 && control_.KeyDown) Act([this, code] { control_.KeyDown(code); });
  return false;
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && watched == widget_) {
    return KeyPressed(static_cast<const QKeyEvent&>(*event));
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace lectern::desktop
