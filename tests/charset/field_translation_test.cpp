// Field texts between MARC-8 and UTF-8.  In the cases "|" is the delimiter and
// "~" the escape.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "charset/combining_marks.h"
#include "charset/marc8_mapping.h"
#include "charset/utf8_code_point.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

std::string Octets(std::string_view readable) {
  std::string text(readable);
  std::replace(text.begin(), text.end(), '|', '\x1F');
  std::replace(text.begin(), text.end(), '~', '\x1B');
  return text;
}

std::string Inward(std::string_view tag, std::string text, bool* error = nullptr) {
  static Utf8MarcRecordClass record;
  record.CharacterSetIn("M");
  const std::string before = text;
  std::string indicators = "  ";
  bool changed = false;
  bool any_error = false;
  record.TranslateMarc2Utf8OneField("B", tag, indicators, text, changed, any_error);
  EXPECT_EQ(changed, text != before);
  if (error != nullptr) *error = any_error;
  return text;
}

std::string Outward(std::string_view tag, std::string text, std::string_view set_out = "M") {
  static Utf8MarcRecordClass record;
  const std::string before = text;
  std::string indicators = "  ";
  bool changed = false;
  bool error = false;
  record.TranslateUtf82MarcOneField(tag, indicators, text, changed, error, set_out);
  EXPECT_EQ(changed, text != before);
  EXPECT_FALSE(error);
  return text;
}

struct FieldCase {
  std::string_view tag;
  std::string_view marc8;
  std::string_view utf8;
};

TEST(FieldToUtf8, ReadsEscapesMarksAndNotations) {
  const FieldCase kCases[] = {
      {"245", "|aA & B; &#x; &#xZZ; &# &#12", "|aA & B; &#x; &#xZZ; &# &#12"},
      {"245", "|a\342e\xE2", "|ae\u0301\u0301"},
      // Class by class; those above in reverse order of arrival, others in order.
      {"245", "|a\xED\xF2\xE1\xE2\xF3\360a", "|aa\u0327\u0323\u0324\u0301\u0300\u0315"},
      {"245",
       "|aab\xE2|ce\xE2|"
       "d",
       "|aab\u0301|ce\u0301|d"},
      {"245", "|\xE2\342e", "|\342e\u0301"},  // a code is no mark
      {"245", "|a\xE2~(Na~(B", "|a\u0410\u0301"},
      {"245", "|a\xEBi\354a", "|ai\uFE20a\uFE21"},
      // Sets and their partners; Latin returns at a subfield.
      {"245", "|a~(NaB C\xC0\xE2|ba\342e", "|a\u0410\u0431 \u0446\u0491\u0403|bae\u0301"},
      {"245", "|a~(Na|ba", "|a\u0410|ba"},
      {"245", "|a~)Q\xC0|b\342e", "|a\u0491|be\u0301"},
      {"245", "|a~)!E~(N\342a~)3~(B\xC7", "|a\u0410\u0301\u0627"},
      {"245", "|a~(QD~(!Ebe~s.", "|a\u0451.\u0304\u0301"},
      {"245", "|a~p2~s~b2~(B~gc~sx", "|a\u00B2\u2082\u03B3x"},
      {"245", "|a~$1!3Q !3Q~(Bx~$,1!3Q", "|a\u5203 \u5203x\u5203"},
      {"245", "|a~$1!3Q!3Q!|b!", "|a\u5203\u5203[MARC+21]|b!"},
      {"245", "|a~$1!3Q~(N!", "|a\u5203!"},
      {"245", "|a~(Zab\342e~s!", "|a[MARC+61][MARC+62][MARC+65]\u0301!"},
      {"245", "|a\x81\xFF", "|a[MARC+81][MARC+FF]"},
      // An escape that names nothing, or is cut, is text.
      {"245", "|a~xa~|b~(|c~(N|d~$,|e~)!|fa~", "|a~xa~|b~(|c|d~$,|e~)!|fa~"},
      {"245", "|a\xE2&#x2603;e&#xE9;&#X1d15e;&#233;", "|a\u0301\u2603e\u00E9\U0001D15E\u00E9"},
      {"245", "|a&#x1F;&#30;&#xD834DD5E;&#x110000;", "|a&#x1F;&#30;\U0001D15E&#x110000;"},
      // A Greek mark goes behind its letter in an 880 and stays elsewhere; points
      // stay everywhere.
      {"880", "|6245-01/(S|a~(S\042a&a", "|6245-01/(S|a\u03B1\u0301\u0314\u03B1"},
      {"245", "|a~(S\042a", "|a\u0301\u03B1"},
      {"880", "|a~(2`K~(B", "|a\u05D0\u05BC"},
  };
  for (const FieldCase& c : kCases) {
    bool error = false;
    const std::string utf8 = Inward(c.tag, Octets(c.marc8), &error);
    EXPECT_EQ(utf8, Octets(c.utf8)) << c.marc8;
    EXPECT_EQ(error, c.utf8.find("[MARC+") != std::string_view::npos) << c.marc8;
  }
}

