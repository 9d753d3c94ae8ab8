#include "cli/record_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/input_buffer.h"
#include "slow_source.h"

namespace cantorel::cli {
namespace {

// A sound record with a 001 and a 245 of `title`.
std::string Record(const std::string& title) {
  const std::string fields = "id\03600\037a" + title + "\036\035";
  char directory[32];
  std::snprintf(directory, sizeof directory, "001000300000245%04zu00003", fields.size() - 4);
  const std::string body = std::string(directory) + "\036" + fields;
  char leader[32];
  std::snprintf(leader, sizeof leader, "%05zuncm a2200049 a 4500", body.size() + 24);
  return leader + body;
}

using Pieces = std::vector<std::pair<std::uint64_t, std::string>>;  // offset and octets

template <typename Reader>
Pieces Cut(std::string_view input, std::size_t step) {
  SlowSource source(input, step);
  Reader reader(source);
  Pieces pieces;
  for (Piece piece; reader.Next(piece);) {
    pieces.emplace_back(piece.offset, std::string(piece.octets));
    EXPECT_EQ(piece.number, pieces.size());
  }
  return pieces;
}

// The pieces must not depend on how the input happens to arrive.
template <typename Reader>
void ExpectPieces(std::string_view input, const Pieces& expected) {
  for (std::size_t step = 1; step <= input.size() + 1; ++step) {
    ASSERT_EQ(Cut<Reader>(input, step), expected) << "step " << step;
  }
}

TEST(Iso2709ReaderTest, CutsAtRecordEnds) {
  const std::string a = Record("Sonata"), b = Record("Trio");
  ExpectPieces<Iso2709Reader>("", {});
  ExpectPieces<Iso2709Reader>("\r\n \n", {});
  ExpectPieces<Iso2709Reader>(a + b, {{0, a}, {a.size(), b}});
  // Line ends, blanks and padding between records are nobody's octets; so is the
  // signature that some editors put in front.
  ExpectPieces<Iso2709Reader>("\xEF\xBB\xBF" + a + "\r\n" + b + std::string(3, '\0') + "\x1A",
                              {{3, a}, {a.size() + 5, b}});
}

TEST(Iso2709ReaderTest, KeepsWhatIsDamagedApartFromItsNeighbours) {
  const std::string a = Record("Sonata"), b = Record("Trio"), c = Record("Nocturne");
  const std::string truncated = a.substr(0, a.size() - 9);
  ExpectPieces<Iso2709Reader>(truncated, {{0, truncated}});
  ExpectPieces<Iso2709Reader>(b + truncated, {{0, b}, {b.size(), truncated}});
  ExpectPieces<Iso2709Reader>(truncated + b, {{0, truncated}, {truncated.size(), b}});
  ExpectPieces<Iso2709Reader>("HTTP/1.1 200 OK\n" + a, {{0, "HTTP/1.1 200 OK\n"}, {16, a}});
  ExpectPieces<Iso2709Reader>(a + "junk\035" + b,
                              {{0, a}, {a.size(), "junk\035"}, {a.size() + 5, b}});

  std::string unended = a;
  unended.back() = '#';
  ExpectPieces<Iso2709Reader>(unended + b, {{0, unended}, {a.size(), b}});

  // A length that is wrong by chance points at the end of the next record.
  std::string too_long = a;
  char both[8];
  std::snprintf(both, sizeof both, "%05zu", a.size() + b.size());
  too_long.replace(0, 5, both);
  ExpectPieces<Iso2709Reader>(too_long + b + c,
                              {{0, too_long}, {a.size(), b}, {a.size() + b.size(), c}});
  // Too short a length leaves the record whole.
  std::string too_short = a;
  too_short.replace(0, 5, "00030");
  ExpectPieces<Iso2709Reader>(too_short + b, {{0, too_short}, {a.size(), b}});
}

TEST(Iso2709ReaderTest, TakesTheLeadersWordForAStrayTerminator) {
  const std::string a = Record("So\035nata"), b = Record("Trio");
  ExpectPieces<Iso2709Reader>(a + b, {{0, a}, {a.size(), b}});
}

TEST(Iso2709ReaderTest, BoundsARecordWithoutEnd) {
  const std::string b = Record("Trio");
  const std::string endless(kMostOctets + 70000, 'x');
  EXPECT_EQ(Cut<Iso2709Reader>(endless + "\035" + b, 65536),
            (Pieces{{0, endless.substr(0, kMostOctets)}, {endless.size() + 1, b}}));
  EXPECT_EQ(Cut<Iso2709Reader>(endless, 65536).size(), 1U);
}

TEST(LineReaderTest, CutsAtBlankLines) {
  ExpectPieces<LineReader>("", {});
  ExpectPieces<LineReader>("\n\r\n", {});
  ExpectPieces<LineReader>("cm\n650 0$aDuets\n\n\njm\n650 0$aTrios\t7",
                           {{0, "cm\n650 0\037aDuets"}, {18, "jm\n650 0\037aTrios\t7"}});
  ExpectPieces<LineReader>("cm\r\n650 0$aDuets\r\n \r\njm\r\n",
                           {{0, "cm\n650 0\037aDuets"}, {21, "jm"}});
  // Letters and marks come apart, as records hold them.
  ExpectPieces<LineReader>("cm\n650 0$aT\u00EAte", {{0, "cm\n650 0\037aTe\u0302te"}});
}

TEST(FileSourceTest, SaysWhyAFileCannotBeRead) {
  char octet;
  FileSource missing("/no such folder/file");
  EXPECT_EQ(missing.Read(&octet, 1), 0U);
  EXPECT_EQ(missing.Error(), "No such file or directory");
  FileSource folder("/");
  EXPECT_EQ(folder.Read(&octet, 1), 0U);
  EXPECT_EQ(folder.Error(), "Is a directory");
}

}  // namespace
}  // namespace cantorel::cli
