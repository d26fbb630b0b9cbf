// The line in which a person types a place. It floats over the top of the page while it has the focus, and
// says what is typed leads to.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <functional>
#include <optional>

#include "ui/desktop/desk/floating_frame.h"
#include "ui/reading_desk.h"

namespace lectern::desktop {

class GoToLine : public FloatingFrame {
 public:
  explicit GoToLine(QWidget* parent);

  // Opens at the top of that part of the parent, with the first letter that was typed.
  void Open(const QRect& above, const QString& typed);

  // What a text leads to, and how to go there. Set before it opens.
  std::function<ui::ReadingDesk::Answer(const QString& typed)> read;
  std::function<void(const reader::Reference& place)> go;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Typed();
  void Go();
  void Close();  // gives the focus back

  QLineEdit* line_;
  QLabel* answer_;
  QPointer<QWidget> back_to_;
  std::optional<reader::Reference> place_;
};

}  // namespace lectern::desktop
