#include "ui/desktop/app/folder_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace lectern::desktop {

FolderLock::Outcome FolderLock::Take(const std::string& folder) {
  LetGo();
  descriptor_ = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor_ < 0) return Outcome::kUnknown;
  if (::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return Outcome::kOurs;
  const bool is_held = errno == EWOULDBLOCK;
  LetGo();
  return is_held ? Outcome::kOthers : Outcome::kUnknown;
}

void FolderLock::LetGo() {
  if (descriptor_ >= 0) ::close(descriptor_);
  descriptor_ = -1;
}

}  // namespace lectern::desktop
