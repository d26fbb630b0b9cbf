#include "ui/desktop/app/drafts.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "base/errors.h"
#include "forms/figures.h"
#include "forms/lists.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"

namespace lectern::desktop {

namespace {

namespace fs = std::filesystem;

// What the two windows and their controls are called.
constexpr std::string_view kNotes = "Form3";
constexpr std::string_view kPaint = "Form4";
constexpr std::string_view kAltered = "c";  // what lblc holds while the text is not saved
constexpr std::string_view kEnding = ".not";

template <class Kind>
Kind& In(const forms::Window& window, std::string_view name, int index = -1) {
  return dynamic_cast<Kind&>(*window.Find(name, index));
}

}  // namespace

Drafts::Drafts(ui::Program& program, files::FileSystem& files, base::Platform& platform, Events& events)
    : program_(program),
      files_(files),
      platform_(platform),
      events_(events),
      note_{"unsaved-note.txt", [this] { PutBackNote(); },
            "Lectern ended before your note was saved. Do you want the text back?"},
      painting_{"unsaved-painting.bmp", [this] { PutBackPainting(); },
                "Lectern ended before your painting was saved. Do you want it back?"} {
  soon_.setSingleShot(true);
  QObject::connect(&soon_, &QTimer::timeout, [this] { KeepNow(); });
}

forms::Window* Drafts::Shown(std::string_view window) const {
  const auto& all = program_.windows.All();
  const auto found = std::find_if(all.begin(), all.end(), [&](const forms::Window* one) {
    return one->Name() == window && one->Visible;
  });
  return found == all.end() ? nullptr : *found;
}

void Drafts::Look() {
  constexpr qint64 kMoment = 1000;  // milliseconds
  constexpr qint64 kPatience = 30;  // so many times as long as it takes, for a large canvas
  if (Shown(kNotes) != nullptr) Offer(note_);
  if (Shown(kPaint) != nullptr) {
    Offer(painting_);
    WatchCanvas();
  }
  if (!note_.is_answered && !painting_.is_answered) return;
  if (!soon_.isActive()) soon_.start(std::chrono::milliseconds(std::max(kMoment, kPatience * took_)));
}

void Drafts::WatchCanvas() {
  for (QWidget* const frame : QApplication::topLevelWidgets()) {
    if (canvas_ != nullptr) return;
    canvas_ = frame->findChild<QWidget*>("Form4.picbox");
    if (canvas_ != nullptr) canvas_->installEventFilter(this);
  }
}

bool Drafts::eventFilter(QObject* canvas, QEvent* event) {
  const bool is_key = event->type() == QEvent::KeyPress;
  if (event->type() == QEvent::MouseButtonPress ||
      (is_key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space)) {
    is_painted_ = true;
  }
  return QObject::eventFilter(canvas, event);
}

// Where something else is called `backup`, versions are kept in this other folder too.
std::string Drafts::FileOf(const Draft& draft) const {
  std::error_code failure;
  const fs::file_status status = fs::symlink_status(files_.StartFolder() + "/backup", failure);
  const bool is_free = !fs::exists(status) || fs::is_directory(status);
  return std::string(is_free ? "backup/" : "lectern-backup/") + draft.name;
}

void Drafts::Offer(Draft& draft) {
  if (std::exchange(draft.is_offered, true)) return;
  draft.is_there = files_.FileExists(FileOf(draft));
  draft.is_answered = !draft.is_there;
  if (draft.is_answered) return;
  events_.RunLater([this, &draft] {
    if (program_.HasEnded()) return;
    const bool is_wanted = platform_.Question(draft.question, base::kProgramName);
    const base::Ignoring ignore;
    if (is_wanted) ignore([&] { draft.put_back(); });
    draft.is_answered = true;
    if (!is_wanted) Keep(draft, "");
  });
}

void Drafts::KeepNow() {
  QElapsedTimer taken;
  taken.start();
  if (note_.is_answered) Keep(note_, UnsavedNote());
  if (painting_.is_answered) Keep(painting_, UnsavedPainting());
  took_ = taken.elapsed();
}

// Where it cannot be written, nothing is said: the person has not asked for it.
void Drafts::Keep(Draft& draft, const std::string& bytes) {
  if (bytes.empty() ? !draft.is_there : bytes == draft.kept) return;
  const std::string file = FileOf(draft);
  const base::Ignoring ignore;
  ignore([&] {
    if (bytes.empty()) {
      draft.is_there = false;
      files_.DeleteKeepingBackup(file);
    } else {
      std::error_code failure;
      fs::create_directory(fs::path(files_.StartFolder() + "/" + file).parent_path(), failure);
      files_.Replace(file, bytes, files::Lasting::kYes);
      draft.is_there = true;
    }
  });
  draft.kept = bytes;
}

// The name of the note in the first line, then its text.
std::string Drafts::UnsavedNote() const {
  for (const forms::Window* window : program_.windows.All()) {
    if (window->Name() != kNotes || In<forms::Label>(*window, "lblc").Caption != std::string(kAltered))
      continue;
    const std::string& text = In<forms::RichTextBox>(*window, "txthelp").Text;
    return text.empty() ? "" : In<forms::Label>(*window, "lblname").Caption + "\r\n" + text;
  }
  return "";
}

// What was painted since the window was opened, until it is closed or the painting is saved.
std::string Drafts::UnsavedPainting() {
  const forms::Window* const window = Shown(kPaint);
  if (window == nullptr) is_painted_ = false;
  if (!is_painted_) return "";
  std::string bytes = forms::BmpBytes(In<forms::PictureBox>(*window, "picbox").Shown());
  if (!IsSaved(bytes)) return bytes;
  is_painted_ = false;
  return "";
}

bool Drafts::IsSaved(const std::string& picture) const {
  std::error_code failure;
  for (const fs::directory_entry& entry : fs::directory_iterator(files_.StartFolder() + "/pics", failure)) {
    if (!entry.is_regular_file(failure) || entry.file_size(failure) != picture.size()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    if (std::equal(std::istreambuf_iterator<char>(file), {}, picture.begin(), picture.end())) return true;
  }
  return false;
}

// Opens the note that the text belongs to, if it is in the list, and types the text into it.
void Drafts::PutBackNote() {
  forms::Window* const window = Shown(kNotes);
  if (window == nullptr) return;
  files::Contents contents;
  files_.Read(FileOf(note_), contents);
  const std::string_view bytes = contents.Bytes();
  const std::size_t line_end = std::min(bytes.find("\r\n"), bytes.size());
  const std::string name = std::string(bytes.substr(0, line_end)).append(kEnding);
  auto& notes = In<forms::FileListBox>(*window, "File1");
  for (int i = 0; i < notes.ListCount(); ++i) {
    if (notes.List(i) == name) program_.Deliver(*window, [&notes, i] { notes.PersonPicks(i); });
  }
  program_.Deliver(*window, [window] { In<forms::Control>(*window, "Command3").PersonClicks(); });
  const std::string text(bytes.substr(std::min(line_end + 2, bytes.size())));
  program_.Deliver(*window, [&] { In<forms::RichTextBox>(*window, "txthelp").PersonTypes(text); });
}

// Puts it among the saved states, where a click brings it onto the canvas.
void Drafts::PutBackPainting() {
  constexpr int kOldest = 1;
  forms::Window* const window = Shown(kPaint);
  if (window == nullptr) return;
  const forms::Picture picture = window->LoadPicture(FileOf(painting_));
  auto& state = In<forms::Image>(*window, "IMGSPB", kOldest);
  program_.Deliver(*window, [&] {
    state.Picture = picture;
    state.PersonClicks();
  });
  is_painted_ = true;
}

}  // namespace lectern::desktop
