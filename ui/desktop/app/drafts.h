// What a person has not saved yet: the text of the notes window and a painting.
//
// A draft of each is written to `backup` in the data folder a moment after every change, and once more when
// the program ends, so that it is there whatever ends the program. What is saved or given up has no draft any
// longer; the last version of it stays in `backup/backup`. When the window is next opened, the person is
// asked whether the draft is wanted back. The program itself knows nothing of drafts.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>

#include "base/files/file_system.h"
#include "base/platform.h"
#include "ui/desktop/app/events.h"
#include "ui/program.h"

namespace lectern::desktop {

class Drafts : public QObject {
 public:
  // All of them outlive the drafts.
  Drafts(ui::Program& program, files::FileSystem& files, base::Platform& platform, Events& events);

  // To be called after each event: offers what the last run left, and keeps what has changed.
  void Look();

  // Writes the drafts at once, as the program is about to end.
  void KeepNow();

  bool eventFilter(QObject* canvas, QEvent* event) override;  // notes that the person paints

 private:
  struct Draft {
    const char* name;  // in `backup`
    std::function<void()> put_back;
    std::string question;  // what the person is asked
    std::string kept{};    // what was written last
    bool is_there = false;
    bool is_offered = false;   // or there was nothing to offer
    bool is_answered = false;  // until then the file is that of the last run
  };

  std::string FileOf(const Draft& draft) const;
  void WatchCanvas();
  forms::Window* Shown(std::string_view window) const;
  void Offer(Draft& draft);
  void Keep(Draft& draft, const std::string& bytes);
  std::string UnsavedNote() const;
  std::string UnsavedPainting();
  bool IsSaved(const std::string& picture) const;
  void PutBackNote();
  void PutBackPainting();

  ui::Program& program_;
  files::FileSystem& files_;
  base::Platform& platform_;
  Events& events_;
  Draft note_;
  Draft painting_;
  bool is_painted_ = false;
  QPointer<QWidget> canvas_;
  QTimer soon_;
  qint64 took_ = 0;  // milliseconds, the last time
};

}  // namespace lectern::desktop
