// A data folder that goes away again.
#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <string>

namespace lectern::desktop {

class TemporaryFolder {
 public:
  // With a few short books.
  std::string WithSmallBooks() const {
    std::filesystem::copy(LECTERN_SMALL_BOOKS, folder_.path().toStdString(),
                          std::filesystem::copy_options::recursive);
    return folder_.path().toStdString();
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace lectern::desktop
