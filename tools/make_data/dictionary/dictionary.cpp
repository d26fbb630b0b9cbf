#include "tools/make_data/dictionary/dictionary.h"

#include <algorithm>
#include <future>
#include <map>
#include <utility>

#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "reader/reference.h"
#include "tools/make_data/dictionary/facts.h"
#include "tools/make_data/dictionary/verse_finder.h"
#include "tools/make_data/dictionary/wording.h"
#include "tools/make_data/written_texts.h"

namespace lectern::make_data {

namespace {

constexpr std::size_t kLongestDefinition = 360;  // bytes, of text that is nearly all ASCII

// A definition that grows sentence by sentence, as long as they fit.
class Sentences {
 public:
  // A sentence with or without its stop. Returns false if there is no more room for it.
  bool Add(const std::string& sentence) {
    if (text_.size() + sentence.size() + 2 > kLongestDefinition) return false;
    const std::size_t start = text_.size() + (text_.empty() ? 0 : 1);
    if (!text_.empty()) text_ += ' ';
    text_ += sentence;
    if (std::string_view(".?!").find(text_.back()) == std::string_view::npos && !text_.ends_with(".'"))
      text_ += '.';
    text_[start] = text::Upper(text_.substr(start, 1))[0];
    return true;
  }
  bool IsEmpty() const { return text_.empty(); }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

class DictionaryMaker {
 public:
  DictionaryMaker(const DictionarySources& sources, const Version& king_james)
      : sources_(sources), wording_(king_james), finder_(king_james) {
    for (const Topic& topic : sources_.topics) {
      headings_.emplace(topic.heading, &topic);
      subjects_.emplace(SubjectOf(topic), &topic);
    }
  }

  std::string Records() {
    for (const auto& [word, definition] : sources_.own) {
      DefineWord(word, definition, text::Lower(definition.word) == definition.word);
    }
    for (const auto& [word, definition] : sources_.glossary) {
      if (!entries_.contains(word) && !entries_.contains(SingularOf(word)))
        DefineWord(word, definition, false);
    }
    for (const Topic& topic : sources_.topics) DefineTopic(topic);
    for (const auto& [word, spelling] : wording_.Names()) DefineName(word);
    return Sorted();
  }

 private:
  struct Entry {
    std::string word;
    std::string definition;
    const VerseFinder::Verse* verse = nullptr;
  };

  static std::string SubjectOf(const Topic& topic) {
    return Folded(Wording::Subject(Wording::Heading(topic.heading)));
  }

  const Topic* TopicOf(const std::string& word) const {
    const auto topic = subjects_.find(word);
    return topic == subjects_.end() ? nullptr : topic->second;
  }

  // The word that this one mostly translates; nullptr if there is none.
  const OriginalWord* OriginalOf(const std::string& word) const {
    const auto original = sources_.originals.find(sources_.numbers.Main(finder_.FormsOf(word)));
    return original == sources_.originals.end() ? nullptr : &original->second;
  }

  void Put(const std::string& word, std::string shown, std::string definition,
           const VerseFinder::Verse* verse) {
    if (verse == nullptr || definition.empty()) return;
    CapitaliseFirst(shown);
    entries_.emplace(word, Entry{std::move(shown), std::move(definition), verse});
  }

  // A word with a definition that is ready. To a common word the index adds what is done with the thing and
  // who bears it as a name, and the lexicon what stands behind it.
  void DefineWord(const std::string& word, const Definition& definition, bool is_common) {
    const Topic* topic = TopicOf(word);
    std::vector<Fact> facts;
    if (topic != nullptr && is_common) facts = FactsOf(*topic, wording_);
    Sentences sentences;
    sentences.Add(definition.text);
    if (!facts.empty() && facts.front().says == Fact::Says::kWho &&
        !facts.front().sentence.starts_with("The ") && wording_.IsAlsoName(word)) {
      sentences.Add("As a name: " + facts.front().sentence);
      topic = nullptr;
    } else {
      for (const Fact& fact : facts) {
        const bool tells_food = sentences.Text().find("as food") != std::string::npos;
        if (fact.says == Fact::Says::kUse && !tells_food) sentences.Add(fact.sentence);
      }
    }
    if (is_common) AddOriginal(word, sentences);
    const VerseFinder::Verse* verse = finder_.At(definition.place);
    if (verse == nullptr) {
      verse =
          finder_.Use(word, topic, is_common ? VerseFinder::Spelling::kSmall : VerseFinder::Spelling::kAny);
    }
    if (verse != nullptr)
      Put(word, is_common ? definition.word : VerseFinder::SpellingIn(*verse, word), sentences.Text(), verse);
  }

