// Reading rich text: groups in braces, control words behind backslashes, and text between them.
#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <utility>

#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "forms/rich_text.h"

namespace lectern::forms {

namespace {

using namespace std::string_view_literals;

// Groups whose contents are no text of the page.
constexpr std::array kPassedOver = {
    "stylesheet"sv,        "info"sv,         "pict"sv,     "object"sv,    "header"sv,
    "headerl"sv,           "headerr"sv,      "headerf"sv,  "footer"sv,    "footerl"sv,
    "footerr"sv,           "footerf"sv,      "footnote"sv, "fldinst"sv,   "listtable"sv,
    "filetbl"sv,           "revtbl"sv,       "rsidtbl"sv,  "themedata"sv, "xmlnstbl"sv,
    "annotation"sv,        "generator"sv,    "private"sv,  "bkmkstart"sv, "bkmkend"sv,
    "listoverridetable"sv, "latentstyles"sv,
};

struct Sign {
  std::string_view word;
  std::string_view text;
};

constexpr std::array kSigns = {
    Sign{"par", "\r\n"},    Sign{"line", "\r\n"}, Sign{"sect", "\r\n"}, Sign{"page", "\r\n"},
    Sign{"row", "\r\n"},    Sign{"cell", "\t"},   Sign{"tab", "\t"},    Sign{"emspace", " "},
    Sign{"enspace", " "},   Sign{"qmspace", " "}, Sign{"bullet", "•"},  Sign{"endash", "–"},
    Sign{"emdash", "—"},    Sign{"lquote", "‘"},  Sign{"rquote", "’"},  Sign{"ldblquote", "“"},
    Sign{"rdblquote", "”"},
};

constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

enum class Destination { kPage, kFonts, kColours, kNowhere };

struct Group {
  TextStyle style;
  Destination destination = Destination::kPage;
  int bytes_behind_unicode = 1;  // how many stand in for a \u character, for readers without it
};

class RtfReader {
 public:
  explicit RtfReader(std::string_view bytes) : bytes_(bytes) {}

  RichText Read() {
    while (at_ < bytes_.size()) {
      switch (const char c = bytes_[at_++]) {
        case '{':
          Open();
          break;
        case '}':
          Close();
          break;
        case '\\':
          Control();
          break;
        case '\r':
        case '\n':
        case '\0':
          break;
        default:
          Byte(static_cast<unsigned char>(c));
      }
    }
    return std::move(page_);
  }

 private:
  static constexpr std::size_t kDeepest = 1000;

  Group& Now() { return groups_.back(); }

  void Open() {
    if (groups_.size() < kDeepest) {
      groups_.push_back(Now());
    } else {
      ++too_deep_;
    }
  }

  void Close() {
    unicode_left_ = 0;
    if (too_deep_ > 0) {
      --too_deep_;
    } else if (groups_.size() > 1) {
      groups_.pop_back();
    }
  }

  void Control() {
    if (at_ >= bytes_.size()) return;
    const char c = bytes_[at_];
    if (IsLetter(c)) return ControlWord();
    ++at_;
    switch (c) {
      case '\'':
        return HexByte();
      case '*':
        starred_ = true;
        return;
      case '~':
        return Text("\u00A0");
      case '_':
        return Text("-");
      case '\r':
      case '\n':
        return Text("\r\n");
      case '\\':
      case '{':
      case '}':
        return Byte(static_cast<unsigned char>(c));
      default:
        return;
    }
  }

  void HexByte() {
    unsigned value = 0;
    const std::string_view digits = bytes_.substr(at_, 2);
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (failure != std::errc{}) return;
    at_ += static_cast<std::size_t>(end - digits.data());
    Byte(static_cast<unsigned char>(value));
  }

  void ControlWord() {
    const std::size_t start = at_;
    while (at_ < bytes_.size() && IsLetter(bytes_[at_])) ++at_;
    const std::string_view word = bytes_.substr(start, at_ - start);
    int number = 0;
    const auto [end, failure] = std::from_chars(bytes_.data() + at_, bytes_.data() + bytes_.size(), number);
    const bool has_number = failure != std::errc::invalid_argument;
    if (has_number) at_ = static_cast<std::size_t>(end - bytes_.data());
    if (failure == std::errc::result_out_of_range) number = 0;
    if (at_ < bytes_.size() && bytes_[at_] == ' ') ++at_;
    const bool starred = std::exchange(starred_, false);
    Obey(word, has_number, number, starred);
  }

