// Thesis notes: the forms that are taken apart, and the many that are not.

#include "record/thesis_note.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using testing::ElementsAre;

// The note as it goes into the field, "-" when it is left alone.
std::string Parsed(std::string_view text, std::string_view date = "1998") {
  const std::string field = Text(text);
  const auto note = ParseThesisNote(field, date);
  if (!note) return "-";
  std::string out;
  const auto add = [&](char code, std::string_view part) {
    if (!part.empty()) out.append(1, '$').append(1, code).append(part);
  };
  add('b', note->degree);
  add('g', note->miscellaneous);
  add('c', note->institution);
  add('d', note->year);
  return out;
}

struct NoteCase {
  std::string_view text;
  std::string_view parts;
};

TEST(ThesisNote, UsualForms) {
  const NoteCase cases[] = {
      {"Thesis (Ph. D.)--Indiana University, 1998.", "$bPh. D.$cIndiana University$d1998"},
      {"Thesis (M.A.) -- University of X, 1975", "$bM.A.$cUniversity of X$d1975"},
      {"Thesis (M.A.)--University College, London, 1969.",
       "$bM.A.$cUniversity College, London$d1969"},
      {"Thesis (doctoral)--Universität, Göttingen, 1990.",
       "$bdoctoral$cUniversität, Göttingen$d1990"},
      {"Diss.--Freie Universität Berlin, 2001", "$cFreie Universität Berlin$d2001"},
      {"Inaug.-Diss., Heidelberg.", "$gInaug.-Diss.$cHeidelberg"},
      {"Inaug.-Diss.--Heidelberg, 1972.", "$gInaug.-Diss.$cHeidelberg$d1972"},
      {"Inaug. Diss.--Marburg 1998.", "$gInaug. Diss.$cMarburg$d1998"},
      {"Thesis--Yale.", "$cYale"},
      {"Ph.D. dissertation, Stanford University, 2005.", "$bPh.D.$cStanford University$d2005"},
      {"Master's thesis--Yale University, 1998", "$bMaster's$cYale University$d1998"},
      {"Karl Schmidt's thesis (doctoral), Munich, 1965.",
       "$bdoctoral$gKarl Schmidt's thesis$cMunich$d1965"},
      {"Originally presented as the author's thesis (M.S.), Yale, 1970.",
       "$bM.S.$gOriginally presented as the author's thesis$cYale$d1970"},
      {"Th\xC3\xA8se (doctorat)--Universit\xC3\xA9 de Paris, 1990.",
       "$bdoctorat$gTh\xC3\xA8se$cUniversit\xC3\xA9 de Paris$d1990"},
      {"The\xCC\x80se--E\xCC\x81"
       "cole normale, 1990",
       "$gThe\xCC\x80se$cE\xCC\x81"
       "cole normale$d1990"},
      {"THESIS (PH.D.)--YALE UNIVERSITY, 1998.", "$bPH.D.$cYALE UNIVERSITY$d1998"},
  };
  for (const NoteCase& c : cases) {
    EXPECT_EQ(Parsed(c.text), c.parts) << c.text;
    EXPECT_EQ(Parsed("$a" + std::string(c.text)), c.parts) << c.text;
  }
}

TEST(ThesisNote, DividersOfAllKinds) {
  for (std::string_view divider :
       {"--", " -- ", " - ", ", ", ": ", " \xE2\x80\x94 ", "\xE2\x80\x93", " ", "-", ".--"}) {
    EXPECT_EQ(Parsed("Thesis (M.A.)" + std::string(divider) + "Yale, 1998."), "$bM.A.$cYale$d1998")
        << divider;
  }
  for (std::string_view text : {"Thesis, Ph. D., Yale, 1998", "Thesis: Ph. D., Yale, 1998",
                                "Thesis Ph. D.--Yale, 1998", "Thesis (Ph. D.--Yale, 1998).",
                                "Thesis (Ph. D., Yale, 1998)", "Ph. D. thesis. -- Yale,1998"}) {
    EXPECT_EQ(Parsed(text), "$bPh. D.$cYale$d1998") << text;
  }
}

TEST(ThesisNote, YearOnEitherSideAndInManyForms) {
  const NoteCase cases[] = {
      {"Thesis (Ph. D.)--1998, Indiana University.", "$bPh. D.$cIndiana University$d1998"},
      {"Thesis, 1975, Yale", "$cYale$d1975"},
      {"Thesis (M.A., 1975)--University of Iowa.", "$bM.A.$cUniversity of Iowa$d1975"},
      {"Thesis (1975)--University of X", "$cUniversity of X$d1975"},
      {"Thesis (M.A.), 1975--University of X", "$bM.A.$cUniversity of X$d1975"},
      {"Thesis--Yale (1975).", "$cYale$d1975"},
      {"Thesis--Yale, [1975]", "$cYale$d[1975]"},
      {"Thesis--Yale, 1975?", "$cYale$d1975?"},
      {"Thesis--Yale, c1975.", "$cYale$dc1975"},
      {"Thesis--Yale, 1997-98.", "$cYale$d1997-98"},
      {"Thesis--Naval Postgraduate School, Dec. 1998.", "$cNaval Postgraduate School$dDec. 1998"},
      {"Thesis--Yale, June 1975", "$cYale$dJune 1975"},
      {"Diss.--Universität Marburg, 1975", "$cUniversität Marburg$d1975"},
      {"Thesis--Université de Paris 8, 1975", "$cUniversité de Paris 8$d1975"},
      {"Thesis--Université de Paris 8", "$cUniversité de Paris 8"},
  };
  for (const NoteCase& c : cases) EXPECT_EQ(Parsed(c.text), c.parts) << c.text;
}

