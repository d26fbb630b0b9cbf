// The first start from the menu: makes the person's own data folder with `lectern-make-data`, shows its
// progress, and says what is wrong where it fails.
//
// The folder is made under another name beside its own and renamed when it is complete, so that a folder that
// exists is a good one, whatever happened meanwhile. Of several starts at the same time one makes it, and the
// others bring its window to the front.
#pragma once

#include <QByteArray>
#include <QDialog>
#include <QLabel>
#include <QProcess>
#include <QProgressBar>
#include <QString>
#include <filesystem>
#include <string>

#include "ui/desktop/app/one_program.h"

namespace lectern::desktop {

// The data folder of the person who runs this.
std::string OwnFolder();

// Whether the program's texts are in the folder.
bool HoldsTexts(const std::string& folder);

// The path of a program of this installation: in this program's folder where it is there, else searched as
// usual.
std::string ProgramPath(const std::string& name);

class FirstStart : public QDialog {
 public:
  // `tool` is the path of `lectern-make-data`.
  // Requires: there is a QApplication.
  FirstStart(std::string folder, std::string tool);

  enum class Outcome {
    kReady,
    kElsewhere,  // another start is making it, and came to the front
    kFailed,     // it cannot be made, or the person gave up
  };

  // Returns when that is settled.
  Outcome Run(const QByteArray& token);

 private:
  void BuildWindow();
  bool Begin();
  void End(int status, QProcess::ExitStatus end);
  void ShowProgress();
  void Fail(const QString& obstacle);
  bool OffersRetry();

  const std::filesystem::path folder_;
  const std::filesystem::path unfinished_;  // the folder while it is being made
  const std::string tool_;
  OneProgram one_program_;
  QProcess maker_;
  QString obstacle_;
  QLabel step_;
  QProgressBar progress_;
};

}  // namespace lectern::desktop
