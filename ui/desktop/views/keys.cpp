#include "ui/desktop/views/keys.h"

#include <QKeySequence>
#include <utility>

#include "forms/control.h"

namespace lectern::desktop {

int KeyCode(const QKeyEvent& key) {
  constexpr std::pair<int, int> kCodes[] = {
      {Qt::Key_Return, forms::kEnterKey},
      {Qt::Key_Enter, forms::kEnterKey},
      {Qt::Key_Escape, forms::kEscapeKey},
      {Qt::Key_Backspace, 8},
      {Qt::Key_Tab, 9},
      {Qt::Key_Space, 32},
      {Qt::Key_PageUp, 33},
      {Qt::Key_PageDown, 34},
      {Qt::Key_End, 35},
      {Qt::Key_Home, 36},
      {Qt::Key_Left, 37},
      {Qt::Key_Up, 38},
      {Qt::Key_Right, 39},
      {Qt::Key_Down, 40},
      {Qt::Key_Insert, 45},
      {Qt::Key_Delete, 46},
  };
  for (const auto& [qt, code] : kCodes) {
    if (key.key() == qt) return code;
  }
  // Digits and letters have the code of the character, letters in upper case.
  if (key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9) return key.key();
  if (key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z) return key.key();
  constexpr int kFirstFunctionKey = 112;
  if (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F12) return kFirstFunctionKey + key.key() - Qt::Key_F1;
  return 0;
}

int AccessKey(const std::string& caption) {
  if (caption.find('&') == std::string::npos) return 0;
  const QKeySequence sequence = QKeySequence::mnemonic(QString::fromStdString(caption));
  return sequence.isEmpty() ? 0 : sequence[0].key();
}

int AccessKey(const QKeyEvent& key) {
  const bool alt_alone = (key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::AltModifier;
  return alt_alone && key.key() >= Qt::Key_Space && key.key() < Qt::Key_Escape ? key.key() : 0;
}

QPoint DirectionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

std::optional<QAbstractSlider::SliderAction> ScrollActionOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_Space && modifiers == Qt::ShiftModifier) return QAbstractSlider::SliderPageStepSub;
  if (modifiers != Qt::NoModifier) return std::nullopt;
  switch (key.key()) {
    case Qt::Key_Up:
      return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
      return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
      return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
    case Qt::Key_Space:
      return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
      return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
      return QAbstractSlider::SliderToMaximum;
    default:
      return std::nullopt;
  }
}

QKeySequence QuoteKey() { return {Qt::CTRL | Qt::SHIFT | Qt::Key_C}; }

std::optional<int> ZoomOf(const QKeyEvent& key) {
  // On some keyboards Plus needs Shift.
  const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  if (held != Qt::ControlModifier) return std::nullopt;
  switch (key.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return 1;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      return -1;
    case Qt::Key_0:
      return 0;
    default:
      return std::nullopt;
  }
}

bool IsKey(const QKeyEvent& key, const QKeySequence& named) {
  if (named.isEmpty()) return false;
  return QKeyCombination(key.modifiers() & ~Qt::KeypadModifier, Qt::Key(key.key())) == named[0];
}

bool MovesCaret(const QKeyEvent& key) {
  return key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown;  // with the arrows between them
}

}  // namespace lectern::desktop
