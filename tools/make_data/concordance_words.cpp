#include <algorithm>
#include <iterator>
#include <sstream>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "base/text/characters.h"
#include "tools/make_data/concordance.h"

namespace lectern::make_data {

namespace {

using WordSet = std::unordered_set<std::string>;

WordSet SetOf(const char* words) {
  std::istringstream stream(words);
  return {std::istream_iterator<std::string>(stream), {}};
}

// Words of grammar, old and new, verbs that stand beside any other, and numbers.
const char* const kLeftOut = R"(
a about above according after afterward afterwards again against ago ah all almost alone along already also
although altogether always am amid among amongst an and another any anybody anyone anything apart are art as aside
at away back be became because become becomes becometh been before began begin beginneth begins begun behind being
below beside besides between betwixt beyond both bring bringest bringeth bringing brings brought but by call called
calls came can cannot canst cast certain certainly come comes comest cometh coming concerning could couldest did
didst do does doest doeth doing done dost doth down during each either else even ever every everybody everyone
everything except exceeding exceedingly far few finally find finds following for forasmuch former forth found from
fro further furthermore gave get gets getting give given gives givest giveth giving go goes goest goeth going gone got
had hadst hast hath have having he hence henceforth her here hereafter hereby herein hers herself hid him himself
his hither hitherto how howbeit however i if immediately in inasmuch indeed insomuch inside instead into is it its
itself just keep keeping keeps kept laid last late later lay lest let lets letting like likewise long made make
makes makest maketh making many may mayest me meanwhile mightest mine more moreover most much must my myself namely
nay near nearby neither never nevertheless next nigh no nobody none nor not nothing notwithstanding now o of off
oft often oftentimes oh on once one ones only onto or other others otherwise ought our ours ourselves out outside
over own per perhaps please presently put puts putteth putting quickly quite rather really round said saith same
sat saw say sayest saying says see seeing seem seemed seemeth seems seen sees seest seeth self selfsame send sent
set sets setteth setting several shall shalt she should shouldest since so some somebody someone something
sometimes somewhat somewhere soon spake speak speaketh speaking speaks spoke spoken still stood such suddenly
surely take taken takes taketh taking tell telling tells than that the thee their theirs them themselves then
thence thenceforth there thereafter thereat thereby therefore therefrom therein thereof thereon thereto thereunto
thereupon therewith these they thine thing things this thither those thou though through throughout thus thy
thyself till to together told too took toward towards truly turn turned turneth turning turns under unless until
unto up upon us use used uses using utterly verily very was wast we went were wert what whatever whatsoever when
whence whenever whensoever where whereas whereby wherefore wherein whereof whereon wheresoever whereto whereunto
whereupon wherever wherewith whether which whichever while whilst whither whithersoever who whoever whole wholly
whom whomever whomsoever whose whoso whosoever why will wilt with withal within without would wouldest ye yea yes
yet yonder you your yours yourself yourselves
half first second third fourth fifth sixth seventh eighth ninth tenth eleventh twelfth thirteenth fourteenth
fifteenth sixteenth seventeenth eighteenth nineteenth twentieth two three four five six eight nine eleven thirteen
fifteen sixteen seventeen eighteen nineteen twenty thirty fifty sixty eighty ninety hundred hundreds thousand
thousands threescore fourscore)";

// Words of more than a thousand verses that people do look up.
const char* const kChief =
    "children day father god hand house israel jesus king land lord man men people son yahweh";

// Names and things that everybody knows from a verse or two, or three.
const char* const kKnown =
    "armageddon babel bartimaeus beelzebub bethesda bethphage calvary cleopas crumbs dorcas drusilla emmaus "
    "euodia "
    "eutychus ezekiel gethsemane golgotha immanuel jairus leviathan linus lois lucifer luke lydia "
    "magdala magi malchus mammon manger matthias melchizedek messiah mnason mustard needle onesimus patmos "
    "phebe "
    "philemon rainbow rhoda sapphira scapegoat sceva siloam sycamine talitha tabitha theophilus "
    "urim vashti zacchaeus zipporah zerubbabel";

struct Use {
  int verses = 0;
  int inside = 0;       // places that are not at the beginning of a sentence
  int capitals = 0;     // of those
  int last_verse = -1;  // a count of all verses
  bool is_stump = false;

