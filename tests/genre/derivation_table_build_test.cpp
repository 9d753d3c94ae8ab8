#include "genre/derivation_table_build.h"

#include <functional>
#include <map>
#include <utility>

#include "genre/derivation_text.h"
#include "genre/genre_fixture.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// A workbook held in memory: rows of cells by sheet.
class SheetsInMemory : public Workbook {
 public:
  using Rows = std::vector<std::vector<std::string>>;
  explicit SheetsInMemory(std::vector<std::pair<std::string, Rows>> sheets) {
    for (auto& [name, rows] : sheets) {
      names_.push_back(name);
      rows_.push_back(std::move(rows));
    }
  }
  const std::vector<std::string>& SheetNames() const override { return names_; }
  WorkbookError ReadSheet(std::size_t sheet,
                          const std::function<bool(const WorkbookRow&)>& take) override {
    for (const std::vector<std::string>& cells : rows_[sheet]) {
      WorkbookRow row;
      row.number = ++number_;
      for (std::size_t i = 0; i < cells.size(); ++i) row.cells[i] = cells[i];
      if (!take(row)) break;
    }
    number_ = 0;
    return WorkbookError::kNone;
  }

 private:
  std::vector<std::string> names_;
  std::vector<Rows> rows_;
  std::int32_t number_ = 0;
};

struct Made {
  std::string text;
  std::vector<std::string> left_out;
  WorkbookError error;
};

Made Make(const std::string& sheet, SheetsInMemory::Rows rows) {
  SheetsInMemory workbook({{sheet, std::move(rows)}});
  DerivationBuild build;
  Made made;
  made.error = MakeDerivationTable(workbook, Utf8MarcRecordClass(), made.text, build);
  for (const LeftOutRow& row : build.left_out) made.left_out.push_back(Describe(row));
  return made;
}

TEST(DerivationTableBuild, CellsInOneLineOfAscii) {
  struct Case {
    std::string cell;
    std::string lines;
  };
  const Case cases[] = {
      {"$aOne$2lcgft$aTwo $2 x", "K_1=655#7\tOne\tlcgft\nK_2=655#7\tTwo\tx\n"},
      {"$aNo source", "K_1=655#7\tNo source\t\n"},
      {"$a$2lcgft$a $aX$2y", "K_1=655#7\tX\ty\n"},
      {"\xC3\xA9\xC3\xA9Two characters", "K_1=655#7\tTwo characters\t\n"},
      {"$a\xC2\xA0 Line\nbreak \t\xC2\xA0 end", "K_1=655#7\tLine break end\t\n"},
      {"$aCaf&eacute;&#10;x&amp;y", "K_1=655#7\tCaf[U+00E9] x&y\t\n"},
      {"$a[U+00e9] [U+000A] [U+00E9 [U+12]", "K_1=655#7\t[U+00E9] [U+000A] [U+00E9 [U+12]\t\n"},
  };
  for (const Case& c : cases) {
    EXPECT_THAT(Make("List 3", {{"k", c.cell}}).text, HasSubstr("[List3]\n" + c.lines + "\n["));
  }
}

// The key cell of List 2 takes $v ahead of $x; both are "v" in the table.
TEST(DerivationTableBuild, KeysOfTwoParts) {
  const Made made = Make("List 2", {{"A", "X $x Y $v Z.", "$a1$2s"}, {"A", "X $x Y", "$a2$2s"}});
  EXPECT_THAT(made.text, HasSubstr("X_X_YvZ_1=655#7\t1\ts\nXvY_1=655#7\t2\ts\n"));
}

// A workbook holds accented letters in one piece, a record in two.
TEST(DerivationTableBuild, KeysWithAccents) {
  const Made made =
      Make("List 3", {{"\u00C9tudes d\u00E9licates", "$a1"}, {"e\u0301te\u0301", "$a2"}});
  EXPECT_THAT(made.text, HasSubstr("ETUDES_DELICATES_1=655#7\t1\t\nETE_1=655#7\t2\t\n"));
}

TEST(DerivationTableBuild, SheetsEndBehindBlankRows) {
  const SheetsInMemory::Rows three = {{}, {}, {}, {"a", "$aA"}, {}, {"", " "}, {}, {"b", "$aB"}};
  EXPECT_THAT(Make("List 3", three).text, HasSubstr("A_1=655#7\tA\t\nB_1=655#7\tB\t\n"));
  const Made four = Make("List 3", {{"a", "$aA"}, {}, {}, {}, {"", "x"}, {"b", "$aB"}, {"c"}});
  EXPECT_THAT(four.text, Not(HasSubstr("B_1")));
  EXPECT_THAT(four.left_out,
              ElementsAre("List 3, row 5 has no key",
                          "List 3, row 6 and all below are not read, because blank rows stand "
                          "above"));
}

