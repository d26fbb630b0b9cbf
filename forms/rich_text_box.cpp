#include "forms/rich_text_box.h"

#include <algorithm>
#include <utility>

#include "base/errors.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "forms/window.h"

namespace lectern::forms {

namespace {

void RefuseNegative(int value) {
  if (value < 0) throw base::RunTimeError(base::ErrorNumber::kInvalidProperty);
}

// Whether `sought` (in lower case) begins at the byte, without regard to case.
bool StandsAt(std::string_view text, std::size_t byte, std::string_view sought) {
  for (std::size_t at = 0; at < sought.size();) {
    if (byte >= text.size()) return false;
    if (text::LowerCharacter(text::NextCharacter(text, byte)) != text::NextCharacter(sought, at))
      return false;
  }
  return true;
}

}  // namespace

RichTextBox::RichTextBox(Container& parent, std::string name, const Design& design)
    : TextControl(parent, Kind::kRichTextBox, std::move(name), design),
      Text(*this, "Text", std::string(design.text), {.change = [this] { TextWritten(); }}),
      SelStart(*this, "SelStart", 0,
               {.refuse = RefuseNegative,
                .change =
                    [this] {
                      SelLength = 0;
                      PutSelectionInside();
                    }}),
      SelLength(*this, "SelLength", 0,
                {.refuse = RefuseNegative, .change = [this] { PutSelectionInside(); }}),
      SelText(
          *this, "SelText",
          [this] {
            return std::string(text::Mid(Text(), static_cast<std::size_t>(SelStart()) + 1,
                                         static_cast<std::size_t>(SelLength())));
          },
          [this](const std::string& text) {
            Replace(static_cast<std::size_t>(SelStart()), static_cast<std::size_t>(SelLength()), text);
            ++text_generation_;
            SelStart = SelStart + static_cast<int>(text::Length(text));
          }),
      SelColor(
          *this, "SelColor",
          [this] { return runs_.At(static_cast<std::size_t>(SelStart())).colour.value_or(ForeColor()); },
          [this](const Colour& colour) {
            ColourPlaces({static_cast<std::size_t>(SelStart())}, static_cast<std::size_t>(SelLength()),
                         colour);
          }),
      read_only_(design.read_only) {
  BackColor = kWindowBackground;
  ForeColor = kWindowText;
  is_ascii_ = text::IsAscii(Text());
}

// Writing the whole text removes all runs and the selection.
void RichTextBox::TextWritten() {
  length_.reset();
  reached_ = {};
  if (!std::exchange(editing_, false)) {
    runs_.Clear();
    is_ascii_ = text::IsAscii(Text());
    ++text_generation_;
    PutSelectionInside();
  }
  Change();
}

void RichTextBox::PutSelectionInside() {
  // A text has at least a quarter as many characters as bytes; only near its end do they have to be counted.
  const std::size_t end = static_cast<std::size_t>(SelStart()) + static_cast<std::size_t>(SelLength());
  if (end <= Text->size() / 4) return;
  const auto length = static_cast<int>(LengthInCharacters());
  if (SelStart > length) SelStart = length;
  if (SelLength > length - SelStart) SelLength = length - SelStart;
}

std::size_t RichTextBox::LengthInCharacters() {
  if (is_ascii_) return Text->size();
  if (!length_) length_ = text::Length(Text());
  return *length_;
}

std::size_t RichTextBox::ByteOf(std::size_t position) {
  if (is_ascii_) return std::min(position, Text->size());
  if (position < reached_.position) reached_ = {};
  while (reached_.position < position && reached_.byte < Text->size()) {
    text::NextCharacter(Text(), reached_.byte);
    ++reached_.position;
  }
  return reached_.byte;
}

void RichTextBox::LoadFile(std::string_view path) {
  files::Contents contents;
  HostWindow().Files().Read(path, contents);
  LoadBytes(contents.Bytes());
}

void RichTextBox::LoadBytes(std::string_view bytes) {
  Show(LooksLikeRtf(bytes) ? ReadRtf(bytes) : RichText{WithCrLf(files::Decode(bytes)), {}});
}

void RichTextBox::Show(RichText content) {
  SelStart = 0;
  SelLength = 0;
  Text.EditInPlace([&](std::string& text) {
    text = std::move(content.text);
    editing_ = true;
    runs_ = std::move(content.runs);
    is_ascii_ = text::IsAscii(text);
    ++text_generation_;
    ++style_generation_;
  });
}

int RichTextBox::Find(std::string_view sought, int start, int options) {
  const std::string lower = text::Lower(sought);
  if (lower.empty() || start < 0) return -1;
  const std::string_view text = Text();
  const char32_t first = static_cast<unsigned char>(lower[0]);
  int position = start;
  std::size_t byte = ByteOf(static_cast<std::size_t>(start));
  for (; byte + lower.size() <= text.size(); ++position) {
    const bool may_be =
        first >= 0x80 || text::LowerCharacter(static_cast<unsigned char>(text[byte])) == first;
    if (may_be && StandsAt(text, byte, lower)) {
      reached_ = {static_cast<std::size_t>(position), byte};
      if ((options & kFindNoHighlight) == 0) {
        SelStart = position;
        SelLength = static_cast<int>(text::Length(sought));
      }
      return position;
    }
    if (static_cast<unsigned char>(text[byte]) < 0x80) {
      ++byte;
    } else {
      text::NextCharacter(text, byte);
    }
  }
  return -1;
}

void RichTextBox::ColourPlaces(const std::vector<std::size_t>& starts, std::size_t length, Colour colour) {
  runs_.SetColour(starts, length, colour);
  ++style_generation_;
  TellView();
}

void RichTextBox::Replace(std::size_t start, std::size_t removed, std::string_view inserted) {
  editing_ = true;
  Text.EditInPlace([&](std::string& text) {
    const std::size_t from = is_ascii_ ? std::min(start, text.size()) : text::ByteOf(text, start + 1);
    const std::size_t length =
        is_ascii_ ? removed : text::ByteOf(std::string_view(text).substr(from), removed + 1);
    text.replace(from, length, inserted);
    is_ascii_ = is_ascii_ && text::IsAscii(inserted);
    runs_.Edited(start, removed, text::Length(inserted));
  });
}

void RichTextBox::PersonEdits(std::size_t start, std::size_t removed, std::string_view inserted) {
  if (!read_only_) Replace(start, removed, WithCrLf(inserted));
}

void RichTextBox::PersonTypes(const std::string& text) {
  if (!read_only_) Text = WithCrLf(text);
}

void RichTextBox::PersonSelects(int start, int length) {
  SelStart = start;
  SelLength = length;
}

}  // namespace lectern::forms