TEST(ThesisNote, DateSettlesAYearWithoutDivider) {
  EXPECT_EQ(Parsed("Thesis--Yale 1998.", "1998"), "$cYale$d1998");
  EXPECT_EQ(Parsed("Thesis--1998 Yale", "1998"), "$cYale$d1998");
  EXPECT_EQ(Parsed("Thesis--Yale 1998.", "1999"), "-");
  EXPECT_EQ(Parsed("Thesis--Yale 1998.", ""), "-");
}

TEST(ThesisNote, FinalStopGoesUnlessItAbbreviates) {
  EXPECT_EQ(Parsed("Thesis--Yale University."), "$cYale University");
  EXPECT_EQ(Parsed("Thesis--University of California, L.A."), "$cUniversity of California, L.A.");
  EXPECT_EQ(Parsed("Thesis--Univ. of Calif., 1998."), "$cUniv. of Calif.$d1998");
}

TEST(ThesisNote, AnythingElseIsLeftAlone) {
  for (std::string_view text : {
           "",
           "$a",
           "$",
           "--",
           "(",
           "Thesis",
           "Thesis.",
           "Thesis (Ph. D.)",
           "Thesis (Ph. D.), 1998.",
           "Thesis (Ph. D.",
           "Thesis (Yale, 1998)",
           "Thesis, 1998",
           "Thesis--",
           "Thesis: an introduction",
           "Thesis: An introduction",
           "Thesis, presented to the faculty of Yale University, 1998",
           "Thesis submitted in partial fulfilment--Yale, 1998",
           "Synthesis (Ph. D.)--Yale, 1998",
           "Symphony no. 5--London, 1998",
           "Thesis (Ph. D.)--Yale, 1998. Vita.",
           "Thesis (Ph. D.)--Yale University. Includes bibliography.",
           "Photocopy of thesis (Ph. D.)--Yale, 1998. Ann Arbor : UMI, 1999.",
           "Thesis--1998, Yale, 1999",
           "Thesis (M.A., 1998)--Yale, 1999",
           "M.A. thesis (Ph. D.)--Yale, 1998",
           "$bPh. D.$cIndiana University$d1998",
           "$aThesis (Ph. D.)--Yale, 1998.$5DLC",
           "$6880-01$aThesis (Ph. D.)--Yale, 1998.",
           "$aThesis (Ph. D.)$bPh. D.",
       }) {
    EXPECT_EQ(Parsed(text), "-") << text;
  }
}

TEST(ThesisNote, NoOctetsAreReadPastTheEnd) {
  const std::string note = "Karl's Inaug.-Diss. (Ph. D., 1998)--\xE2\x80\x94Univ. X, Dec. 1998.";
  for (std::size_t size = 0; size <= note.size(); ++size) {
    for (std::size_t from = 0; from <= size; ++from) {
      const std::string piece = note.substr(from, size - from);  // ends where it ends
      Parsed(piece);
    }
  }
}

TEST(ThesisNote, IsRecastWhenTheRecordIsWritten) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(
      Image({"001abc", "502  $aThesis (Ph. D.)--Yale, 1998.", "502  $bM.A.$cYale$d1990",
             "502  $aThe composer's second thesis.", "880  $6502-01$aThesis--Yale."}));
  record.FldPointer(4);
  record.SfdPointer(1);
  const std::string image = record.MarcRecordOut();
  EXPECT_EQ(record.FldPointer(), 4);
  EXPECT_EQ(record.SfdPointer(), 1);
  EXPECT_EQ(record.MarcRecordOut(), image) << "once recast, it stays";
  record.MarcRecordIn(image);
  EXPECT_THAT(Fields(record),
              ElementsAre("001abc", "502  $bPh. D.$cYale$d1998", "502  $bM.A.$cYale$d1990",
                          "502  $aThe composer's second thesis.", "880  $6502-01$aThesis--Yale."));
}

TEST(ThesisNote, MemberEmptiesItsPartsWhenItAnswersNo) {
  std::string b = "b", g = "g", c = "c", d = "d";
  EXPECT_FALSE(Utf8MarcRecordClass::ParseThesisNote("Note", "", b, g, c, d));
  EXPECT_EQ(b + g + c + d, "");
  EXPECT_TRUE(Utf8MarcRecordClass::ParseThesisNote("Diss. (Phil.), Wien, 1950", "", b, g, c, d));
  EXPECT_EQ(b + "/" + g + "/" + c + "/" + d, "Phil.//Wien/1950");
}

}  // namespace
}  // namespace cantorel