  // "Hebrew kallah: a son's wife.", of a thing if the lexicon's first sense is one too. The first senses of
  // Hebrew verbs are far from their use.
  void AddOriginal(const std::string& word, Sentences& sentences) const {
    const std::vector<std::string> forms = finder_.FormsOf(word);
    const std::string number = sources_.numbers.Main(forms);
    const auto original = sources_.originals.find(number);
    if (original == sources_.originals.end() || !original->second.name_of.empty()) return;
    const std::string& sense = original->second.sense;
    const auto is_thing = [](std::string_view text) {
      const std::string lower = text::Lower(text);
      return lower.starts_with("a ") || lower.starts_with("an ") || lower.starts_with("the ") ||
             lower.starts_with("one ");
    };
    const bool is_act = sense.starts_with("to ");
    if (sense.empty() || is_thing(sense) != is_thing(sentences.Text()) ||
        is_act != sentences.Text().starts_with("To "))
      return;
    if (sense.ends_with(" " + word) || sense == word) return;  // says nothing new
    if ((is_act && number[0] == 'H') || !sources_.numbers.IsMainTranslation(number, forms)) return;
    sentences.Add(original->second.language + " " + original->second.letters + ": " + sense);
  }

  void AddMeaningOfName(const std::string& word, Sentences& sentences) const {
    const OriginalWord* original = OriginalOf(word);
    if (original == nullptr || original->name_of.empty() || original->sense.empty() || sentences.IsEmpty())
      return;
    sentences.Add("The name may mean '" + original->sense + "'");
  }

  void DefineTopic(const Topic& topic) {
    const std::string word = SubjectOf(topic);
    if (entries_.contains(word)) return;
    const bool is_name = IsName(word);
    const bool is_known_word =
        !is_name && word.find(' ') == std::string::npos && entries_.contains(SingularOf(word));
    if (is_known_word) return;
    Sentences sentences;
    std::vector<Fact> facts = FactsOf(topic, wording_);
    if (facts.empty() && is_name) facts = ReferredFacts(topic, sentences);
    std::stable_partition(facts.begin(), facts.end(),
                          [](const Fact& fact) { return fact.number > 0 || fact.Defines(); });
    if (sentences.IsEmpty() &&
        std::none_of(facts.begin(), facts.end(), [](const Fact& fact) { return fact.Defines(); })) {
      const OriginalWord* original = is_name ? OriginalOf(word) : nullptr;
      if (original == nullptr || original->name_of.empty()) return;
      sentences.Add(original->name_of);
    }
    AddFacts(facts, is_name, sentences);
    if (is_name) AddMeaningOfName(word, sentences);
    const VerseFinder::Verse* verse = finder_.Use(word, &topic, VerseFinder::Spelling::kAny);
    if (verse == nullptr) return;
    const std::string shown = Wording::Subject(Wording::Heading(topic.heading));
    Put(word, is_name ? VerseFinder::SpellingIn(*verse, word) : shown, sentences.Text(), verse);
  }

  static std::string SingularOf(const std::string& word) {
    return word.ends_with('s') ? word.substr(0, word.size() - 1) : word + "s";
  }

  bool IsName(const std::string& word) const {
    return word.find(' ') == std::string::npos && wording_.IsName(word);
  }

  // A name that is another form of one that the index explains.
  std::vector<Fact> ReferredFacts(const Topic& topic, Sentences& sentences) const {
    const See see = SeeOf(topic);
    const auto referred = headings_.find(see.heading);
    if (referred == headings_.end()) return {};
    const std::string name = Wording::Subject(Wording::Heading(see.heading));
    if (!IsName(Folded(name))) return {};
    const bool is_people = topic.heading.ends_with("ITE") || topic.heading.ends_with("ITES");
    std::vector<Fact> facts = FactsOf(*referred->second, wording_);
    if (facts.empty() || is_people) return {};
    sentences.Add("The same as " + name);
    if (see.number == 0 && facts.front().number != facts.back().number) return {};
    const int number = see.number > 0 ? see.number : facts.front().number;
    std::erase_if(facts, [&](const Fact& fact) { return fact.number != number || !fact.Defines(); });
    if (facts.empty()) return {};
    facts.resize(1);
    return facts;
  }

