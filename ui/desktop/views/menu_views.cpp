#include "ui/desktop/views/menu_views.h"

#include <QAction>
#include <QMenu>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/control_view.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

// The access keys in one menu. An entry whose caption marks none gets a free letter, from the beginning of a
// word if possible.
class MenuBarView::Letters {
 public:
  explicit Letters(const std::vector<forms::Menu*>& entries) {
    for (const forms::Menu* entry : entries) taken_.push_back(AccessKey(entry->Caption));
  }

  // Returns null for an entry that marks a letter itself, and if no letter is free.
  QChar For(const forms::Menu& entry) {
    if (AccessKey(entry.Caption) != 0) return {};
    const QString caption = ToQString(entry.Caption);
    for (const bool only_beginnings : {true, false}) {
      for (qsizetype i = 0; i < caption.size(); ++i) {
        const bool begins = i == 0 || !caption[i - 1].isLetter();
        const int key = caption[i].toUpper().unicode();
        if (!caption[i].isLetter() || begins != only_beginnings || taken_.contains(key)) continue;
        taken_.push_back(key);
        return caption[i];
      }
    }
    return {};
  }

 private:
  QList<int> taken_;
};

// An entry or a submenu.
class MenuBarView::Entry : public LayerView {
 public:
  Entry(forms::Menu& menu, WindowView& view, QAction& action, QChar letter)
      : LayerView(view.GetEvents()), menu_(menu), action_(action), letter_(letter) {
    menu_.Attach(this);
    action_.setObjectName(ToQString(menu_.FullName()));
    if (!menu_.Shortcut().empty()) action_.setShortcut(QKeySequence(ToQString(menu_.Shortcut())));
    QObject::connect(&action_, &QAction::triggered, [this] {
      if (menu_.RefusesPerson() != forms::Refusal::kNone) return;
      Changed();  // Qt has toggled the check mark by itself
      GetEvents().Deliver(menu_.HostWindow(), [this] { menu_.PersonClicks(); });
    });
    Refresh();
  }
  ~Entry() override { menu_.Attach(nullptr); }

  void Refresh() override {
    const bool is_line = menu_.Caption == "-";
    action_.setSeparator(is_line);
    action_.setText(is_line ? QString() : Marked(ToQString(menu_.Caption)));
    action_.setEnabled(menu_.Enabled);
    action_.setVisible(menu_.Visible);
    if (menu_.Checked) action_.setCheckable(true);
    if (action_.isCheckable()) action_.setChecked(menu_.Checked);
  }

 private:
  QString Marked(QString caption) const {
    const qsizetype at = letter_.isNull() ? -1 : caption.indexOf(letter_);
    return at < 0 ? caption : caption.insert(at, u'&');
  }

  forms::Menu& menu_;
  QAction& action_;
  const QChar letter_;
};

MenuBarView::MenuBarView(forms::Window& window, WindowView& view, QWidget& frame)
    : bar_(new QMenuBar(&frame)) {
  bar_->setNativeMenuBar(false);  // it is part of the window on every desktop
  AddEntries(window, view, *bar_);
}

MenuBarView::~MenuBarView() = default;

void MenuBarView::AddEntries(forms::Container& from, WindowView& view, QWidget& to) {
  std::vector<forms::Menu*> menus;
  for (forms::Control* child : from.Children()) {
    if (child->GetKind() == forms::Kind::kMenu) menus.push_back(static_cast<forms::Menu*>(child));
  }
  Letters letters(menus);
  for (forms::Menu* menu : menus) {
    auto* const submenu = menu->Children().empty() ? nullptr : new QMenu(&to);
    if (submenu != nullptr) AddEntries(*menu, view, *submenu);
    QAction* const action = submenu == nullptr ? new QAction(&to) : submenu->menuAction();
    to.addAction(action);
    entries_.push_back(std::make_unique<Entry>(*menu, view, *action, letters.For(*menu)));
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
