// The first start from the menu: makes the person's own data folder with `lectern-make-data`, shows how far
// that is, and says what is wrong where it fails.
//
// The folder is made under another name beside its own and renamed when it is whole, so that a folder that is
// there is a good one, whatever happened while it was made. Starts at the same time are one: the second
// brings the window of the first forward.
#pragma once

#include <QByteArray>
#include <QDialog>
#include <QLabel>
#include <QProcess>
#include <QProgressBar>
#include <QString>
#include <filesystem>
#include <string>

#include "ui/desktop/app/folder_lock.h"

namespace lectern::desktop {

// Where the folder of the person who runs this lies.
std::string OwnFolder();

// Whether the program's texts are in the folder.
bool HoldsTexts(const std::string& folder);

// A program of this installation: beside this one where it lies there, else as the host finds it.
std::string ProgramPath(const std::string& name);

class FirstStart : public QDialog {
 public:
  // An application must stand. The tool is the path of `lectern-make-data`.
  FirstStart(std::string folder, std::string tool);

  enum class Outcome {
    kThere,
    kElsewhere,  // another start makes it, and has come forward
    kNot,        // it cannot be made, or the person gave up
  };

  // Stays until that is settled.
  Outcome Run(const QByteArray& leave);

 private:
  bool Make();
  void Finish(int status, QProcess::ExitStatus end);
  void ShowProgress();
  QString PutInPlace();
  bool TryAgain();

  const std::filesystem::path folder_;
  const std::filesystem::path unfinished_;  // the folder while it is being made
  const std::string tool_;
  FolderLock lock_;
  QProcess maker_;
  QString obstacle_;
  QLabel step_;
  QProgressBar progress_;
};

}  // namespace lectern::desktop
