#include "ui/desktop/desk/desk_view.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <cassert>

#include "ui/desktop/desk/chapter_chooser.h"
#include "ui/desktop/text/verse_page.h"

namespace lectern::desktop {

DeskView::DeskView(ui::Form1& form, WindowView& window)
    : form_(form), window_(window), go_to_(new GoToLine(&window.Face())) {
  go_to_->read = [this](const QString& typed) { return form_.Desk().Read(typed.toStdString()); };
  go_to_->go = [this](const reader::Reference& place) { GoTo(place); };
  for (const char* control : {"rtxt", "lst", "lblc"}) Widget(control)->installEventFilter(this);
  Widget("lblc")->setCursor(Qt::PointingHandCursor);
  Widget("lblc")->setToolTip("Choose a chapter");
  AddMenu();
  window_.escaping = [this](const std::function<void()>& press) {
    Page().KeepInSight();
    form_.Desk().KeepPlace(press);
  };
}

DeskView::~DeskView() { delete go_to_; }

QWidget* DeskView::Widget(const char* control) const {
  auto* const widget = window_.Frame()->findChild<QWidget*>(control);
  assert(widget != nullptr);
  return widget;
}

VersePage& DeskView::Page() const { return dynamic_cast<VersePage&>(*form_.Find("rtxt")->AttachedView()); }

void DeskView::Do(const std::function<void()>& act) { window_.GetEvents().Deliver(form_, act); }

bool DeskView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && watched == Widget("lblc")) {
    if (static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton) ShowChapters();
  }
  if (event->type() != QEvent::KeyPress || watched == Widget("lblc")) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool is_typed = (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
  if (!is_typed || key.text().isEmpty() || !key.text()[0].isLetterOrNumber()) return false;
  OpenGoToLine(key.text());
  return true;
}

// Its entries stand between those of the program.
void DeskView::AddMenu() {
  auto* const menu = new QMenu("&View", window_.Frame());
  const auto add = [this, menu](const QString& text, const QKeySequence& key, auto act) {
    connect(menu->addAction(text, key), &QAction::triggered, this, act);
  };
  add("&Go to…", Qt::CTRL | Qt::Key_L, [this] { OpenGoToLine(""); });
  add("Choose a &Chapter…", Qt::CTRL | Qt::Key_G, [this] { ShowChapters(); });
  QMenuBar* const bar = window_.MenuBar();
  for (QAction* action : bar->actions()) {
    if (action->objectName() == "webb") bar->insertMenu(action, menu);
  }
}

void DeskView::OpenGoToLine(const QString& typed) {
  if (!window_.GetEvents().AtWork()) go_to_->Open(Widget("rtxt")->geometry(), typed);
}

void DeskView::ShowChapters() {
  const int chapters = form_.Desk().ChapterCount();
  if (chapters == 0 || window_.GetEvents().AtWork()) return;
  auto* const chooser = new ChapterChooser(
      window_.Frame(), chapters, form_.Desk().OpenChapter(),
      [this](int chapter) { Do([this, chapter] { form_.Desk().OpenChapterOfBook(chapter); }); });
  chooser->OpenBelow(*Widget("lblc"));
}

void DeskView::GoTo(const reader::Reference& place) {
  Widget("rtxt")->setFocus(Qt::OtherFocusReason);
  Do([this, place] {
    form_.Desk().GoTo(place);
    if (place.verse > 0) Page().ShowVerse(place.verse);
  });
}

}  // namespace lectern::desktop
