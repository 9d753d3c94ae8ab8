// Reads headings over a small vocabulary of its own, so that the grammar's
// tests do not move with the terms of the real one.

#ifndef CANTOREL_TESTS_MEDIUM_HEADING_READER_H_
#define CANTOREL_TESTS_MEDIUM_HEADING_READER_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "medium/heading_grammar.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

// "$" for the delimiter, both ways.
inline std::string FromDollars(std::string_view text) {
  std::string out(text);
  std::replace(out.begin(), out.end(), '$', '\x1F');
  return out;
}
inline std::string ToDollars(std::string_view text) {
  std::string out(text);
  std::replace(out.begin(), out.end(), '\x1F', '$');
  return out;
}

struct HeadingAnswer {
  std::int32_t result = 0;
  std::string field;
  std::string trailing;
  bool of_interest = false;
};

class HeadingReader {
 public:
  // Over the vocabulary below.
  HeadingReader() : folder_(std::filesystem::temp_directory_path() / "cantorel_heading_tests") {
    static const bool written = WriteFolder(folder_);
    EXPECT_TRUE(written);
    UseFolder(folder_.string());
  }
  // Over the two files of a folder.
  explicit HeadingReader(const std::string& folder) { UseFolder(folder); }

  // Reads a field text such as "$aSuites (Flute)$vScores"; without a delimiter
  // ahead it is taken as the $a.
  HeadingAnswer Read(std::string_view heading) {
    std::string text = FromDollars(heading);
    if (!text.starts_with('\x1F'))
      text.insert(0,
                  "\x1F"
                  "a");
    return ReadRaw(text);
  }
  HeadingAnswer ReadRaw(std::string_view text) {
    context_.heading_text = text;
    HeadingAnswer answer;
    std::string field, trailing;
    answer.result = ParseHeading(context_, {derivation_table_, subfield_2_}, text, field, trailing);
    answer.field = ToDollars(field);
    answer.trailing = ToDollars(trailing);
    answer.of_interest = context_.of_interest;
    return answer;
  }

  MediumContext& Context() { return context_; }
  MediumVocabulary& Vocabulary() { return vocabulary_; }

 private:
  void UseFolder(const std::string& folder) {
    vocabulary_.InstrumentFile(folder + "\\MusicMedium.Lcmpt.txt");
    derivation_table_ = folder + "\\Music6xxTo655.txt";
  }

  static bool WriteFolder(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    std::ofstream vocabulary(folder / "MusicMedium.Lcmpt.txt", std::ios::binary);
    vocabulary
        << "[Instruments]\n"
           "BAND=band\nBARITONE_HORN=baritone horn\nBASSOON=bassoon\nCELLO=cello\n"
           "CLARINET=clarinet\nCONTINUO=continuo\nDRUM_AND_BUGLE_CORPS=drum and bugle corps\n"
           "ELECTRONICS=electronics\nFIFE_AND_DRUM_CORPS=fife and drum corps\nFLUTE=flute\n"
           "GUITAR=guitar\nHIGH_VOICE=high voice\nHORN=horn\nJAZZ_ENSEMBLE=jazz ensemble\n"
           "LOW_VOICE=low voice\nMANDOLIN=mandolin\nMEDIUM_VOICE=medium voice\nOBOE=oboe\n"
           "ORCHESTRA=orchestra\nORGAN=organ\nPERCUSSION=percussion\nPIANO=piano\n"
           "SAXOPHONE=saxophone\nSINGER=singer\nSPEAKER=speaker\n"
           "STRING_ORCHESTRA=string orchestra\nVIOLA=viola\nVIOLIN=violin\n"
           "VIOLONCELLO=cello\nVOCAL_ENSEMBLE=vocal ensemble\n"
           "[Ensembles]\n"
           "BAND=band\nCHORUS=chorus\nFLUTE_CHOIR=flute choir\nJAZZ_ENSEMBLE=jazz ensemble\n"
           "MIXED_CHORUS=mixed chorus\nORCHESTRA=orchestra\n"
           "STRING_ORCHESTRA=string orchestra\nWOMENS_CHORUS=women's chorus\n";
    std::ofstream table(folder / "Music6xxTo655.txt", std::ios::binary);
    table << "[List12]\nTONE_POEMS=orchestra\nBRASS_BANDS=band\x1Fn1\n"
             "GUQIN_TUNES=gu[U+0302]qin [u+0041][U+110000][U+D800][U+][U+00e9\n"
             "[FileSignature]\nFilePresent=True\n";
    return vocabulary.good() && table.good();
  }

  std::filesystem::path folder_;
  std::string derivation_table_;
  std::string subfield_2_ = FromDollars("$2lcmpt");
  MusicSession session_;
  ConversionReport report_;
  MediumVocabulary vocabulary_{session_, report_};
  Utf8MarcRecordClass record_;
  MediumContext context_{record_, vocabulary_, report_, {}, "NONE"};
};

// A heading, the field expected of it (empty for result 0), and the rule that
// decides.
struct HeadingCase {
  std::string_view heading;
  std::string_view field;
  std::string_view rule;
};

inline void ExpectFields(HeadingReader& reader, const std::vector<HeadingCase>& cases) {
  for (const HeadingCase& c : cases) {
    const HeadingAnswer answer = reader.Read(c.heading);
    EXPECT_EQ(answer.field, c.field) << c.heading << "\n  " << c.rule;
    EXPECT_EQ(answer.result, c.field.empty() ? kHeadingGaveNothing : kHeadingGaveField)
        << c.heading << "\n  " << c.rule;
  }
}

}  // namespace cantorel

#endif  // CANTOREL_TESTS_MEDIUM_HEADING_READER_H_
