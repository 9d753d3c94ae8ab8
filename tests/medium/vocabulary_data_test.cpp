// The vocabulary file that comes with Cantorel, and the sources behind it.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "medium/medium_vocabulary.h"
#include "platform/file_layer.h"
#include "platform/profile_file.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

constexpr std::string_view kConfig = CANTOREL_CONFIG "/";
constexpr std::int32_t kWholeSection = 1'000'000;

std::string ConfigFile(std::string_view name) {
  return std::string(kConfig) + std::string(name);
}

std::map<std::string, std::string> Section(std::string_view file, std::string_view section) {
  std::map<std::string, std::string> settings;
  const std::string lines = GetIniSection(file, section, kWholeSection);
  for (std::size_t at = 0; at < lines.size(); at = lines.find('\0', at) + 1) {
    const std::string line(lines.c_str() + at);
    const std::size_t equals = line.find('=');
    EXPECT_TRUE(settings.emplace(line.substr(0, equals), line.substr(equals + 1)).second) << line;
  }
  return settings;
}

// The first two columns that a test wants of a source, without head and comments.
std::vector<std::pair<std::string, std::string>> Source(std::string_view name, int first,
                                                        int second) {
  std::string text;
  EXPECT_TRUE(ReadWholeFile(ConfigFile("sources/" + std::string(name)), text)) << name;
  std::vector<std::pair<std::string, std::string>> rows;
  bool head = true;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    std::string line = text.substr(at, end - at);
    at = end + 1;
    if (line.empty() || line[0] == '#') continue;
    if (std::exchange(head, false)) continue;
    std::vector<std::string> cells;
    for (std::size_t tab; (tab = line.find('\t')) != std::string::npos;) {
      cells.push_back(line.substr(0, tab));
      line.erase(0, tab + 1);
    }
    cells.push_back(line);
    rows.emplace_back(cells.at(first), cells.at(second));
  }
  return rows;
}

class VocabularyDataTest : public testing::Test {
 protected:
  std::string Key(std::string_view text) {
    std::string key = record_.NormString(text, true, "V");
    std::replace(key.begin(), key.end(), ' ', '_');
    return key;
  }

  Utf8MarcRecordClass record_;
  const std::string file_ = ConfigFile(kVocabularyFileName);
  const std::map<std::string, std::string> instruments_ = Section(file_, "Instruments");
  const std::map<std::string, std::string> ensembles_ = Section(file_, "Ensembles");
};

TEST_F(VocabularyDataTest, KeysAndTermsAreInTheFormThatIsLookedUp) {
  ASSERT_GT(instruments_.size(), 2500u);
  ASSERT_GT(ensembles_.size(), 150u);
  std::set<std::string> authorised;
  for (const auto& [term, id] : Source("lcmpt.tsv", 1, 0)) authorised.insert(term);
  for (const auto& [key, term] : instruments_) {
    EXPECT_TRUE(authorised.contains(term)) << term;
    std::string name = key;
    std::replace(name.begin(), name.end(), '_', ' ');
    EXPECT_EQ(Key(name), key);
    EXPECT_EQ(GetIniValue(file_, "Instruments", key, 1000), term);
    const auto own = instruments_.find(Key(term));
    ASSERT_NE(own, instruments_.end()) << term;
    EXPECT_EQ(own->second, term);
  }
  for (const auto& [key, term] : ensembles_) {
    const auto instrument = instruments_.find(key);
    ASSERT_NE(instrument, instruments_.end()) << key;
    EXPECT_EQ(instrument->second, term);
    EXPECT_TRUE(ensembles_.contains(Key(term))) << term;
  }
}

TEST_F(VocabularyDataTest, EveryNameOfTheSourcesIsAKey) {
  std::map<std::string, std::string> settled;
  for (const auto& [variant, term] : Source("settled-variants.tsv", 0, 1)) {
    settled[Key(variant)] = term;
  }
  std::set<std::string> preferred;
  for (const auto& [term, id] : Source("lcmpt.tsv", 1, 0)) preferred.insert(Key(term));

  auto names = Source("lcmpt-variants.tsv", 0, 1);
  for (const auto& row : Source("lcmpt.tsv", 1, 1)) names.push_back(row);
  for (const auto& row : Source("subject-heading-names.tsv", 0, 1)) names.push_back(row);
  for (const auto& [name, term] : names) {
    const std::string key = Key(name);
    const auto found = instruments_.find(key);
    ASSERT_NE(found, instruments_.end()) << name;
    if (preferred.contains(key)) {
      EXPECT_EQ(Key(found->second), key) << name;
    } else {
      EXPECT_EQ(found->second, settled.contains(key) ? settled[key] : term) << name;
    }
  }
}

