#include "search/trivia.h"

#include "base/text/numbers.h"

namespace lectern::search {

namespace {

constexpr int kQuestions = 1;  // slot

}  // namespace

Trivia::Trivia(reader::Reader& the_reader, forms::PictureBox& Picture17, forms::PictureBox& picp,
               reader::ToolButtons& the_tools, forms::Menu& cc4)
    : reader_(the_reader), Picture17_(Picture17), picp_(picp), tools_(the_tools) {
  tools_.Command2.Click = [this] { Command2_Click(); };
  cc4.Click = [this] { cc4_Click(); };
  Command29.Click = [this] { Command29_Click(); };
  Command31.Click = [this] { Command31_Click(); };
  Command28.Click = [this] { Command28_Click(); };
}

std::string Trivia::DataFile() const { return reader_.DataFile("codex.trv"); }

void Trivia::ReadRecord(Record& record) {
  files::FileSlots& slots = reader_.form.Slots();
  record.question = slots.ReadField(kQuestions);
  record.answer = slots.ReadField(kQuestions);
}

// From -1 to one less than the number of records; a half goes to the even neighbour.
std::int16_t Trivia::Draw(int records) {
  return text::RoundToInteger(records * reader_.form.Platform().Random() - 1);
}

// Draws again while the number is in the history.
//
// ODDITY(trivia-repeats): the walk never looks at the oldest entry nor, once it has drawn again, at the one
// behind it, and a second number may hit one that the walk is past.
void Trivia::KeepFromRepeating(int records) {
  if (List3.ListCount() <= 1) {
    QuestionNumber = Draw(records);
    return;
  }
  int i = 1;
  for (; i < List3.ListCount(); ++i) {
    if (text::LeadingDigits(List3.List(i)) != QuestionNumber) continue;
    QuestionNumber = Draw(records);
    i = 1;
  }
  constexpr int kLongestHistory = 99;
  if (i > kLongestHistory) List3.RemoveItem(0);
}

void Trivia::AskQuestion() {
  files::FileSlots& slots = reader_.form.Slots();
  Record record;
  int records = 0;
  slots.OpenForReading(kQuestions, DataFile());
  for (; !slots.EndOfFile(kQuestions); ++records) ReadRecord(record);
  slots.Close(kQuestions);

  QuestionNumber = Draw(records);
  KeepFromRepeating(records);

  // ODDITY(trivia-last-question): the last record is never drawn by its own number. Number 0 reads nothing,
  // and what the count ended on is the last record.
  slots.OpenForReading(kQuestions, DataFile());
  // ODDITY(trivia-minus-one): number -1 is no place in the file. The walk to it ends in a failure, and the
  // file stays open, so that the next opening of its number fails too.
  for (int counter = 0; counter != QuestionNumber; ++counter) ReadRecord(record);
  slots.Close(kQuestions);

  Label25.Caption = record.question;
  List3.AddItem(std::to_string(QuestionNumber));
  Label26.Caption = "";
  Command29.MousePointer = forms::kPointerDefault;
  Command31.SetFocus();
}

void Trivia::Command29_Click() {
  reader_.form.Platform().SeedRandom();
  Command29.MousePointer = forms::kPointerHourglass;
  try {
    AskQuestion();
  } catch (const base::RunTimeError& error) {
    Command29.MousePointer = forms::kPointerDefault;
    reader_.ReportError(error);
  }
}

void Trivia::Command31_Click() {
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kQuestions, DataFile());
  bool found = false;
  while (!found && !slots.EndOfFile(kQuestions)) {
    Record record;
    ReadRecord(record);
    if (Label25.Caption != record.question) continue;
    Label26.Caption = record.answer;
    found = true;
  }
  slots.Close(kQuestions);
  Command29.SetFocus();
}

void Trivia::Command2_Click() {
  picp_.Visible = false;
  Picture17_.Visible = true;
  tools_.Disable();
}

void Trivia::cc4_Click() { Picture17_.Visible = true; }

void Trivia::Command28_Click() {
  Picture17_.Visible = false;
  tools_.Enable();
}

}  // namespace lectern::search
