#include "ui/desktop/keys.h"

#include <QKeySequence>
#include <utility>

#include "core/forms/control.h"

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
  // Digits and letters have the code of the character, letters in upper case; function keys follow one
  // another.
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

}  // namespace lectern::desktop