  bool IsName() const { return inside > 0 && capitals * 10 >= inside * 9; }
};

using Uses = std::unordered_map<std::string, Use>;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Whether the word at a place begins a sentence or what somebody says.
bool Begins(std::string_view text, std::size_t at) {
  if (at > 0 && (text[at - 1] == '"' || text[at - 1] == '\'')) return true;
  const std::size_t before = text.find_last_not_of(" ([", at == 0 ? 0 : at - 1);
  if (at == 0 || before == std::string_view::npos) return true;
  return std::string_view(".?!:;]").find(text[before]) != std::string_view::npos;
}

void TakeWord(Uses& uses, std::string_view text, std::size_t start, std::size_t end, int verse) {
  std::string_view word = text.substr(start, end - start);
  const std::size_t apostrophe = word.find('\'');
  const std::string plain = text::Lower(word.substr(0, apostrophe));
  Use& use = uses[plain];
  if (apostrophe != std::string_view::npos && word.substr(apostrophe) != "'s") {
    use.is_stump = true;  // "isn" of "isn't"
    return;
  }
  if (std::exchange(use.last_verse, verse) != verse) ++use.verses;
  if (Begins(text, start)) return;
  ++use.inside;
  if (word[0] >= 'A' && word[0] <= 'Z') ++use.capitals;
}

Uses UsesIn(const Version& version) {
  Uses uses;
  int verse_count = 0;
  for (const Book& book : version.books) {
    for (const auto& [number, chapter] : book) {
      for (const auto& [verse, text] : chapter) {
        ++verse_count;
        for (std::size_t at = 0; at < text.size(); ++at) {
          const std::size_t start = at;
          const auto joins = [&](std::size_t i) {
            return (text[i] == '-' || text[i] == '\'') && i > start && i + 1 < text.size() &&
                   IsLetter(text[i - 1]) && IsLetter(text[i + 1]);
          };
          while (at < text.size() && (IsLetter(text[at]) || joins(at))) ++at;
          if (at > start) TakeWord(uses, text, start, at, verse_count);
        }
      }
    }
  }
  return uses;
}

// An ending, and what the word may end in without it.
struct Ending {
  std::string_view ending;
  std::string_view stem, other_stem;
};
constexpr Ending kEndings[] = {{"ies", "y", "y"}, {"ied", "y", "y"}, {"ieth", "y", "y"}, {"ves", "f", "fe"},
                               {"ing", "", "e"},  {"eth", "", "e"},  {"est", "", "e"},   {"es", "", "e"},
                               {"ed", "", "e"},   {"s", "", ""},     {"ly", "", ""}};

// The word that a form may belong to, as far as its ending says and the text has it; nullptr if there is
// none.
const std::string* StemOf(const std::string& form, const Uses& uses) {
  const auto find = [&](const std::string& stem) -> const std::string* {
    const auto found = uses.find(stem);
    const bool is_there = stem.size() > 1 && found != uses.end() && found->second.verses > 0;
    return is_there ? &found->first : nullptr;
  };
  for (const auto& [ending, stem, other_stem] : kEndings) {
    if (!form.ends_with(ending)) continue;
    std::string start = form.substr(0, form.size() - ending.size());
    for (const std::string_view end : {stem, other_stem}) {
      if (const std::string* found = find(start + std::string(end))) return found;
    }
    const bool is_doubled = start.size() > 2 && start.back() == start[start.size() - 2];  // "sinned"
    if (is_doubled) start.pop_back();
    if (const std::string* found = is_doubled ? find(start) : nullptr) return found;
  }
  return nullptr;
}

}  // namespace

std::vector<std::string> ConcordanceWords(const Version& version, std::size_t most) {
  constexpr int kNameVerses = 4;
  constexpr int kMostVerses = 1000;
  constexpr double kFirst = 1e9;  // a rank before all others
  const WordSet left_out = SetOf(kLeftOut);
  const WordSet chief = SetOf(kChief);
  const WordSet known = SetOf(kKnown);
  const Uses uses = UsesIn(version);

  std::unordered_map<std::string, double> ranks;
  for (const auto& [word, use] : uses) {
    const bool is_name = use.IsName() && word.size() > 1;
    const bool is_hyphened = word.find('-') != std::string::npos;
    if (use.verses == 0 || use.is_stump || left_out.contains(word) || word.size() < 2 ||
        (is_hyphened && !is_name))
      continue;
    double& rank = ranks[word];
    if ((is_name && use.verses >= kNameVerses) || chief.contains(word) || known.contains(word)) {
      rank += kFirst + use.verses;
      continue;
    }
    if (use.verses > kMostVerses) continue;
    const std::string* const stem = StemOf(word, uses);
    rank += stem == nullptr ? use.verses : use.verses / 2.0;
    if (stem != nullptr && !left_out.contains(*stem)) ranks[*stem] += use.verses;
  }
  std::vector<std::pair<double, std::string>> order;
  for (const auto& [word, rank] : ranks) {
    const Use& use = uses.at(word);
    const bool is_listed = rank >= kFirst || use.verses <= kMostVerses;
    if (is_listed && !use.is_stump) order.emplace_back(-rank, word);
  }
  std::sort(order.begin(), order.end());
  order.resize(std::min(most, order.size()));
  std::vector<std::string> words;
  for (auto& [rank, word] : order) words.push_back(std::move(word));
  std::sort(words.begin(), words.end());
  return words;
}

}  // namespace lectern::make_data
