// What the desktop adds to the main window: the line for any place, the chapters to pick from, and the way
// back after a search. This folder alone knows what the controls of that window are for.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "ui/desktop/desk/go_to_line.h"
#include "ui/desktop/views/window_view.h"
#include "ui/form1.h"

namespace lectern::desktop {

class VersePage;

class DeskView : public QObject {
 public:
  // Both outlive this. Requires: the window has been shown.
  DeskView(ui::Form1& form, WindowView& window);
  ~DeskView() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddMenu();
  void OpenGoToLine(const QString& typed);
  void ShowChapters();
  void GoTo(const reader::Reference& place);

  // Runs `act` as one event of the main window.
  void Do(const std::function<void()>& act);

  QWidget* Widget(const char* control) const;
  VersePage& Page() const;

  ui::Form1& form_;
  WindowView& window_;
  QPointer<GoToLine> go_to_;  // owned by the window's face
};

}  // namespace lectern::desktop
