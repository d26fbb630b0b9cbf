#include "ui/desktop/views/keys.h"

#include <utility>

#include "forms/control.h"

namespace lectern::desktop {

int KeyCode(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return forms::kEnterKey;
  if (key.key() == Qt::Key_Escape) return forms::kEscapeKey;
  constexpr std::pair<int, int> kCodes[] = {
      {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},    {Qt::Key_Space, 32}, {Qt::Key_PageUp, 33},
      {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},   {Qt::Key_Home, 36},  {Qt::Key_Left, 37},
      {Qt::Key_Up, 38},       {Qt::Key_Right, 39}, {Qt::Key_Down, 40},  {Qt::Key_Insert, 45},
      {Qt::Key_Delete, 46},
  };
  for (const auto& [qt, code] : kCodes) {
    if (key.key() == qt) return code;
  }
  // The code of a digit or letter is that of the upper-case character.
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
  if (key == Qt::Key_Left) return {-1, 0};
  if (key == Qt::Key_Right) return {1, 0};
  if (key == Qt::Key_Up) return {0, -1};
  return key == Qt::Key_Down ? QPoint(0, 1) : QPoint();
}

std::optional<QAbstractSlider::SliderAction> ScrollActionOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_Space && modifiers == Qt::ShiftModifier) return QAbstractSlider::SliderPageStepSub;
  if (modifiers != Qt::NoModifier) return std::nullopt;
  using Slider = QAbstractSlider;
  constexpr std::pair<int, Slider::SliderAction> kActions[] = {
      {Qt::Key_Up, Slider::SliderSingleStepSub},   {Qt::Key_Down, Slider::SliderSingleStepAdd},
      {Qt::Key_PageUp, Slider::SliderPageStepSub}, {Qt::Key_PageDown, Slider::SliderPageStepAdd},
      {Qt::Key_Space, Slider::SliderPageStepAdd},  {Qt::Key_Home, Slider::SliderToMinimum},
      {Qt::Key_End, Slider::SliderToMaximum},
  };
  for (const auto& [qt, action] : kActions) {
    if (key.key() == qt) return action;
  }
  return std::nullopt;
}

QKeySequence QuoteKey() { return {Qt::CTRL | Qt::SHIFT | Qt::Key_C}; }

std::optional<int> ZoomOf(const QKeyEvent& key) {
  // On some keyboards Plus needs Shift.
  const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  if (held != Qt::ControlModifier) return std::nullopt;
  if (key.key() == Qt::Key_Plus || key.key() == Qt::Key_Equal) return 1;
  if (key.key() == Qt::Key_Minus || key.key() == Qt::Key_Underscore) return -1;
  if (key.key() == Qt::Key_0) return 0;
  return std::nullopt;
}

bool IsKey(const QKeyEvent& key, const QKeySequence& named) {
  if (named.isEmpty()) return false;
  return QKeyCombination(key.modifiers() & ~Qt::KeypadModifier, Qt::Key(key.key())) == named[0];
}

bool MovesCaret(const QKeyEvent& key) {
  return key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown;  // the arrows are between them
}

}  // namespace lectern::desktop
