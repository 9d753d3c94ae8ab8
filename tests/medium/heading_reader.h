// Reads headings over the small vocabulary or over a folder of one's choice.

#ifndef CANTOREL_TESTS_MEDIUM_HEADING_READER_H_
#define CANTOREL_TESTS_MEDIUM_HEADING_READER_H_

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "charset/marc_control.h"
#include "medium/heading_grammar.h"
#include "record/utf8_marc_record_class.h"
#include "small_vocabulary.h"

namespace cantorel {

struct HeadingAnswer {
  std::int32_t result = 0;
  std::string field;
  std::string trailing;
  bool of_interest = false;
};

class HeadingReader {
 public:
  HeadingReader() { UseFolder(small_.Folder()); }
  // Over the two files of a folder.
  explicit HeadingReader(const std::string& folder) { UseFolder(folder); }

  // Reads a field text such as "$aSuites (Flute)$vScores"; without a delimiter
  // ahead it is taken as the $a.
  HeadingAnswer Read(std::string_view heading) {
    std::string text = Delimited(heading);
    if (!text.starts_with(kDelimiter)) text.insert(0, Delimited("$a"));
    return ReadRaw(text);
  }
  HeadingAnswer ReadRaw(std::string_view text) {
    context_.heading_text = text;
    HeadingAnswer answer;
    std::string field, trailing;
    answer.result = ParseHeading(context_, {derivation_table_, subfield_2_}, text, field, trailing);
    answer.field = Readable(field);
    answer.trailing = Readable(trailing);
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

  SmallVocabulary small_;
  std::string derivation_table_;
  std::string subfield_2_ = Delimited("$2lcmpt");
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