TEST(FieldToMarc8, WritesEscapesMarksAndNotations) {
  const FieldCase kCases[] = {
      {"245", "|aPlain|bASCII ~x", "|aPlain|bASCII ~x"},
      {"245", "|a\xF2\342e\341a x\xE2 ", "|ae\u0301\u0323a\u0300 x \u0301"},
      {"245", "|a\xE1\xE2\xF2\363e", "|ae\u0323\u0324\u0301\u0300"},
      {"245", "|a&#x0301;e&#x2603;&#x0301;x", "|a\u0301e\u2603\u0301x"},
      {"245", "|a&#x1d15e;&#x200f;&#x00e9;&#x00c3;", "|a\U0001D15E\u200F\u00E9\xC3"},
      {"245", "|aa &#x001b;(N~x", "|aa ~(N~x"},
      {"245", "|aa ~(NSLOWO, 1 ~(BA.|bx", "|aa \u0441\u043B\u043E\u0432\u043E, 1 A.|bx"},
      {"245", "|a~)Q\xC0~(Na~)!E~(B\xA1", "|a\u0491\u0410\u0141"},
      {"245", "|a~$1!3Q~(B~)Q\xC0 ~)!E~(B", "|a\u5203\u0491 "},
      // Alone the Greek letters are signs, in a Greek word they are not.
      {"245", "|a~ga~(B-~(Sabe~(B, ~ga~(B", "|a\u03B1-\u03B1\u03B2\u03B4, \u03B1"},
      {"880", "|6245-01/(S|a~(Sa~(B", "|6245-01/(S|a\u03B1"},
      {"880", "|6245-01/(2/r|a~(2` 1~(B-|b~p2~(B", "|6245-01/(3/r|a\u05D0 1-|b\u00B2"},
      {"880", "|6245-01/r|a~(2`~(B", "|6245-01/r|a\u05D0"},
      {"880", "|a~(S\"ae~(B", "|a\u03B1\u0301\u03B4"},
      {"245", "|a\xEBt\xECs\xFAn\xFBg\xEBx", "|at\u0361sn\u0360gx\u0361"},
  };
  for (const FieldCase& c : kCases) {
    EXPECT_EQ(Outward(c.tag, Octets(c.utf8)), Octets(c.marc8)) << c.utf8;
  }
  EXPECT_EQ(Outward("245", "\u00B2\u2113\u00BF\u03B1\u00DF", "V"), "\xC2\xA0\x95\xAF&#x00df;");
  EXPECT_EQ(Outward("245", "\u00B2\u2113", "O"), "\x1Bp2\x1B(B\xBE");
}

// --- What comes back ---------------------------------------------------------

// Every character of MARC-8, by the set that has it first.
std::vector<std::pair<Marc8Set, std::uint32_t>> AllCharacters() {
  std::vector<std::pair<Marc8Set, std::uint32_t>> all;
  for (std::uint32_t code_point = 0x20; code_point < 0x30000; ++code_point) {
    Marc8Form form;
    if (code_point != '&' && Marc8FormOf(code_point, form)) all.push_back({form.set, code_point});
  }
  return all;
}

