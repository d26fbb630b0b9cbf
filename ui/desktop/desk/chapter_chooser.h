// The chapters of the open book to pick from, as a popup of numbers.
#pragma once

#include <QFrame>
#include <QList>
#include <QPushButton>
#include <functional>

namespace lectern::desktop {

class ChapterChooser : public QFrame {
 public:
  // Deletes itself when it closes. Calls `pick` with the chapter that was chosen.
  ChapterChooser(QWidget* parent, int chapters, int open, std::function<void(int chapter)> pick);

  void OpenBelow(const QWidget& widget);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Pick(int chapter);

  std::function<void(int chapter)> pick_;
  QList<QPushButton*> numbers_;
};

}  // namespace lectern::desktop
