#include "ui/desktop/app/first_start.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <signal.h>
#include <sys/prctl.h>
#include <system_error>
#include <utility>

#include "base/files/file_system.h"
#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

namespace fs = std::filesystem;

namespace {

QString PathText(const fs::path& path) { return QString::fromStdString(path.string()); }

QString CannotMake(const fs::path& folder, const std::error_code& failure) {
  return "Cannot make the folder " + PathText(folder) + ": " + QString::fromStdString(failure.message()) +
         ".";
}

// Keeps the folder itself and the file in it that is locked.
void RemoveContents(const fs::path& folder) {
  std::error_code failure;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure)) {
    if (entry.path().filename() != OneProgram::kLockFile) fs::remove_all(entry.path(), failure);
  }
}

}  // namespace

std::string OwnFolder() {
  return (QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/lectern").toStdString();
}

bool HoldsTexts(const std::string& folder) { return files::FileSystem(folder).FileExists("bookschap.txt"); }

std::string ProgramPath(const std::string& name) {
  std::error_code failure;
  const fs::path beside = fs::read_symlink("/proc/self/exe", failure).replace_filename(name);
  return !failure && fs::exists(beside, failure) ? beside.string() : name;
}

FirstStart::FirstStart(std::string folder, std::string tool)
    : folder_(folder),
      unfinished_(folder + ".unfinished"),
      tool_(std::move(tool)),
      one_program_(std::move(folder), "preparation") {
  BuildWindow();
  connect(&maker_, &QProcess::readyReadStandardOutput, this, [this] { ShowProgress(); });
  connect(&maker_, &QProcess::finished, this,
          [this](int status, QProcess::ExitStatus end) { End(status, end); });
  connect(&maker_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;  // after any other error, `finished` follows
    Fail("The program lectern-make-data does not start. Install Lectern again.");
  });
  // A tool that outlives this program would write into the folder that a later start makes.
  maker_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

void FirstStart::BuildWindow() {
  constexpr int kWidth = 460;  // pixels
  setWindowTitle("Lectern 2");
  setWindowIcon(ProgramIcon());
  setMinimumWidth(kWidth);
  auto* const what = new QLabel(
      "<b>Welcome to Lectern.</b><br>Texts, pictures and word lists are being copied into a folder of your "
      "own. This happens once and takes less than a minute.");
  what->setWordWrap(true);
  auto* const where = new QLabel(PathText(folder_));
  where->setTextInteractionFlags(Qt::TextSelectableByMouse);
  where->setWordWrap(true);
  step_.setText("Starting …");
  progress_.setRange(0, 0);
  progress_.setAccessibleName("Progress");
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  for (QWidget* part : std::initializer_list<QWidget*>{what, where, &step_, &progress_, buttons}) {
    column->addWidget(part);
  }
}

FirstStart::Outcome FirstStart::Run(const QByteArray& token) {
  std::error_code failure;
  fs::create_directories(unfinished_, failure);
  if (failure) {
    QMessageBox::critical(nullptr, "Lectern 2", CannotMake(unfinished_, failure));
    return Outcome::kFailed;
  }
  switch (one_program_.Claim(unfinished_.string(), token)) {
    case OneProgram::Outcome::kAnswered:
      return Outcome::kElsewhere;
    case OneProgram::Outcome::kSilent:
      return Outcome::kFailed;
    case OneProgram::Outcome::kOurs:
      break;
  }
  one_program_.Listen([this] {
    QWidget* const box = QApplication::activeModalWidget();
    BringToFront(box != nullptr ? *box : *this);
  });
  bool is_ready = HoldsTexts(folder_.string());  // made by another start a moment ago
  while (!is_ready) {
    if (Begin()) is_ready = exec() == Accepted;
    maker_.kill();
    maker_.waitForFinished();
    if (!is_ready && (obstacle_.isEmpty() || !OffersRetry())) break;
  }
  // If the folder was renamed, this finds nothing.
  fs::remove_all(unfinished_, failure);
  return is_ready ? Outcome::kReady : Outcome::kFailed;
}

// Starts the tool. Returns false if the folder cannot be made.
bool FirstStart::Begin() {
  obstacle_.clear();
  std::error_code failure;
  if (fs::exists(folder_, failure) && !fs::is_empty(folder_, failure)) {
    obstacle_ = "The folder " + PathText(folder_) +
                " contains other files but no texts. Move it away, or fill it with lectern-make-data.";
    return false;
  }
  RemoveContents(unfinished_);
  maker_.start(QString::fromStdString(tool_), {PathText(unfinished_)});
  maker_.closeWriteChannel();
  return true;
}

// The tool writes "12 % Dictionary …" as each step begins, and "40 %" within a long one.
void FirstStart::ShowProgress() {
  static const QRegularExpression share("(\\d+) % ([^\\r\\n]*)");
  const QString output = QString::fromUtf8(maker_.readAllStandardOutput());
  constexpr int kAll = 100;
  progress_.setRange(0, kAll);
  for (auto shares = share.globalMatch(output); shares.hasNext();) {
    const QRegularExpressionMatch now = shares.next();
    progress_.setValue(now.captured(1).toInt());
    if (!now.captured(2).isEmpty()) step_.setText(now.captured(2));
  }
}

void FirstStart::End(int status, QProcess::ExitStatus end) {
  if (!isVisible()) return;  // the person gave up
  if (end != QProcess::NormalExit || status != 0) {
    const QString complaint = QString::fromUtf8(maker_.readAllStandardError()).trimmed();
    return Fail(complaint.isEmpty() ? "The program lectern-make-data stopped before it was done."
                                    : complaint);
  }
  std::error_code failure;
  fs::rename(unfinished_, folder_, failure);
  if (failure) return Fail(CannotMake(folder_, failure));
  done(Accepted);
}

void FirstStart::Fail(const QString& obstacle) {
  obstacle_ = obstacle;
  done(Rejected);
}

// Reports the obstacle. Returns whether the person wants to try again.
bool FirstStart::OffersRetry() {
  QMessageBox box(QMessageBox::Critical, "Lectern 2", "Cannot prepare the texts.",
                  QMessageBox::Retry | QMessageBox::Close);
  box.setWindowIcon(ProgramIcon());
  box.setInformativeText(obstacle_);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  return box.exec() == QMessageBox::Retry;
}

}  // namespace lectern::desktop