  // Several persons or places of one name are numbered. A thing has only what defines it and its uses.
  static void AddFacts(const std::vector<Fact>& facts, bool is_name, Sentences& sentences) {
    const auto defines_another = [&](const Fact& fact) {
      return fact.Defines() && fact.number != facts.front().number;
    };
    const bool is_numbered = std::any_of(facts.begin(), facts.end(), defines_another);
    constexpr int kMostDeeds = 3;
    int last = 0;
    int shown = 0;
    int deeds = 0;
    for (const Fact& fact : facts) {
      std::string sentence = fact.sentence;
      if (is_numbered && fact.number != last) {
        if (!fact.Defines()) continue;
        last = fact.number;
        deeds = 0;
        sentence = std::to_string(++shown) + ". " + sentence;
      } else if (!fact.Defines() && ((fact.says == Fact::Says::kDeed && !is_name) || ++deeds > kMostDeeds)) {
        continue;
      }
      if (!sentences.Add(sentence)) break;
    }
  }

  // A name that the index does not have.
  void DefineName(const std::string& word) {
    const OriginalWord* original = OriginalOf(word);
    if (entries_.contains(word) || original == nullptr || original->name_of.empty()) return;
    Sentences sentences;
    sentences.Add(original->name_of);
    AddMeaningOfName(word, sentences);
    const VerseFinder::Verse* verse = finder_.Use(word, nullptr, VerseFinder::Spelling::kAny);
    if (verse != nullptr) Put(word, VerseFinder::SpellingIn(*verse, word), sentences.Text(), verse);
  }

  std::string Sorted() const {
    std::vector<const Entry*> sorted;
    for (const auto& [word, entry] : entries_) sorted.push_back(&entry);
    std::sort(sorted.begin(), sorted.end(),
              [](const Entry* a, const Entry* b) { return text::LessFolded(a->word, b->word); });
    std::string records;
    for (const Entry* entry : sorted) {
      const VerseFinder::Verse& verse = *entry->verse;
      std::string record;
      for (std::string field : {entry->word, entry->definition, *verse.words,
                                reader::ReferenceText({verse.book, verse.chapter, verse.verse})}) {
        std::replace(field.begin(), field.end(), '"', '\'');  // a field cannot hold double quotes
        record += (record.empty() ? "\"" : ",\"") + field + "\"";
      }
      records += files::Encode(record) + "\r\n";
    }
    return records;
  }

  const DictionarySources& sources_;
  const Wording wording_;
  const VerseFinder finder_;
  std::map<std::string, const Topic*> headings_;
  std::map<std::string, const Topic*> subjects_;  // folded
  std::map<std::string, Entry> entries_;          // by folded word
};

}  // namespace

DictionarySources ReadDictionarySources(const std::vector<MarkedVerse>& king_james,
                                        const std::vector<MarkedVerse>& world_english) {
  const auto read = [](const std::string& module, const std::string& package) {
    return std::async(std::launch::async, [=] {
      return OutputOf("mod2imp " + module + " </dev/null", "mod2imp", "libsword-utils " + package);
    });
  };
  auto topics = read("Nave", "sword-dict-naves");
  auto hebrew = read("StrongsHebrew", "sword-dict-strongs-hebrew");
  auto greek = read("StrongsGreek", "sword-dict-strongs-greek");
  DictionarySources sources{{}, ParseGlossary(world_english.back().markup), {}, {}, WordNumbers(king_james)};
  for (const WrittenText& written : kDefinitionSources) ParseDefinitions(written.text, sources.own);
  sources.topics = ParseTopics(topics.get());
  ParseOriginalWords(hebrew.get(), 'H', sources.originals);
  ParseOriginalWords(greek.get(), 'G', sources.originals);
  return sources;
}

std::string DictionaryRecords(const DictionarySources& sources, const Version& king_james) {
  return DictionaryMaker(sources, king_james).Records();
}

}  // namespace lectern::make_data
