#include "ui/desktop/desk/go_to_line.h"

#include <QEvent>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

GoToLine::GoToLine(QWidget* parent)
    : FloatingFrame(parent), line_(new QLineEdit(this)), answer_(new QLabel(this)) {
  constexpr int kMargin = 12;
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(line_);
  column->addWidget(answer_);
  setObjectName("go_to");
  line_->setObjectName("go_to_line");
  line_->setAccessibleName("Go to");
  line_->setPlaceholderText("John 3:16");
  answer_->setObjectName("go_to_answer");
  answer_->setTextFormat(Qt::PlainText);
  answer_->setWordWrap(true);
  line_->installEventFilter(this);
  connect(line_, &QLineEdit::textChanged, [this] { Typed(); });
  hide();
}

void GoToLine::Open(const QRect& above, const QString& typed) {
  constexpr int kWidth = 400;
  constexpr int kGap = 8;
  if (isHidden()) back_to_ = window()->focusWidget();
  line_->setText(typed);
  Typed();
  const int width = std::min(kWidth, above.width() - 2 * kGap);
  setFixedWidth(width);
  adjustSize();
  move(above.left() + (above.width() - width) / 2, above.top() + kGap);
  show();
  raise();
  line_->setFocus(Qt::OtherFocusReason);
}

void GoToLine::Typed() {
  const ui::ReadingDesk::Answer answer = read(line_->text());
  place_ = answer.place;
  answer_->setText(QString::fromStdString(answer.text));
  line_->setAccessibleDescription(answer_->text());
  QPalette muted = palette();
  const QColor ink = palette().color(QPalette::WindowText);
  if (!place_) muted.setColor(QPalette::WindowText, MutedColor(ink, palette().color(QPalette::Window)));
  answer_->setPalette(muted);
  adjustSize();
}

void GoToLine::Go() {
  if (!place_) return;
  const reader::Reference place = *place_;
  Close();
  go(place);
}

void GoToLine::Close() {
  if (isHidden()) return;
  hide();
  if (back_to_ != nullptr && back_to_->isVisible()) back_to_->setFocus(Qt::OtherFocusReason);
}

bool GoToLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Escape) return Close(), true;
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return Go(), true;
  }
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<const QFocusEvent&>(*event).reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) hide();
  }
  return FloatingFrame::eventFilter(watched, event);
}

}  // namespace lectern::desktop
