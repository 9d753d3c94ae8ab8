// A music class over a small vocabulary and derivation table, and a record to
// try it on.  "$" stands for the delimiter everywhere.

#ifndef CANTOREL_TESTS_GENRE_GENRE_FIXTURE_H_
#define CANTOREL_TESTS_GENRE_GENRE_FIXTURE_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "medium/music_650_to_382_class.h"
#include "medium/small_vocabulary.h"

namespace cantorel {

struct TestField {
  std::string_view tag;
  std::string_view indicators;
  std::string_view text;
};

class GenreTest : public ::testing::Test {
 protected:
  GenreTest() {
    const std::string folder = files_.Folder();
    std::ofstream(folder + "/Music6xxTo655.txt", std::ios::binary)
        << "[FileSignature]\nFilePresent=True\n"
           "[List2]\nFLUTE_MUSICvMETHODS_1=655#7\tMethods (Music)\tlcgft\n"
           "[List3]\nANTHEMS_1=655#7\tAnthems\tlcgft\nANTHEMS_2=385##\tChoirs\tlcdgt\n"
           "MOTION_PICTURE_MUSIC_1=655#7\tMotion picture music\tlcgft\n"
           "[List5]\nSCORESvPARTS_1=655#7\tPairs\tlcgft\n"
           "[List6]\nBIBLIOGRAPHY_1=x//655#7\tBibliographies\tlcgft\n";
    music_.Parm_InstrumentNameConfigurationFile(files_.Path());
    Begin("c", " ");
  }

  // A new record without a 008/20 of its own but `format`.
  void Begin(std::string_view type, std::string_view format) {
    music_.Reset(false);
    record_.NewRecord(type, "m");
    record_.Change008Value(18, "  ");
    record_.Change008Value(20, format);
    record_.Change008Value(21, " ");
  }
  void Add(const std::vector<TestField>& fields) {
    for (const TestField& field : fields) {
      record_.FldAdd(field.tag, field.indicators, Delimited(field.text));
    }
  }
  // The new lines.
  std::string Derive() {
    std::string spare;
    music_.Convert6xxTo655_Marc(record_, scratch_, record_.CharClass(), existing_lines_, new_lines_,
                                spare);
    return Readable(new_lines_);
  }
  std::string DeriveFrom(const std::vector<TestField>& fields) {
    Begin("c", " ");
    Add(fields);
    return Derive();
  }
  void AddDerived(std::string_view tag, std::string_view code, std::string_view text,
                  std::string_view source) {
    music_.Private_655_AddField(record_, tag, " 7", code, Delimited(text), source, new_lines_);
  }
  // The fields of a tag with their indicators, in record order.
  std::vector<std::string> Fields(std::string_view tag) {
    std::vector<std::string> fields;
    for (record_.FldMoveTop(); record_.FldMoveNext(true);) {
      if (record_.FldTag() == tag) fields.push_back(Readable(record_.FldInd() + record_.FldText()));
    }
    return fields;
  }
  // Messages as "band text: terms".
  std::vector<std::string> Messages() {
    std::vector<std::string> messages;
    const std::int32_t count = music_.Parm_MessageCount(scratch_);
    for (std::int32_t i = 1; i <= count; ++i) {
      music_.Parm_MessageIndex(i);
      messages.push_back(std::to_string(music_.Parm_MessageType()) + ' ' +
                         music_.Parm_MessageText() + ": " +
                         Readable(music_.Parm_MessageTerms(scratch_)));
    }
    return messages;
  }

  SmallVocabulary files_;
  Utf8MarcRecordClass record_;
  Utf8MarcRecordClass scratch_;
  MusicSession session_{&scratch_, {}, true, {}, nullptr};
  Music650To382Class music_{session_};
  std::string existing_lines_;
  std::string new_lines_;
};

}  // namespace cantorel

#endif  // CANTOREL_TESTS_GENRE_GENRE_FIXTURE_H_