TEST_F(VocabularyDataTest, FindsWhatSubjectHeadingsWrite) {
  MusicSession session;
  ConversionReport report;
  MediumVocabulary vocabulary(session, report);
  vocabulary.InstrumentFile(file_);
  const struct {
    const char* term;
    const char* preferred;
  } cases[] = {
      {"VIOLONCELLO", "cello"},
      {"VIOLONCELLOS", "cello"},
      {"DOUBLE BASSES", "double bass"},
      {"VIOLAS DAMORE", "viola d'amore"},
      {"HARPSICHORDS", "harpsichord"},
      {"BASSOONS", "bassoon"},
      {"HORNS", "horn"},
      {"FRENCH HORN", "horn"},
      {"ENGLISH HORN", "English horn"},
      {"FLUEGELHORN", "flugelhorn"},
      {"KETTLEDRUMS", "timpani"},
      {"VIBES", "vibraphone"},
      {"BASSO CONTINUO", "continuo"},
      {"ELECTRONIC", "electronics"},
      {"HIGH VOICE", "high voice"},
      {"NARRATORS", "speaker"},
      {"MENS VOICES", "men's chorus"},
      {"STRING ENSEMBLE", "bowed string ensemble"},
      {"JAZZ ENSEMBLE", "instrumental ensemble"},
      {"DANCE ORCHESTRA", "big band"},
      {"UD", "oud"},
      {"HURDY GURDIES", "hurdy-gurdy"},
      {"VIOLIN ELECTRIC", "electric violin"},
      {"RECORDED ACCOMPANIMENT", "pre-recorded audio"},
      // The voice of one; the plural is a chorus.
      {"GIRLS VOICE", "child's voice"},
      {"GIRLS VOICES", "girls' chorus"},
      // The grammar tells what these are, from the rest of the heading.
      {"BARITONE", ""},
      {"PIANO TRIO", ""},
      {"STRING QUARTETS", ""},
      {"WIND QUINTET", ""},
      // Kinds of music that no player of that name performs.
      {"POPULAR", ""},
      {"ROCK", ""},
      {"CHAMBER", ""},
      {"MOTION PICTURE", ""},
      {"RADIO", ""},
  };
  for (const auto& c : cases) {
    std::string preferred;
    vocabulary.FindInstrument(record_, c.term, preferred);
    EXPECT_EQ(preferred, c.preferred) << c.term;
  }
  for (const char* term : {"CHORUS", "ORCHESTRA", "MIXED CHORUS", "EQUAL VOICES", "BIG BAND",
                           "GAMELAN", "SOLO VOCAL ENSEMBLE"}) {
    EXPECT_TRUE(vocabulary.IsEnsembleName(record_, term)) << term;
  }
  // The last would make a term of the thesaurus of any "Male voices".
  for (const char* term :
       {"CONTINUO", "ELECTRONICS", "MIXED MEDIA", "PERCUSSION", "VIOLIN", "MALE CHORUS"}) {
    EXPECT_FALSE(vocabulary.IsEnsembleName(record_, term)) << term;
  }
}

TEST_F(VocabularyDataTest, HeadingsOfTheDerivationTableGiveTermsOfTheThesaurus) {
  const std::string table = ConfigFile("Music6xxTo655.txt");
  EXPECT_EQ(GetIniValue(table, "FileSignature", "FilePresent", 15), "True");
  const auto headings = Section(table, "List12");
  ASSERT_FALSE(headings.empty());
  for (const auto& [heading, text] : headings) {
    std::string name = heading;
    std::replace(name.begin(), name.end(), '_', ' ');
    EXPECT_EQ(Key(name), heading);
    const std::string term = text.substr(0, text.find('\x1F'));
    const auto found = instruments_.find(Key(term));
    ASSERT_NE(found, instruments_.end()) << heading;
    EXPECT_EQ(found->second, term) << heading;
    const bool counted_as_ensemble = text.ends_with(
        "\x1F"
        "e1");
    EXPECT_LE(counted_as_ensemble, ensembles_.contains(Key(term))) << heading;
  }
}

}  // namespace
}  // namespace cantorel
