#include "search/trivia.h"

#include "base/text/numbers.h"

namespace lectern::search {

namespace {

constexpr int kQuestions = 1;  // slot
constexpr std::string_view kFile = "codex.trv";

struct Record {
  std::string question;
  std::string answer;
};

// Reads into a record that the caller uses again for the next one.
void ReadRecord(files::FileSlots& slots, Record& record) {
  record.question = slots.ReadField(kQuestions);
  record.answer = slots.ReadField(kQuestions);
}

}  // namespace

Trivia::Trivia(reader::Reader& the_reader, forms::PictureBox& Picture17, forms::PictureBox& picp,
               reader::ToolButtons& the_tools, forms::Menu& cc4)
    : reader_(the_reader), Picture17_(Picture17), picp_(picp), tools_(the_tools) {
  tools_.Command2.Click = [this] {
    picp_.Visible = false;
    Picture17_.Visible = true;
    tools_.Disable();
  };
  cc4.Click = [this] { Picture17_.Visible = true; };
  Command29.Click = [this] { Command29_Click(); };
  Command31.Click = [this] { Command31_Click(); };
  Command28.Click = [this] {
    Picture17_.Visible = false;
    tools_.Enable();
  };
}

// From -1 to one less than the number of records; a half is rounded to the even neighbour.
std::int16_t Trivia::Draw(int records) {
  return text::RoundToInteger(records * reader_.form.Platform().Random() - 1);
}

// Draws again while the number is in the history.
//
// ODDITY(trivia-repeats): the loop never checks the oldest entry nor, after another draw, the one after it.
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
  slots.OpenForReading(kQuestions, reader_.DataFile(kFile));
  for (; !slots.EndOfFile(kQuestions); ++records) ReadRecord(slots, record);
  slots.Close(kQuestions);

  QuestionNumber = Draw(records);
  KeepFromRepeating(records);

  // ODDITY(trivia-last-question): no draw reaches the last record's own number. Number 0 reads nothing and
  // keeps the record that was counted last.
  slots.OpenForReading(kQuestions, reader_.DataFile(kFile));
  // ODDITY(trivia-minus-one): for number -1 the loop fails at the end of the file. The file stays open, so
  // the next opening of its slot fails too.
  for (int counter = 0; counter != QuestionNumber; ++counter) ReadRecord(slots, record);
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
  slots.OpenForReading(kQuestions, reader_.DataFile(kFile));
  Record record;
  while (!slots.EndOfFile(kQuestions)) {
    ReadRecord(slots, record);
    if (Label25.Caption != record.question) continue;
    Label26.Caption = record.answer;
    break;
  }
  slots.Close(kQuestions);
  Command29.SetFocus();
}

}  // namespace lectern::search
