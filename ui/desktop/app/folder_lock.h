// A folder is for one program at a time: what it writes would be lost under what another one writes. The lock
// is the host's, on the folder itself. So no file appears in it, the lock goes along when the folder is
// renamed, and it ends with the process however that ends: none stays behind after a crash.
#pragma once

#include <string>

namespace lectern::desktop {

class FolderLock {
 public:
  enum class Outcome {
    kOurs,
    kOthers,
    kUnknown,  // the folder lies where the host keeps no locks
  };

  FolderLock() = default;
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  ~FolderLock() { LetGo(); }

  // Lets go of the folder that was held before. Does not wait.
  Outcome Take(const std::string& folder);
  void LetGo();

 private:
  int descriptor_ = -1;
};

}  // namespace lectern::desktop