TEST(FieldTranslation, BringsEveryCharacterBackBehindEverySet) {
  // One character of each set, in each order before and behind every other.
  std::string samples[] = {"x",      "\u00E6", "\u03B2", "\u2082", "\u00B2", "\u05D0",
                           "\u0430", "\u0627", "\u03B4", "\u5203", "\u0491", "\u067E"};
  for (const std::string& a : samples) {
    for (const std::string& b : samples) {
      for (std::string_view mark : {"", "\u0301", "\u0327\u0323\u0324\u0301\u0300\u0315"}) {
        const std::string text = "\037a" + a + b + std::string(mark) + a + " " + b + "\037b" + b +
                                 "e\u0301" + a + std::string(mark);
        for (std::string_view tag : {"245", "880"}) {
          EXPECT_EQ(Inward(tag, Outward(tag, text)), text);
        }
      }
    }
  }
  std::string text = "\037a";
  for (const auto& [set, code_point] : AllCharacters()) {
    if (MarkClass(code_point) != kNoMark) text += 'x';
    AppendUtf8(code_point, text);
    text += "x";
  }
  const std::string back = Inward("245", Outward("245", text));
  const auto differs = std::mismatch(text.begin(), text.end(), back.begin(), back.end());
  EXPECT_EQ(back.size(), text.size());
  EXPECT_TRUE(differs.first == text.end()) << "at " << differs.first - text.begin();
}

TEST(FieldTranslation, SettlesWhateverItIsGiven) {
  static constexpr std::string_view kPieces[] = {
      "\x1B", "\x1F", "(",   ")", "$",    "1",        "!E",       "N",    "Q",
      "3",    "B",    "s",   "g", "\xE2", "\xF2",     "\xEB",     "\xC0", "\x81",
      "a",    " ",    "&#x", ";", "41",   "\xCC\x81", "\xE2\x98", "!3Q",
  };
  std::minstd_rand random(6);
  for (int round = 0; round < 4000; ++round) {
    std::string text;
    for (unsigned pieces = random() % 24; pieces > 0; --pieces) {
      text += kPieces[random() % std::size(kPieces)];
    }
    const std::string_view tag = round % 2 == 0 ? "245" : "880";
    Outward(tag, text);
    const std::string once = Inward(tag, text);
    const auto subfields = [](std::string_view t) {
      return std::count(t.begin(), t.end(), '\x1F');
    };
    EXPECT_EQ(subfields(once), subfields(text));
    const std::string twice = Inward(tag, Outward(tag, once));
    EXPECT_EQ(Inward(tag, Outward(tag, twice)), twice) << testing::PrintToString(text);
  }
}

// Many marks, many open halves, many Greek letters: nothing is gone through again
// and again.  Quadratic work on these would outlast any patience.
TEST(FieldTranslation, TakesLongRunsInOneGo) {
  for (std::string_view piece :
       {"\u0301", "\uFE20", "\u03B1", "\u0361", "\x1B", "&#", "x\uFE20\u0301"}) {
    std::string text = "\037a";
    for (int i = 0; i < 20000; ++i) text += piece;
    Inward("245", Outward("245", text));
    Inward("880", text);
    Utf8MarcRecordClass record;
    record.UseDoubleWidthDiacritics(true);
    EXPECT_FALSE(record.AdjustDoubleHalfDiacritics(text).empty());
  }
}

// --- Members about single steps ------------------------------------------------

TEST(TranslateMarc2Utf8OneField, CorrectsTheCountOfNonfilingCharacters) {
  const struct {
    std::string_view format, tag, indicators, text, corrected;
  } kCases[] = {
      {"B", "245", "14", "|aThe\342a", "13"},  {"B", "245", "15", "|aThe \xE2\343a", "14"},
      {"B", "245", "14", "|aThe \342a", "14"}, {"B", "245", "19", "|a\342a", "19"},
      {"B", "730", "4 ", "|aThe\342a", "3 "},  {"B", "246", "14", "|aThe\342a", "14"},
      {"A", "130", " 4", "|aThe\342a", " 3"},  {"A", "730", "4 ", "|aThe\342a", "4 "},
      {"H", "245", "14", "|aThe\342a", "14"},  {"B", "245", "1 ", "|aThe\342a", "1 "},
  };
  for (const auto& c : kCases) {
    Utf8MarcRecordClass record;
    record.CharacterSetIn("M");
    std::string indicators(c.indicators);
    std::string text = Octets(c.text);
    bool changed = false;
    bool error = false;
    record.TranslateMarc2Utf8OneField(c.format, c.tag, indicators, text, changed, error);
    EXPECT_EQ(indicators, c.corrected) << c.format << c.tag << c.text;
  }
}

