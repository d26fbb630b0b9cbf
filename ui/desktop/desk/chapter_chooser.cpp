#include "ui/desktop/desk/chapter_chooser.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "forms/control.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/keys.h"

namespace lectern::desktop {

namespace {

constexpr int kColumns = 10;
constexpr QSize kNumberSize(34, 26);  // pixels

}  // namespace

ChapterChooser::ChapterChooser(QWidget* parent, int chapters, int open, std::function<void(int)> pick)
    : QFrame(parent, Qt::Popup), pick_(std::move(pick)) {
  setObjectName("chapters");
  setAccessibleName("Chapters");
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_KeyboardFocusChange);  // the ring shows from the start
  setFrameShape(QFrame::StyledPanel);
  constexpr int kMargin = 8;
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setSpacing(2);
  for (int chapter = 1; chapter <= chapters; ++chapter) {
    auto* const number = new QPushButton(QString::number(chapter), this);
    number->setFixedSize(kNumberSize);
    number->setProperty(kQuietProperty, chapter != open);
    number->setAutoDefault(false);
    number->setAccessibleName("Chapter " + number->text());
    number->installEventFilter(this);
    if (chapter == open) number->setFocus();
    connect(number, &QPushButton::clicked, [this, chapter] { Pick(chapter); });
    grid->addWidget(number, (chapter - 1) / kColumns, (chapter - 1) % kColumns);
    numbers_.append(number);
  }
}

void ChapterChooser::OpenBelow(const QWidget& widget) {
  adjustSize();
  const QRect available = widget.screen()->availableGeometry();
  const QPoint below = widget.mapToGlobal(QPoint(0, widget.height()));
  const int left =
      std::clamp(below.x(), available.left(), std::max(available.left(), available.right() - width()));
  const int top =
      std::clamp(below.y(), available.top(), std::max(available.top(), available.bottom() - height()));
  move(left, top);
  show();
}

// The arrows move by columns and rows.
bool ChapterChooser::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (KeyCode(key) == forms::kEnterKey) return qobject_cast<QPushButton*>(watched)->click(), true;
  const QPoint way = DirectionOf(key.key());
  if (way.isNull()) return false;
  const auto wanted = numbers_.indexOf(watched) + way.x() + kColumns * way.y();
  if (wanted >= 0 && wanted < numbers_.size()) numbers_[wanted]->setFocus(Qt::OtherFocusReason);
  return true;
}

void ChapterChooser::Pick(int chapter) {
  const auto pick = pick_;
  close();
  pick(chapter);
}

}  // namespace lectern::desktop
