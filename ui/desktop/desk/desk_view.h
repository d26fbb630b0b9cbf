// What the desktop adds to the main window: the menu "View", the line for any place, the chapters to pick
// from, both versions in step, what can be done with a word, and the way back after a search. This folder
// alone knows what the controls of that window are for.
#pragma once

#include <QMenu>
#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "ui/desktop/desk/go_to_line.h"
#include "ui/desktop/desk/in_step.h"
#include "ui/desktop/desk/key_sheet.h"
#include "ui/desktop/views/window_view.h"
#include "ui/form1.h"

namespace lectern::desktop {

class DeskView : public QObject {
 public:
  // Both outlive this. Requires: the window has been shown.
  DeskView(ui::Form1& form, WindowView& window);
  ~DeskView() override;

  // After an event: the second pane follows the chapter.
  void Settle();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddMenu();
  void AddToMenuOf(VersePage& page);
  void ExplainVersions();

  void OpenGoToLine(const QString& typed);
  void ShowChapters();
  void ShowKeys();
  void GoTo(const reader::Reference& place);
  void TurnDark(bool dark);

  // Runs `act` as one event of the main window.
  void Do(const std::function<void()>& act);

  QWidget* Widget(const char* control) const;
  VersePage& Page(const char* control) const;

  ui::Form1& form_;
  WindowView& window_;
  QPointer<GoToLine> go_to_;  // owned by the window's face
  QPointer<KeySheet> keys_;   // owned by the frame
  QAction* both_versions_ = nullptr;
  QPalette theme_;                 // the desktop's own
  std::optional<InStep> in_step_;  // from the first opening of the second pane on
};

}  // namespace lectern::desktop