TEST(FindBreakAdjustCode, TakesTheDesignationOff) {
  const struct {
    std::string_view text, code, rest;
  } kCases[] = {{"a~(Nb", "(N", "b"},   {"a~$,1b", "$1", "b"}, {"a~$)1b", "$)1", "b"},
                {"a~$-1b", "$)1", "b"}, {"a~)Bb", "s", "b"},   {"a~)!Eb", ")!E", "b"},
                {"a~pb", "p", "b"},     {"a~(", "?", "a~("},   {"a", "?", "a"}};
  for (const auto& c : kCases) {
    std::string code = "?";
    std::string text = Octets(c.text);
    Utf8MarcRecordClass::TranslateMarc2Utf8OneFieldFindBreakAdjustCode(code, 2, text);
    EXPECT_EQ(code, c.code);
    EXPECT_EQ(text, Octets(c.rest));
  }
}

TEST(SetUpTranslation, ReplacesOctetsOfAPair) {
  const struct {
    std::int32_t pair;
    std::string_view from, to;
  } kCases[] = {{0, "a\xC1\xBE", "a\xBE\xBE"},
                {1, "\xC0\xC1\xC2\xC5\xC6", "\x90\xA0\x92\xC5\x96"},  // C5 passes
                {2, "\xC1\xBE", "\xC1\xC1"},
                {3, "\xBE\xC0\xC1\xC5\xC6", "\xA0\x90\xC1\xC5\x96"},
                {4, "\x95\xA0\xAF\xCD\xD0", "\xC5\xC1\x1Bga\x1Bs\x1Bp)\x1Bs\033b0\x1Bs"},
                {5, "\x95\xA0", "\xC5\xBE"},
                {6, "\x95\xA0", "\x95\xA0"}};
  for (const auto& c : kCases) {
    Utf8MarcRecordClass record;
    record.SetUpTranslation(c.pair);
    EXPECT_EQ(record.Translate880FieldTranslateThePiece(c.from), c.to) << c.pair;
  }
}

TEST(AdjustDoubleHalfDiacritics, JoinsHalvesOnNeighbours) {
  const struct {
    std::string_view halves, joined;
  } kCases[] = {{"t\uFE20s\uFE21.", "t\u0361s."},
                {"n\u0323\uFE22\u0301g\u0323\uFE23", "n\u0323\u0360\u0301g\u0323"},
                {"t\uFE20st\uFE21", "t\uFE20st\uFE21"},
                {"t\uFE20s\uFE23", "t\uFE20s\uFE23"},
                {"t\uFE20\x1Fs\uFE21\uFE20", "t\uFE20\x1Fs\uFE21\uFE20"}};
  Utf8MarcRecordClass record;
  for (const auto& c : kCases) {
    EXPECT_EQ(record.AdjustDoubleHalfDiacritics(c.halves), c.halves);
  }
  EXPECT_EQ(record.AdjustDoubleHalfDiacritics("t\uCDA1s \uCDA1\uCDA0"),
            "t\uFE20s\uFE21 \uCDA1\uCDA0");
  record.UseDoubleWidthDiacritics(true);
  for (const auto& c : kCases) {
    EXPECT_EQ(record.AdjustDoubleHalfDiacritics(c.halves), c.joined);
  }
}

TEST(TranslateMarc2Utf8OneFieldLcPattern, MarksTheDirectionsOfARightToLeftField) {
  // "<" and ">" open and close an embedding, "^" is the right-to-left mark.
  const auto visible = [](std::string text) {
    for (const auto& [from, to] : {std::pair{"\u202A", "<"}, {"\u202C", ">"}, {"\u200F", "^"}}) {
      for (std::size_t i; (i = text.find(from)) != std::string::npos;) text.replace(i, 3, to);
    }
    return text;
  };
  const FieldCase kCases[] = {
      {"245", "|a\u05D0", "|a\u05D0"},
      {"880", "|aLatin only", "|aLatin only"},
      {"880", "|6245-01/(2/r|a\u05D0 :|c1998.", "|6245-01/(2/r|a\u05D0 :^|c1998.^"},
      {"880", "|a\u05D0 Op. 3 (Bonn), \u05D0 7.|bSonata (No. 2).",
       "|a\u05D0 <Op. 3 (Bonn)>, \u05D0 7.^|b<Sonata (No. 2)>.^"},
      {"880", "|a\u0627\u200F", "|a\u0627^"},
      {"880", "|a\u0627 \u202Ax\u202C e\u0301", "|a\u0627 <x> e\u0301^"},
  };
  for (const FieldCase& c : kCases) {
    EXPECT_EQ(
        visible(Utf8MarcRecordClass::TranslateMarc2Utf8OneFieldLcPattern(c.tag, Octets(c.marc8))),
        Octets(c.utf8));
  }
}

}  // namespace
}  // namespace cantorel
