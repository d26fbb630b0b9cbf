#include "ui/desktop/desk/desk_view.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <cassert>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/desk/chapter_chooser.h"
#include "ui/desktop/text/verse_page.h"

namespace lectern::desktop {

DeskView::DeskView(ui::Form1& form, WindowView& window)
    : form_(form), window_(window), go_to_(new GoToLine(&window.Face())), theme_(QApplication::palette()) {
  go_to_->read = [this](const QString& typed) { return form_.Desk().Read(typed.toStdString()); };
  go_to_->go = [this](const reader::Reference& place) { GoTo(place); };
  for (const char* control : {"rtxt", "lst", "lblc"}) Widget(control)->installEventFilter(this);
  Widget("lblc")->setCursor(Qt::PointingHandCursor);
  Widget("lblc")->setToolTip("Choose a chapter");
  ExplainVersions();
  AddMenu();
  AddToMenuOf(Page("rtxt"));
  window_.escaping = [this](const std::function<void()>& press) {
    Page("rtxt").KeepInSight();
    form_.Desk().KeepPlace(press);
  };
}

DeskView::~DeskView() { delete go_to_; }

void DeskView::Settle() {
  ui::ReadingDesk& desk = form_.Desk();
  both_versions_->setChecked(desk.ShowsBothVersions());
  if (desk.SecondPaneIsBehind()) {
    Do([&desk] { desk.ShowBothVersions(); });
    if (in_step_) in_step_->Align();
    return;
  }
  if (desk.ShowsBothVersions() && !in_step_) {
    in_step_.emplace(Page("rtxt"), Page("RTXT2"));
    AddToMenuOf(Page("RTXT2"));
  }
  if (in_step_) in_step_->TurnOn(desk.ShowsBothVersions());
}

QWidget* DeskView::Widget(const char* control) const {
  auto* const widget = window_.Frame()->findChild<QWidget*>(control);
  assert(widget != nullptr);
  return widget;
}

VersePage& DeskView::Page(const char* control) const {
  return dynamic_cast<VersePage&>(*form_.Find(control)->AttachedView());
}

void DeskView::Do(const std::function<void()>& act) { window_.GetEvents().Deliver(form_, act); }

bool DeskView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == Widget("lblc")) {
    const bool is_press = event->type() == QEvent::MouseButtonPress;
    if (is_press && static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton) ShowChapters();
    return false;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool is_typed = (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
  if (!is_typed || key.text().isEmpty()) return false;
  if (key.text() == "?") return ShowKeys(), true;
  if (!key.text()[0].isLetterOrNumber()) return false;
  OpenGoToLine(key.text());
  return true;
}

// Its entries stand between those of the program.
void DeskView::AddMenu() {
  auto* const menu = new QMenu("&View", window_.Frame());
  const auto add = [this, menu](const QString& text, const QList<QKeySequence>& keys, auto act) {
    QAction* const action = menu->addAction(text);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, act);
    return action;
  };
  const auto turn_chapter = [this](int step) {
    return [this, step] { Do([this, step] { form_.Desk().TurnChapter(step); }); };
  };
  const auto enlarge = [this](int steps) { return [this, steps] { window_.Enlarge(steps); }; };
  const auto change_panel = [this](int step) { return [this, step] { window_.ChangeBetweenPanels(step); }; };
  add("&Go to…", {Qt::CTRL | Qt::Key_L}, [this] { OpenGoToLine(""); });
  add("Choose a &Chapter…", {Qt::CTRL | Qt::Key_G}, [this] { ShowChapters(); });
  add("&Previous Chapter", {Qt::CTRL | Qt::Key_PageUp}, turn_chapter(-1));
  add("&Next Chapter", {Qt::CTRL | Qt::Key_PageDown}, turn_chapter(1));
  menu->addSeparator();
  both_versions_ = add("&Both Versions", {Qt::CTRL | Qt::Key_B}, [this] {
    Do([this] {
      ui::ReadingDesk& desk = form_.Desk();
      desk.ShowsBothVersions() ? desk.ShowOneVersion() : desk.ShowBothVersions();
    });
  });
  both_versions_->setCheckable(true);
  menu->addSeparator();
  add("&Larger Letters", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, enlarge(1));
  add("&Smaller Letters", {Qt::CTRL | Qt::Key_Minus}, enlarge(-1));
  add("Letters as S&et", {Qt::CTRL | Qt::Key_0}, enlarge(0));
  QAction* const dark = add("&Dark Page", {Qt::CTRL | Qt::Key_D}, [] {});
  dark->setCheckable(true);
  dark->setChecked(IsDark(theme_.color(QPalette::Base)));
  connect(dark, &QAction::toggled, this, [this](bool on) { TurnDark(on); });
  add("&Full Screen", {Qt::Key_F11}, [this] { window_.ChangeFullScreen(); });
  menu->addSeparator();
  add("Ne&xt Panel", {Qt::Key_F6}, change_panel(1));
  add("P&revious Panel", {Qt::SHIFT | Qt::Key_F6}, change_panel(-1));
  menu->addSeparator();
  add("&Keys", {Qt::CTRL | Qt::Key_Slash}, [this] { ShowKeys(); });

  for (QAction* action : window_.MenuBar()->actions()) {
    if (action->objectName() == "webb") window_.MenuBar()->insertMenu(action, menu);
  }
  if (auto* const help = window_.Frame()->findChild<QAction*>("xh2")) help->setShortcut(Qt::Key_F1);
}

void DeskView::AddToMenuOf(VersePage& page) {
  page.add_to_menu = [this](QMenu& menu, const QString& words) {
    constexpr qsizetype kLongest = 30;
    const QString shown = words.size() > kLongest ? words.left(kLongest) + "…" : words;
    const auto add = [this, &menu, &words](const QString& text, auto act) {
      connect(menu.addAction(text), &QAction::triggered, this, [this, act, sought = words.toStdString()] {
        Do([this, act, sought] { (form_.Desk().*act)(sought); });
      });
    };
    menu.addSeparator();
    add("&Search for “" + shown + "”", &ui::ReadingDesk::SearchFor);
    add("Look Up “" + shown + "” in the &Dictionary", &ui::ReadingDesk::LookUp);
    add("Show “" + shown + "” in the C&oncordance", &ui::ReadingDesk::OpenConcordanceAt);
  };
}

void DeskView::ExplainVersions() {
  for (const reader::Version& version : reader::kVersions) {
    QString text = QString::fromUtf8(version.name.data(), static_cast<qsizetype>(version.name.size()));
    const std::string edition = form_.Desk().TextOf(version);
    if (!edition.empty()) text += ". Its text: " + QString::fromStdString(edition);
    for (const char* control : {version.option, version.option_label}) {
      Widget(control)->setToolTip(text + ".\nA change of the version opens chapter 1.");
    }
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

void DeskView::ShowKeys() {
  if (keys_ == nullptr) keys_ = new KeySheet(window_.Frame());
  keys_->show();
  keys_->raise();
  keys_->activateWindow();
}

void DeskView::GoTo(const reader::Reference& place) {
  Widget("rtxt")->setFocus(Qt::OtherFocusReason);
  Do([this, place] {
    form_.Desk().GoTo(place);
    if (place.verse > 0) Page("rtxt").ShowVerse(place.verse);
  });
}

void DeskView::TurnDark(bool dark) {
  const bool is_dark = IsDark(theme_.color(QPalette::Base));
  QApplication::setPalette(dark == is_dark ? theme_ : OwnPalette(dark ? Shade::kDark : Shade::kLight));
}

}  // namespace lectern::desktop
