#include "ui/desktop/menu_views.h"

#include <QAction>
#include <QMenu>

#include "ui/desktop/control_view.h"
#include "ui/desktop/theme.h"
#include "ui/desktop/window_view.h"

namespace lectern::desktop {

// An entry, with the list that it opens where it has one.
class MenuBarView::Entry : public LayerView {
 public:
  Entry(forms::Menu& menu, WindowView& view, QAction& action)
      : LayerView(view.GetEvents()), menu_(menu), view_(view), action_(action) {
    menu_.Attach(this);
    action_.setObjectName(ToQString(menu_.FullName()));
    if (!menu_.Shortcut().empty()) action_.setShortcut(QKeySequence(ToQString(menu_.Shortcut())));
    QObject::connect(&action_, &QAction::triggered, [this] { Chosen(); });
    Refresh();
  }
  ~Entry() override {
    if (!view_.IsAbandoned()) menu_.Attach(nullptr);
  }

  void Refresh() override {
    if (view_.IsAbandoned()) return;
    action_.setSeparator(menu_.Caption == "-");
    action_.setText(ToQString(menu_.Caption));
    action_.setEnabled(menu_.Enabled);
    action_.setVisible(menu_.Visible);
    if (menu_.Checked) action_.setCheckable(true);
    if (action_.isCheckable()) action_.setChecked(menu_.Checked);
  }

 private:
  void Chosen() {
    if (view_.IsAbandoned() || menu_.RefusesPerson() != forms::Refusal::kNone) return;
    Changed();  // Qt has turned the mark by itself
    GetEvents().Deliver(menu_.HostWindow(), [this] { menu_.PersonClicks(); });
  }

  forms::Menu& menu_;
  WindowView& view_;
  QAction& action_;
};

MenuBarView::MenuBarView(forms::Window& window, WindowView& view, QWidget& frame)
    : bar_(new QMenuBar(&frame)) {
  bar_->setNativeMenuBar(false);  // it belongs to the window, on every desktop
  AddEntries(window, view, *bar_);
}

MenuBarView::~MenuBarView() = default;

void MenuBarView::AddEntries(forms::Container& from, WindowView& view, QWidget& to) {
  for (forms::Control* child : from.Children()) {
    if (child->GetKind() != forms::Kind::kMenu) continue;
    auto& menu = static_cast<forms::Menu&>(*child);
    QAction* action = nullptr;
    if (menu.Children().empty()) {
      action = new QAction(&to);
    } else {
      auto* const list = new QMenu(&to);
      action = list->menuAction();
      AddEntries(menu, view, *list);
    }
    to.addAction(action);
    entries_.push_back(std::make_unique<Entry>(menu, view, *action));
  }
}

int MenuBarView::Place(int width) {
  if (const QFont font = OwnFont(); bar_->font() != font) bar_->setFont(font);
  const int height = bar_->heightForWidth(width);
  bar_->setGeometry(0, 0, width, height);
  return height;
}

void MenuBarView::OpenFirst() {
  const QList<QAction*> actions = bar_->actions();
  if (!actions.isEmpty()) bar_->setActiveAction(actions.first());
}

}  // namespace lectern::desktop
