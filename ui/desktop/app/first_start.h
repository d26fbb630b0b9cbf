// The first start from the menu: makes the person's own data folder with `lectern-make-data`, shows its
// progress, and reports what went wrong if it fails.
//
// The folder is made under another name beside its own and renamed when it is complete, so that an existing
// folder is always complete. If the program is started several times at once, one start makes the folder and
// the others bring its window to the front.
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

// The path of a program of this installation. If it is not in this program's folder, the path is only its
// name, which the system searches for.
std::string ProgramPath(const std::string& name);

class FirstStart : public QDialog {
 public:
  // `tool` is the path of `lectern-make-data`.
  // Requires: there is a QApplication.
  FirstStart(std::string folder, std::string tool);

  enum class Outcome {
    kReady,
    kElsewhere,  // another start is making it; its window came to the front
    kFailed,     // it cannot be made, or the person gave up
  };

  // Makes the folder. `token` is the activation token of this start.
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
