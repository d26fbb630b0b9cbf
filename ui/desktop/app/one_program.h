// That a data folder has one program at a time: a start on a folder that is open already lets the first
// program come forward and goes.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string>

#include "ui/desktop/app/folder_lock.h"

namespace lectern::desktop {

struct Arrival {
  bool is_ours = false;           // nobody else is there, and the lock is held
  std::optional<QString> answer;  // the name of the program that is there; none where it keeps silent
};

// Comes to the folder that is known by that path. The lock is put on `locked`, which differs while the folder
// is being made. A program that is just starting or ending is waited for; a few seconds at most.
Arrival ArriveAt(const std::string& folder, const std::string& locked, FolderLock& lock,
                 const QByteArray& leave);

// Tells the person that the program there keeps silent.
void TellOfSilence(const std::string& folder);

}  // namespace lectern::desktop