// Names of columns in a row without a key are nothing to look at, elsewhere they are.
TEST(DerivationTableBuild, TheFirstRowMayNameTheColumns) {
  struct Case {
    std::string sheet;
    std::vector<std::string> header;
    std::string described;
  };
  const Case cases[] = {
      {"List 2", {"Heading", "Pair", "655"}, "List 2, row 2 has no subdivision in its key"},
      {"List 3", {"", "655", "385"}, "List 3, row 2 has no key"},
      {"List 6", {"Context", "", "655"}, "List 6, row 2 has no key"},
  };
  for (const Case& c : cases) {
    EXPECT_THAT(Make(c.sheet, {c.header, c.header}).left_out, ElementsAre(c.described));
  }
}

// One long cell that every row refers to would fill the memory.
TEST(DerivationTableBuild, EndsWhenATableIsTooLarge) {
  const std::string cell = "$a" + std::string(100'000, 'x');
  const SheetsInMemory::Rows rows(2'000, {"", "k", cell});
  EXPECT_EQ(Make("List 6", rows).error, WorkbookError::kTooLarge);
}

class DerivationTableFile : public GenreTest {
 protected:
  std::string Folder() const { return files_.Folder() + "/"; }
  static std::string ContentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
  }
  std::vector<std::string> FileNames() const {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(files_.Folder())) {
      names.push_back(file.path().filename().string());
    }
    return names;
  }
};

// Sheets of every kind, saved by LibreOffice.
TEST_F(DerivationTableFile, IsMadeFromItsWorkbook) {
  const std::string data = CANTOREL_TEST_DATA "/workbooks/";
  std::filesystem::copy(data + "derivation.xlsx", Folder() + std::string(kDerivationWorkbookName));
  DerivationBuild build;
  BuildDerivationTable(Folder(), record_, build);
  if (build.workbook_error == WorkbookError::kNoReader) GTEST_SKIP();
  EXPECT_TRUE(build.written);
  EXPECT_THAT(build.missing_sheets, IsEmpty());
  EXPECT_EQ(ContentOf(Folder() + "Music6xxTo655.txt"), ContentOf(data + "derivation.txt"));
  std::vector<std::string> left_out;
  for (const LeftOutRow& row : build.left_out) left_out.push_back(Describe(row));
  EXPECT_THAT(left_out, ElementsAre("List 9, row 3 repeats the key of a row above, which counts",
                                    "List 2, row 3 repeats the key of a row above, which counts",
                                    "List 2, row 4 has no subdivision in its key",
                                    "List 2, row 5 has nothing in column A",
                                    "List 3, row 3 repeats the key of a row above, which counts",
                                    "List 3, row 8 has no term in its fields",
                                    "List 3, row 13 and all below are not read, because blank "
                                    "rows stand above",
                                    "List 5, row 2 has no subdivision in its key",
                                    "List 6, row 4 has no fields", "List 6, row 5 has no key"));
  // The new table is the one that the next heading is looked up in.  A letter in
  // an escape ends the decoding, digits do not.
  EXPECT_EQ(DeriveFrom({{"650", " 0", "$aForro\xCC\x81 (Music)"}}),
            "655 7$aForro\xCC\x81 (Music)$2lcgft\n386  $aBrazilians$2lcdgt");
}

TEST_F(DerivationTableFile, StaysWhenTheBuildFails) {
  const std::string before = ContentOf(Folder() + "Music6xxTo655.txt");
  DerivationBuild build;
  for (const char* content : {"", "PK\x03\x04", "no workbook"}) {
    std::ofstream(Folder() + std::string(kDerivationWorkbookName)) << content;
    BuildDerivationTable(Folder(), record_, build);
    EXPECT_FALSE(build.written);
    EXPECT_THAT(WhyNotWritten(build), HasSubstr("Deriving bibliographic 655 etc.xlsx "));
    EXPECT_EQ(ContentOf(Folder() + "Music6xxTo655.txt"), before);
  }
  EXPECT_THAT(FileNames(), Not(::testing::Contains(HasSubstr(".new"))));
  BuildDerivationTable(Folder() + "nowhere/", record_, build);
  EXPECT_EQ(WhyNotWritten(build), "nothing can be written in the folder");
}

TEST(DerivationText, EscapesAsTheTableIsRead) {
  const std::pair<std::string, std::string> cases[] = {
      {"a[U+0301]b[U+0308]",
       "a\xCC\x81"
       "b\xCC\x88"},
      {"[U+0301][U+00E9][U+0301]", "\xCC\x81[U+00E9][U+0301]"},  // a letter ends it
      {"[U+0301", "[U+0301"},
      {"x[U+]y", "xy"},
  };
  for (const auto& [written, read] : cases) EXPECT_EQ(DecodeTableEscapes(written), read);
}

}  // namespace
}  // namespace cantorel
