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
#include "ui/desktop/app/doorbell.h"
#include "ui/desktop/app/icon.h"
#include "ui/desktop/app/one_program.h"

namespace lectern::desktop {

namespace fs = std::filesystem;

namespace {

QString Shown(const fs::path& path) { return QString::fromStdString(path.string()); }

QString Reason(const std::error_code& failure) { return QString::fromStdString(failure.message()); }

// The folder itself stays: a lock is on it.
std::error_code Empty(const fs::path& folder) {
  std::error_code failure;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure)) {
    std::error_code kept;
    fs::remove_all(entry.path(), kept);
    if (kept) failure = kept;
  }
  return failure;
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
    : folder_(std::move(folder)), unfinished_(folder_.string() + ".unfinished"), tool_(std::move(tool)) {
  constexpr int kWidth = 460;  // pixels
  setWindowTitle("Lectern 2");
  setWindowIcon(ProgramIcon());
  setMinimumWidth(kWidth);
  auto* const what = new QLabel(
      "<b>Welcome to Lectern.</b><br>Texts, pictures and word lists are being laid out in a folder of your "
      "own. This happens once and takes less than a minute.");
  what->setWordWrap(true);
  auto* const where = new QLabel(Shown(folder_));
  where->setTextInteractionFlags(Qt::TextSelectableByMouse);
  where->setWordWrap(true);
  step_.setText("Starting …");
  progress_.setRange(0, 0);
  progress_.setAccessibleName("Progress");
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  for (QWidget* part : {static_cast<QWidget*>(what), static_cast<QWidget*>(where),
                        static_cast<QWidget*>(&step_), static_cast<QWidget*>(&progress_)}) {
    column->addWidget(part);
  }
  column->addWidget(buttons);

  connect(&maker_, &QProcess::readyReadStandardOutput, this, [this] { ShowProgress(); });
  connect(&maker_, &QProcess::finished, this,
          [this](int status, QProcess::ExitStatus end) { Finish(status, end); });
  connect(&maker_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;  // any other one ends in `finished`
    obstacle_ = "The program lectern-make-data could not be started. Install Lectern again.";
    done(Rejected);
  });
  // A tool that went on after this window has gone would write into what a later start makes.
  maker_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

FirstStart::Outcome FirstStart::Run(const QByteArray& leave) {
  std::error_code failure;
  fs::create_directories(unfinished_, failure);
  if (failure) {
    QMessageBox::critical(
        nullptr, "Lectern 2",
        "The folder " + Shown(unfinished_) + " could not be made: " + Reason(failure) + ".");
    return Outcome::kNot;
  }
  const Arrival arrival = ArriveAt(folder_.string(), unfinished_.string(), lock_, leave);
  if (!arrival.is_ours) {
    if (arrival.answer) return Outcome::kElsewhere;
    TellOfSilence(folder_.string());
    return Outcome::kNot;
  }
  const Doorbell doorbell(folder_.string(), "preparation", [this] {
    QWidget* const box = QApplication::activeModalWidget();
    ComeForward(box != nullptr ? *box : *this);
  });
  bool is_there = HoldsTexts(folder_.string());  // made by another start a moment ago
  while (!is_there) {
    if (Make()) is_there = exec() == Accepted;
    maker_.kill();
    maker_.waitForFinished();
    if (!is_there && (obstacle_.isEmpty() || !TryAgain())) break;
  }
  // Once renamed, it is not here any more.
  Empty(unfinished_);
  fs::remove(unfinished_, failure);
  return is_there ? Outcome::kThere : Outcome::kNot;
}

// Begins; false where there is no sense in it.
bool FirstStart::Make() {
  obstacle_.clear();
  std::error_code failure;
  if (fs::exists(folder_, failure) && !fs::is_empty(folder_, failure)) {
    obstacle_ = "There is a folder " + Shown(folder_) +
                " that holds no texts, but other things. Move it away, or fill it with lectern-make-data.";
    return false;
  }
  Empty(unfinished_);
  maker_.start(QString::fromStdString(tool_), {Shown(unfinished_)});
  maker_.closeWriteChannel();
  return true;
}

// The tool says "12 % Dictionary …" as each step begins, and within a long one "40 %".
void FirstStart::ShowProgress() {
  static const QRegularExpression share("(\\d+) % ([^\\r\\n]*)");
  const QString told = QString::fromUtf8(maker_.readAllStandardOutput());
  constexpr int kAll = 100;
  progress_.setRange(0, kAll);
  for (auto shares = share.globalMatch(told); shares.hasNext();) {
    const QRegularExpressionMatch now = shares.next();
    progress_.setValue(now.captured(1).toInt());
    if (!now.captured(2).isEmpty()) step_.setText(now.captured(2));
  }
}

void FirstStart::Finish(int status, QProcess::ExitStatus end) {
  if (!isVisible()) return;  // given up
  if (end == QProcess::NormalExit && status == 0) {
    obstacle_ = PutInPlace();
  } else {
    obstacle_ = QString::fromUtf8(maker_.readAllStandardError()).trimmed();
    if (obstacle_.isEmpty()) obstacle_ = "The program lectern-make-data ended before it was done.";
  }
  done(obstacle_.isEmpty() ? Accepted : Rejected);
}

// What is wrong; nothing where the folder has its name now.
QString FirstStart::PutInPlace() {
  std::error_code failure;
  fs::rename(unfinished_, folder_, failure);
  if (!failure) return {};
  return "The folder " + Shown(folder_) + " could not be made: " + Reason(failure) + ".";
}

bool FirstStart::TryAgain() {
  QMessageBox box(QMessageBox::Critical, "Lectern 2", "Your texts could not be laid out.",
                  QMessageBox::Retry | QMessageBox::Close);
  box.setWindowIcon(ProgramIcon());
  box.setInformativeText(obstacle_);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  return box.exec() == QMessageBox::Retry;
}

}  // namespace lectern::desktop