  void Obey(std::string_view word, bool has_number, int number, bool starred) {
    const bool on = !has_number || number != 0;
    if (word == "bin") {
      at_ += std::min(static_cast<std::size_t>(std::max(number, 0)), bytes_.size() - at_);
    } else if (word == "u") {
      Unicode(number);
    } else if (word == "uc") {
      Now().bytes_behind_unicode = std::clamp(number, 0, 100);
    } else if (word == "fonttbl") {
      Now().destination = Destination::kFonts;
    } else if (word == "colortbl") {
      Now().destination = Destination::kColours;
    } else if (starred || std::find(kPassedOver.begin(), kPassedOver.end(), word) != kPassedOver.end()) {
      Now().destination = Destination::kNowhere;
    } else if (const auto* sign = std::find_if(kSigns.begin(), kSigns.end(),
                                               [word](const Sign& s) { return s.word == word; });
               sign != kSigns.end()) {
      Text(sign->text);
    } else if (Now().destination == Destination::kColours) {
      Component(word, number);
    } else {
      Style(word, on, number);
    }
  }

  void Style(std::string_view word, bool on, int number) {
    TextStyle& style = Now().style;
    if (word == "b") {
      style.bold = on;
    } else if (word == "i") {
      style.italic = on;
    } else if (word == "ul") {
      style.underline = on;
    } else if (word == "ulnone") {
      style.underline = false;
    } else if (word == "plain") {
      style = {};
    } else if (word == "fs") {
      constexpr int kLargest = 400;
      style.size = number > 0 && number <= kLargest ? number / 2.0 : 0;
    } else if (word == "f") {
      font_ = number;
      const auto found = fonts_.find(number);
      style.font = found == fonts_.end() ? std::string() : found->second;
    } else if (word == "cf") {
      style.colour.reset();
      if (number > 0 && static_cast<std::size_t>(number) < colours_.size()) {
        style.colour = colours_[static_cast<std::size_t>(number)];
      }
    }
  }

  void Component(std::string_view word, int number) {
    const int value = std::clamp(number, 0, 255);
    if (word == "red") mixed_ = Rgb(value, GreenOf(mixed_), BlueOf(mixed_));
    if (word == "green") mixed_ = Rgb(RedOf(mixed_), value, BlueOf(mixed_));
    if (word == "blue") mixed_ = Rgb(RedOf(mixed_), GreenOf(mixed_), value);
  }

  void Unicode(int number) {
    const auto character = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
    const bool high = character >= 0xD800 && character < 0xDC00;
    const bool low = character >= 0xDC00 && character < 0xE000;
    std::string text;
    if (low && high_surrogate_ != 0) {
      text::AppendCharacter(text, 0x10000 + ((high_surrogate_ - 0xD800) << 10) + (character - 0xDC00));
    } else if (!high && !low && character < 0x110000) {
      text::AppendCharacter(text, character);
    }
    high_surrogate_ = high ? character : 0;
    unicode_left_ = 0;
    Text(text);
    unicode_left_ = Now().bytes_behind_unicode;
  }

  void Byte(unsigned char byte) {
    if (unicode_left_ > 0) {
      --unicode_left_;
      return;
    }
    std::string text;
    text::AppendCharacter(text, files::CodePageCharacter(byte));
    Text(text);
  }

  void Text(std::string_view text) {
    starred_ = false;
    switch (Now().destination) {
      case Destination::kNowhere:
        return;
      case Destination::kFonts:
        if (text == ";") {
          fonts_[font_] = std::exchange(font_name_, {});
        } else {
          font_name_.append(text);
        }
        return;
      case Destination::kColours:
        if (text == ";") colours_.push_back(std::exchange(mixed_, 0));
        return;
      case Destination::kPage:
        break;
    }
    const std::size_t length = text::Length(text);
    page_.text.append(text);
    page_.runs.Append({characters_, length, Now().style});
    characters_ += length;
  }

  std::string_view bytes_;
  std::size_t at_ = 0;
  std::vector<Group> groups_{Group{}};
  std::size_t too_deep_ = 0;
  bool starred_ = false;
  int unicode_left_ = 0;
  char32_t high_surrogate_ = 0;

  std::map<int, std::string> fonts_;
  int font_ = 0;
  std::string font_name_;
  std::vector<Colour> colours_;
  Colour mixed_ = 0;

  RichText page_;
  std::size_t characters_ = 0;
};

}  // namespace

bool LooksLikeRtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

RichText ReadRtf(std::string_view bytes) { return RtfReader(bytes).Read(); }

}  // namespace lectern::forms
