#include "cli/answer.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/answer_writers.h"

namespace cantorel::cli {
namespace {

TEST(AnswerTest, ReadsReturnedFields) {
  const std::vector<FieldAnswer> fields = ParseReturnedFields(
      "12\t382011F61666C757465\n0\t655 71F61C3A9\n7\t38\nx\t382011F61\n1\t382011F6\n"
      "1\t382011f61\n0\t38201");
  ASSERT_EQ(fields.size(), 3U);  // the lines that are none are left out
  EXPECT_EQ(fields[0].id, 12);
  EXPECT_TRUE(fields[0].IsReplacement());
  EXPECT_EQ(fields[0].tag, "382");
  EXPECT_EQ(fields[0].indicators, "01");
  EXPECT_EQ(fields[0].text, "\037aflute");
  EXPECT_FALSE(fields[1].IsReplacement());
  EXPECT_EQ(fields[1].text, "\037a\xC3\xA9");
  EXPECT_EQ(fields[2].text, "");
}

TEST(AnswerTest, SplitsSubfields) {
  const std::vector<Subfield> subfields = SplitSubfields("lost\037aflute\0374\037");
  ASSERT_EQ(subfields.size(), 3U);
  EXPECT_EQ(subfields[0].code, "a");
  EXPECT_EQ(subfields[0].text, "flute");
  EXPECT_EQ(subfields[1].code, "4");
  EXPECT_EQ(subfields[1].text, "");
  EXPECT_EQ(subfields[2].code, "");
  EXPECT_TRUE(SplitSubfields("").empty());
}

RecordAnswer SampleAnswer() {
  RecordAnswer answer;
  answer.source = "music.mrc";
  answer.record = 2;
  answer.control_number = "ex2";
  answer.title = "Sonata";
  answer.result = 1;
  answer.fields = {{0, "382", "01", "\037aflute\037n1"}, {9, "382", "0 ", "\037a\xC3"}};
  answer.messages = {{2, "655 general message", "Unknown", "650 $aX", "ex2", 0}};
  return answer;
}

TEST(AnswerTest, WritesJsonOfTheAgreedShape) {
  std::string line;
  AppendJson(SampleAnswer(), line);
  EXPECT_EQ(
      line,
      R"({"source":"music.mrc","record":2,"control_number":"ex2","title":"Sonata","result":1,)"
      R"("fields":[{"id":0,"action":"add","tag":"382","indicators":"01",)"
      R"("subfields":[["a","flute"],["n","1"]]},)"
      R"({"id":9,"action":"replace","tag":"382","indicators":"0 ","subfields":[["a",")"
      "\xEF\xBF\xBD"
      R"("]]}],"messages":[{"type":2,"type_name":"655 general message","text":"Unknown",)"
      R"("terms":"650 $aX","record_ids":"ex2","instances":0}]})"
      "\n");
}

TEST(AnswerTest, JsonIsValidWhateverTheOctets) {
  std::string all(256, '\0');
  for (int octet = 0; octet < 256; ++octet) all[octet] = static_cast<char>(octet);
  RecordAnswer answer = SampleAnswer();
  answer.source = answer.title = answer.control_number = all;
  answer.fields[0].tag = answer.fields[0].indicators = "\x80\xFF";
  answer.fields[0].text = "\037\xE2" + all + "\037\xED\xA0\x80\xC0\xAF\xF4\x90\x80\x80";
  answer.messages[0].terms = all;
  std::string line;
  AppendJson(answer, line);
  EXPECT_TRUE(nlohmann::json::accept(line));
  EXPECT_EQ(line.find('\n'), line.size() - 1);
}

TEST(AnswerTest, WritesReadableText) {
  RecordAnswer answer = SampleAnswer();
  std::string text;
  AppendText(answer, text);
  EXPECT_EQ(text,
            "ex2  Sonata\n"
            "  add      382 01 $a flute $n 1\n"
            "  replace  382 0_ $a \xC3  (field 9)\n"
            "  message  655 general message: Unknown: 650 $aX\n\n");

  RecordAnswer refused;
  refused.record = 3;
  refused.result = -3;
  text.clear();
  AppendText(refused, text);
  EXPECT_EQ(text, "record 3\n  nothing  not a record of music\n\n");
}

}  // namespace
}  // namespace cantorel::cli
